#include "SignalWatch.h"

#include <csignal>
#include <initializer_list>
#include <sys/signalfd.h>
#include <unistd.h>

namespace Simulator {

namespace {

sigset_t setOf(std::initializer_list<int> signals)
{
    sigset_t set;
    sigemptyset(&set);
    for (int signal : signals)
        sigaddset(&set, signal);
    return set;
}

sigset_t watchedSignals(SignalWatch::Of kind)
{
    return kind == SignalWatch::Of::Terminal ? setOf({SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP, SIGCONT, SIGWINCH})
                                             : setOf({SIGINT, SIGTERM, SIGHUP, SIGQUIT});
}

}

SignalWatch::SignalWatch(Of kind)
    : mKind(kind)
{
    const sigset_t signals = watchedSignals(mKind);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    mDescriptor = signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC);
}

SignalWatch::~SignalWatch()
{
    while (take() != 0) { }
    close(mDescriptor);
    release();
}

void SignalWatch::release() const
{
    const sigset_t signals = watchedSignals(mKind);
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

void SignalWatch::stopHere() const
{
    const sigset_t stop = setOf({SIGTSTP});
    kill(0, SIGTSTP);
    pthread_sigmask(SIG_UNBLOCK, &stop, nullptr); // here the process stops
    pthread_sigmask(SIG_BLOCK, &stop, nullptr);
}

int SignalWatch::take()
{
    signalfd_siginfo information{};
    if (read(mDescriptor, &information, sizeof information) != sizeof information)
        return 0;
    return static_cast<int>(information.ssi_signo);
}

}

#include "SignalWatch.h"

#include <csignal>
#include <initializer_list>
#include <sys/signalfd.h>
#include <unistd.h>

namespace Simulator {

namespace {

sigset_t watchedSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGWINCH})
        sigaddset(&signals, signal);
    return signals;
}

}

SignalWatch::SignalWatch()
{
    const sigset_t signals = watchedSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    mDescriptor = signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC);
}

SignalWatch::~SignalWatch()
{
    while (take() != 0) { }
    close(mDescriptor);
    const sigset_t signals = watchedSignals();
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

int SignalWatch::take()
{
    signalfd_siginfo information{};
    if (read(mDescriptor, &information, sizeof information) != sizeof information)
        return 0;
    return static_cast<int>(information.ssi_signo);
}

}

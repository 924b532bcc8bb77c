#include "ControlServer.h"

#include "Phone.h"
#include "SignalWatch.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <sys/stat.h>
#include <utility>

namespace Simulator {

namespace {

bool isPipe(int descriptor)
{
    struct stat status { };
    return fstat(descriptor, &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

/// Takes standard input and output away from the phonelet.
std::unique_ptr<ControlClient> standardClient()
{
    constexpr int firstFree = 3;
    Descriptor input(fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, firstFree));
    Descriptor output(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, firstFree));
    const Descriptor nothing(open("/dev/null", O_RDONLY | O_CLOEXEC));
    dup2(nothing.number(), STDIN_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    std::signal(SIGPIPE, SIG_IGN); // whoever reads the answers may go
    return std::make_unique<ControlClient>(std::move(input), std::move(output));
}

}

ControlServer::ControlServer(
    Phone& phone, SignalWatch& signals, const std::string& path, ControlCommands::Settings settings)
    : mPhone(phone)
    , mSignals(signals)
    , mPatience(settings.patience)
    , mCommands(phone, std::move(settings))
{
    if (!path.empty()) {
        mSocket.emplace(path);
        if (isPipe(STDIN_FILENO))
            mStarter = STDIN_FILENO;
    } else {
        mClient = standardClient();
    }
    const auto observer = [this] {
        if (mCommands.isWatched() || mPhone.watch().hasEnded())
            mPhoneChanged.set();
    };
    mPhone.watch().setObserver(observer);
    mPhone.desktop().setObserver(observer);
    mPhone.deliveries().setObserver(observer);
}

ControlServer::~ControlServer()
{
    mPhone.watch().setObserver({});
    mPhone.desktop().setObserver({});
    mPhone.deliveries().setObserver({});
}

int ControlServer::run()
{
    mWorker = std::make_unique<ControlWorker>(mCommands);
    int signal = 0;
    while (!mMustEnd && signal == 0) {
        waitForSomething();
        signal = mSignals.take();
        serve();
    }
    mClient.reset();
    mSocket.reset();
    mCommands.cancel();
    if (mWorker->waitUntilDone(mPatience))
        mWorker.reset();
    return signal;
}

void ControlServer::waitForSomething()
{
    // What is no concern of now is -1, which poll() passes over.
    const bool mayRead = mClient && !mWorker->isBusy() && !mClient->isSending() && !mClient->hasEnded();
    const bool isSending = mClient && mClient->isSending();
    std::array<pollfd, 7> sources{{
        {mSignals.descriptor(), POLLIN, 0},
        {mPhoneChanged.descriptor(), POLLIN, 0},
        {mWorker->descriptor(), POLLIN, 0},
        {mSocket ? mSocket->descriptor() : -1, POLLIN, 0},
        {mStarter, POLLIN, 0},
        {mayRead ? mClient->input() : -1, POLLIN, 0},
        {mClient && !mClient->isGone() ? mClient->output() : -1, static_cast<short>(isSending ? POLLOUT : 0), 0},
    }};
    poll(sources.data(), sources.size(), isSending ? 100 : -1);
    mPhoneChanged.clear();
    const auto has = [&sources](std::size_t source) { return sources[source].revents != 0; };
    if (has(4))
        watchStarter();
    if (has(5))
        mClient->read();
    if ((sources[6].revents & (POLLERR | POLLHUP | POLLNVAL)) != 0) {
        mClient->hangUp();
        mCommands.cancel(); // nobody waits for what it waits for
    }
    if (has(3))
        acceptClient();
}

void ControlServer::serve()
{
    handleAnswer();
    tellChanges();
    if (mClient)
        handleClient();
    const bool isDone = !mWorker->isBusy() && !(mClient && mClient->isSending());
    if (isDone && (mCommands.hasQuit() || mPhone.watch().hasEnded()))
        mMustEnd = true;
}

void ControlServer::handleAnswer()
{
    const std::optional<std::string> answer = mWorker->takeAnswer();
    if (!answer)
        return;
    if (mClient && !mIsAnswerUnwanted)
        mClient->send(*answer);
    if (mIsAnswerUnwanted)
        mCommands.endWatch(); // it may have been the one who asked to watch
    mIsWatched = mCommands.isWatched();
    mIsAnswerUnwanted = false;
}

/// One event for all that has changed meanwhile, once the client has read what it was sent before.
void ControlServer::tellChanges()
{
    if (!mIsWatched || !mClient || mClient->isSending())
        return;
    const std::array now{
        mPhone.watch().snapshot().number, mPhone.desktop().snapshot().number, mPhone.deliveries().count()};
    if (std::exchange(mTold, now) != now)
        mClient->send(ControlCommands::changedEvent());
}

void ControlServer::handleClient()
{
    mClient->write();
    while (!mWorker->isBusy() && !mClient->isSending() && mClient->lines().hasLine() && !mCommands.hasQuit()) {
        LineBuffer::Line line = mClient->lines().take();
        if (line.isTooLong)
            mClient->send(ControlCommands::refusal("too-long",
                "a line has at most " + std::to_string(LineBuffer::LongestLine) + " bytes; this one was left out"));
        else
            begin(std::move(line.text));
    }
    const bool isStuck = mClient->isSending() && ControlClient::Clock::now() - mClient->lastProgress() > mPatience;
    const bool isDone = !mClient->isWorthListening() && !mWorker->isBusy() && !mClient->isSending();
    if (isStuck)
        std::cerr << "control channel: the client has not read its answers for a while; it is left" << std::endl;
    if (isStuck || isDone)
        dropClient();
}

void ControlServer::begin(std::string line)
{
    if (!mClient->isGone())
        mCommands.resume();
    mWorker->begin(std::move(line));
}

void ControlServer::dropClient()
{
    mClient.reset();
    mIsAnswerUnwanted = mWorker->isBusy();
    mIsWatched = false;
    mTold = {};
    mCommands.endWatch();
    if (!mSocket)
        mMustEnd = true;
}

void ControlServer::acceptClient()
{
    auto client = std::make_unique<ControlClient>(mSocket->accept());
    if (client->input() < 0)
        return;
    // The command of an earlier client may still be at work; this one's lines wait for it.
    if (mClient)
        client->send(ControlCommands::refusal("busy", "another client is connected; this telephone has one at a time"));
    else
        mClient = std::move(client);
}

void ControlServer::watchStarter()
{
    std::array<char, 4096> unwanted;
    if (read(mStarter, unwanted.data(), unwanted.size()) <= 0) {
        mMustEnd = true;
        mStarter = -1;
    }
}

}

#include "ControlWorker.h"

#include "ControlCommands.h"

#include <poll.h>
#include <utility>

namespace Simulator {

ControlWorker::ControlWorker(ControlCommands& commands, std::function<void()> onAnswer)
    : mCommands(commands)
    , mOnAnswer(std::move(onAnswer))
    , mThread([this] { run(); })
{
}

ControlWorker::~ControlWorker()
{
    {
        const std::lock_guard lock(mMutex);
        mMustEnd = true;
    }
    mHasWork.notify_one();
    mCommands.cancel();
    mThread.join();
}

void ControlWorker::begin(std::string line)
{
    mIsBusy = true;
    {
        const std::lock_guard lock(mMutex);
        mLine = std::move(line);
    }
    mHasWork.notify_one();
}

bool ControlWorker::waitUntilDone(std::chrono::milliseconds limit)
{
    pollfd answer{mWake.descriptor(), POLLIN, 0};
    return !mIsBusy || poll(&answer, 1, static_cast<int>(limit.count())) > 0;
}

std::optional<std::string> ControlWorker::takeAnswer()
{
    mWake.clear();
    const std::lock_guard lock(mMutex);
    if (mAnswer)
        mIsBusy = false;
    return std::exchange(mAnswer, std::nullopt);
}

void ControlWorker::run()
{
    std::unique_lock lock(mMutex);
    for (;;) {
        mHasWork.wait(lock, [this] { return mMustEnd || mLine; });
        if (mMustEnd)
            return;
        const std::string line = *std::exchange(mLine, std::nullopt);
        lock.unlock();
        std::string answer = mCommands.answer(line);
        lock.lock();
        mAnswer = std::move(answer);
        mWake.set();
        if (mOnAnswer) {
            lock.unlock();
            mOnAnswer();
            lock.lock();
        }
    }
}

}

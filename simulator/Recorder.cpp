#include "Recorder.h"

#include "KeyNames.h"
#include "Phone.h"
#include "RecordFile.h"

#include <DisplayAPI/DeliveryWatch.h>

#include <ULoop.h>

#include <utility>

namespace Simulator {

namespace {

constexpr std::chrono::milliseconds Tick{50};

}

Recorder::Recorder(Phone& phone, RecordFile& file, ClockMover mover)
    : mPhone(phone)
    , mFile(file)
    , mMover(mover)
    , mThread([this] { run(); })
{
    mPhone.setObserver(this);
}

Recorder::~Recorder()
{
    mPhone.setObserver(nullptr);
    {
        const std::lock_guard lock(mMutex);
        mMustEnd = true;
    }
    mHasEnded.notify_one();
    mThread.join();
    if (mPhone.watch().hasEnded())
        return;
    mPhone.settle();
    endComes();
}

void Recorder::textCame(const std::string& text, bool isThere)
{
    const std::lock_guard lock(mMutex);
    writePress();
    writeTime();
    mFile.expectLine(text, isThere);
}

void Recorder::endComes()
{
    const std::lock_guard lock(mMutex);
    if (mIsComplete)
        return;
    writePress();
    writeState();
    mIsComplete = true;
}

void Recorder::run()
{
    std::unique_lock lock(mMutex);
    while (!mHasEnded.wait_for(lock, Tick, [this] { return mMustEnd; }))
        tick();
}

void Recorder::tick()
{
    // Whether the key will be held is not known yet, so it is not written yet.
    if (mPressed != 0 || mIsComplete)
        return;
    if (isQuiet() && mMover == ClockMover::Recorder)
        moveClock();
}

/// Looks whether the phonelet is still answering. When its answer is complete, the screen is written before time moves.
bool Recorder::isQuiet()
{
    const std::uint64_t delivered = mPhone.deliveries().count();
    const std::uint64_t number = mPhone.watch().snapshot().number;
    const bool isTold = std::exchange(mDelivered, delivered) != delivered;
    const bool hasChanged = std::exchange(mShown, number) != number;
    if (isTold) {
        writeTime();
        mIsAnswering = true;
        return false;
    }
    if (!mIsAnswering)
        return true;
    // The worker may be slow between two steps of its answer, so a screen that keeps still is not enough.
    if (hasChanged || !DisplayAPI::DeliveryWatch::countAtRest())
        return false;
    mIsAnswering = false;
    writeScreen();
    return true;
}

/// Time in which no timer runs makes no difference, and is left out.
void Recorder::moveClock()
{
    bool hasMoved = false;
    mPhone.onGui([this, &hasMoved] {
        hasMoved = ULoop::instance().hasTimers();
        if (hasMoved)
            mPhone.moveClock(Tick);
    });
    if (hasMoved)
        mTime += Tick;
}

void Recorder::writeTime()
{
    if (mTime.count() > 0)
        mFile.advance(std::exchange(mTime, std::chrono::milliseconds(0)));
}

void Recorder::writeScreen()
{
    writeTime();
    const std::string text = mPhone.watch().snapshot().text;
    if (text != mWrittenText)
        mFile.expect(mWrittenText = text);
}

void Recorder::writeState()
{
    isQuiet();
    // A key that comes before the phonelet has answered goes to a screen that is about to change.
    if (mIsAnswering)
        writeTime();
    else
        writeScreen();
}

void Recorder::keyComes(int code, UGlobal::KeyState state)
{
    const std::lock_guard lock(mMutex);
    if (state == UGlobal::KeyPressed) {
        writePress();
        writeState();
        mPressed = code;
    } else if (state == UGlobal::KeyHeld && mPressed == code) {
        mFile.hold(keyName(code));
        mPressed = 0;
    } else if (state == UGlobal::KeyReleased && mPressed != code) {
        writeState();
        mFile.release(keyName(code));
    } else if (state == UGlobal::KeyReleased) {
        writePress();
    }
}

void Recorder::writePress()
{
    if (mPressed != 0)
        mFile.press(keyName(std::exchange(mPressed, 0)));
}

void Recorder::stepComes(const std::string& name, const std::string& argument)
{
    const std::lock_guard lock(mMutex);
    writePress();
    writeState();
    mFile.callStep(name, argument);
    mIsAnswering = true;
}

void Recorder::timeMoves(std::chrono::milliseconds time)
{
    const std::lock_guard lock(mMutex);
    writePress();
    writeState();
    mTime += time;
}

}

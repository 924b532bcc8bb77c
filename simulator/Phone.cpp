#include "Phone.h"

#include "DesktopProcess.h"
#include "GuiCall.h"
#include "Script.h"

#include <DisplayAPI/DeliveryWatch.h>
#include <DisplayAPI/Display.h>

#include <UApplication.h>
#include <ULoop.h>
#include <UWindowManager.h>

#include <algorithm>
#include <thread>

namespace Simulator {

namespace {

constexpr std::chrono::seconds SettleLimit{5};
constexpr std::chrono::milliseconds Quiet{50};
constexpr std::chrono::milliseconds ShortestEnd{2000}; // also for somebody who has no patience with texts
constexpr std::chrono::milliseconds StuckEnd{200};     // of a telephone that has been waited for already

/// What the process shares with the telephone, put back when it has ended.
class ToolkitSetup {
public:
    ToolkitSetup(const Phone::Settings& settings, const UFont& font, std::function<void()> paintObserver)
    {
        HardwareVersion::setAll(settings.hardware);
        ULoop::instance().setManualClock(settings.clock == Phone::ClockKind::Manual);
        UWindowManager::instance().setFont(&font);
        UWindowManager::instance().setPaintObserver(std::move(paintObserver));
    }
    ~ToolkitSetup()
    {
        UWindowManager::instance().setPaintObserver({});
        UWindowManager::instance().setFont(nullptr);
        ULoop::instance().setManualClock(false);
    }
    ToolkitSetup(const ToolkitSetup&) = delete;
    ToolkitSetup& operator=(const ToolkitSetup&) = delete;
};

}

Phone::Phone(const Settings& settings)
    : mFont(settings.fontFile)
    , mSettings(settings)
{
}

void Phone::run(const Phonelet& phonelet, const Driver& driver)
{
    const ToolkitSetup setup(mSettings, mFont, [this] { publish(); });
    DisplayAPI::Display display(mSettings.application, "PhoneSimulator", PhysDefs::hardwareSubVariant{},
        mSettings.softwareType, "en_US", "DD.MM.YYYY", "HH:mm", false, nullptr, false);
    mDisplay = &display;
    display.subscribe(this);
    DisplayAPI::DeliveryWatch::setObserver([this](const auto& delivery) { mDeliveries.add(delivery); });
    callOnGui([this] { mHasRun = true; });
    startDesktop();
    std::thread driverThread([this, &driver] { runDriver(driver); });

    std::exception_ptr phoneletError;
    try {
        phonelet(display);
    } catch (...) {
        phoneletError = std::current_exception();
    }
    // From here on nothing runs any more: what the driver waits for is given up.
    mWatch.end();
    ULoop::instance().close();
    mDeliveries.wake();
    if (mSettings.desktop)
        mSettings.desktop->end();
    driverThread.join();
    DisplayAPI::DeliveryWatch::setObserver({});
    display.unSubscribe();
    mDisplay = nullptr;

    if (phoneletError)
        std::rethrow_exception(phoneletError);
    if (mDriverError)
        std::rethrow_exception(mDriverError);
}

void Phone::startDesktop()
{
    using Clock = DesktopProcess::Clock;
    if (mSettings.desktop)
        mSettings.desktop->start(
            mSettings.clock == ClockKind::Manual ? Clock::Manual : Clock::Real, mSettings.patience);
}

ScreenWatch& Phone::desktop()
{
    return mSettings.desktop ? mSettings.desktop->watch() : mNoDesktop;
}

bool Phone::finishDesktop()
{
    return mSettings.desktop && mSettings.desktop->finish();
}

void Phone::runDriver(const Driver& driver)
{
    try {
        driver(*this);
    } catch (...) {
        mDriverError = std::current_exception();
    }
    quit();
}

void Phone::displayChanged(std::string)
{
    // One reading for all changes of this pass. The painting at its end is not enough: some changes paint nothing.
    if (!mIsPublishPosted.exchange(true))
        callOnGui([this] { publish(); });
}

void Phone::publish()
{
    const UScreenWE1* screen = UWindowManager::instance().screen();
    if (!screen || !mDisplay)
        return;
    mIsPublishPosted = true; // reading the text may tell of changes, which this reading has seen
    const std::vector<DisplayAPI::Rect>* rects = mDisplay->getDisplayedRects();
    const std::string text = rects ? mDisplay->serialiseByRect(*rects, "") : "";
    mIsPublishPosted = false;
    mWatch.publish(*screen, text);
}

bool Phone::onGui(std::function<void()> function)
{
    std::future<void> done = callOnGuiAfterPainting(std::move(function));
    mIsStuck = done.wait_for(mSettings.patience) != std::future_status::ready;
    if (mIsStuck)
        return false;
    try {
        done.get();
        return true;
    } catch (const std::future_error&) {
        return false; // the loop has ended
    }
}

void Phone::key(int code, UGlobal::KeyState state)
{
    const int functionKey = code - UGlobal::KeyFunction1 + 1;
    const auto step = std::ranges::find(mSettings.steps, functionKey, &CustomStep::functionKey);
    if (functionKey > 0 && step != mSettings.steps.end()) {
        if (state == UGlobal::KeyPressed)
            callStep(step->name, "");
        return;
    }
    if (PhoneObserver* observer = mObserver)
        observer->keyComes(code, state);
    UApplication::instance()->postKey(code, state);
}

void Phone::noteText(const std::string& text, bool isThere)
{
    if (PhoneObserver* observer = mObserver)
        observer->textCame(text, isThere);
}

void Phone::tap(int code)
{
    key(code, UGlobal::KeyPressed);
    key(code, UGlobal::KeyReleased);
}

std::vector<std::string> Phone::functionKeyLabels() const
{
    constexpr int count = 8;
    std::vector<std::string> labels;
    for (int key = 1; key <= count; ++key) {
        const auto step = std::ranges::find(mSettings.steps, key, &CustomStep::functionKey);
        labels.push_back("F" + std::to_string(key) + (step == mSettings.steps.end() ? "" : " " + step->name));
    }
    return labels;
}

bool Phone::callStep(const std::string& name, const std::string& argument)
{
    const auto step = std::ranges::find(mSettings.steps, name, &CustomStep::name);
    if (step == mSettings.steps.end() || !finishPosted())
        return false;
    const std::lock_guard lock(mStepMutex);
    if (isStepLate())
        return false;
    if (PhoneObserver* observer = mObserver)
        observer->stepComes(name, argument);
    std::packaged_task<void()> call([function = step->function, argument] { function(argument); });
    std::future<void> end = call.get_future();
    std::thread thread(std::move(call));
    if (end.wait_for(mSettings.patience) != std::future_status::ready) {
        thread.detach(); // nothing can end it but the end of the process
        mLateStep = name;
        mLateEnd = std::move(end);
        return false;
    }
    thread.join();
    end.get();
    return true;
}

std::string Phone::lateStep() const
{
    const std::lock_guard lock(mStepMutex);
    return isStepLate() ? "the step \"" + mLateStep + "\" has not returned for " + inSeconds(mSettings.patience) : "";
}

bool Phone::isStepLate() const
{
    return mLateEnd.valid() && mLateEnd.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

bool Phone::advance(std::chrono::milliseconds time)
{
    if (PhoneObserver* observer = mObserver)
        observer->timeMoves(time);
    return onGui([this, time] { moveClock(time); });
}

void Phone::moveClock(std::chrono::milliseconds time)
{
    ULoop::instance().advance(static_cast<std::uint64_t>(time.count()));
    if (mSettings.desktop)
        mSettings.desktop->advance(time);
}

void Phone::quit()
{
    if (PhoneObserver* observer = mObserver)
        observer->endComes();
    callOnGui([this] {
        if (mDisplay)
            mDisplay->shutdown();
    });
}

bool Phone::end()
{
    const auto limit = mIsStuck ? StuckEnd : std::max(mSettings.patience, ShortestEnd);
    const auto deadline = ScreenWatch::Clock::now() + limit;
    while (!mWatch.hasEnded() && ScreenWatch::Clock::now() < deadline) {
        quit();
        mWatch.waitFor([](const Snapshot&) { return false; }, std::chrono::milliseconds(200));
    }
    return mWatch.hasEnded();
}

bool Phone::finishPosted()
{
    return onGui([] {});
}

std::string Phone::waitForScreen()
{
    if (!finishPosted())
        return trouble();
    const auto isShown = [](const Snapshot& snapshot) { return !snapshot.text.empty(); };
    if (mWatch.waitFor(isShown, mSettings.patience))
        return "";
    if (mWatch.hasEnded())
        return "the phonelet has ended without showing a screen";
    return "no screen has come for " + inSeconds(mSettings.patience) + ": " + missingScreen();
}

std::string Phone::missingScreen() const
{
    return mHasRun ? "the phonelet has not called display.setCurrent(), or not display.show()"
                   : "the phonelet has not called display.exec()";
}

std::string Phone::trouble() const
{
    if (mWatch.hasEnded())
        return mHasRun ? "the phonelet has ended" : "the phonelet has ended without calling display.exec()";
    const std::string wait = inSeconds(mSettings.patience);
    if (const std::string late = lateStep(); !late.empty())
        return late;
    return mHasRun ? "the GUI thread has not answered for " + wait + ": the phonelet keeps it busy"
                   : "the telephone has not started for " + wait + ": " + missingScreen();
}

bool Phone::finishAnswers(std::chrono::milliseconds limit)
{
    const auto deadline = ScreenWatch::Clock::now() + limit;
    while (finishPosted()) {
        const auto told = DisplayAPI::DeliveryWatch::countAtRest();
        // What the listeners have posted may lead to more that they are told.
        if (told && finishPosted() && told == DisplayAPI::DeliveryWatch::countAtRest())
            return true;
        if (ScreenWatch::Clock::now() > deadline)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
}

void Phone::settle()
{
    const auto deadline = ScreenWatch::Clock::now() + SettleLimit;
    while (finishAnswers(SettleLimit) && ScreenWatch::Clock::now() < deadline) {
        const auto told = DisplayAPI::DeliveryWatch::countAtRest();
        mWatch.waitUntilQuiet(Quiet, SettleLimit);
        const std::uint64_t shown = mWatch.snapshot().number;
        // A loaded machine may have kept the GUI thread from its work for longer than the moment.
        if (finishPosted() && mWatch.snapshot().number == shown && told
            && told == DisplayAPI::DeliveryWatch::countAtRest())
            return;
    }
}

}

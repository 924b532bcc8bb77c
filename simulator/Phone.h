#pragma once

#include "CustomStep.h"
#include "DeliveryLog.h"
#include "FixedFont.h"
#include "PhoneObserver.h"
#include "ScreenWatch.h"

#include <DisplayAPI/DisplayEventIfc.h>
#include <PhoneSimulator/PhoneSimulator.h>

#include <HardwareVersion.h>
#include <Types.h>

#include <atomic>
#include <chrono>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Simulator {

class DesktopProcess;

/// The telephone without its operator: it runs a phonelet on the GUI thread, while a driver works the keys and
/// looks at the screen from a thread of its own.
class Phone : private DisplayAPI::DisplayEventIfc {
public:
    enum class ClockKind {
        Real,
        Manual, ///< Time stands still except for advance().
    };

    struct Settings {
        std::string fontFile; ///< Empty for the system's.
        HardwareVersion::Set hardware;
        ClockKind clock = ClockKind::Real;
        std::vector<CustomStep> steps;            ///< Of the phonelet, with their keys.
        std::chrono::milliseconds patience{5000}; ///< How long the GUI thread may take to answer.
        std::string application = {};             ///< As which application the phonelet runs.
        std::string softwareType = {};
        std::shared_ptr<DesktopProcess> desktop = {}; ///< Runs as long as the phonelet; null for none.
    };

    /// Works the telephone; the phonelet is told to end when it returns.
    using Driver = std::function<void(Phone& phone)>;

    /// Throws UsageError for a font that can't be used.
    explicit Phone(const Settings& settings);

    /// Runs the phonelet until it returns, and the driver beside it. What one of them throws is thrown on when
    /// both have ended. The calling thread is the GUI thread from then on.
    void run(const Phonelet& phonelet, const Driver& driver);

    // For the driver; threads: any

    /// Names who is told of keys, steps and the clock; null for nobody. The observer must stay while others use this.
    void setObserver(PhoneObserver* observer) { mObserver = observer; }

    /// Tells the observer that somebody has waited for a text, until the screen had it, or had it no more.
    void noteText(const std::string& text, bool isThere);

    /// Hands a key to the telephone. A function key that the phonelet has taken for a step calls the step when it
    /// is pressed, on the calling thread, and is no key of the telephone.
    void key(int code, UGlobal::KeyState state);

    /// Presses the key and releases it.
    void tap(int code);

    /// What stands on the function keys: "F3", or "F1 incoming" on one that a step has taken.
    std::vector<std::string> functionKeyLabels() const;

    /// Calls a step of the phonelet's own, on a thread of its own, once what was posted before has run. False when
    /// the telephone or the step did not answer in time, has ended, or has no such step. What the step throws comes
    /// out.
    bool callStep(const std::string& name, const std::string& argument);

    /// Which step was given up and is still at work in the phonelet, in words for its user; empty for none. While there
    /// is one, nothing can be cleaned up.
    std::string lateStep() const;

    /// Moves a manual clock, and that of the desktop behind it. False when the telephone did not answer in time, or has
    /// ended.
    bool advance(std::chrono::milliseconds time);

    /// The same on the GUI thread.
    void moveClock(std::chrono::milliseconds time);

    /// Asks the phonelet to end: its `display.exec()` returns.
    void quit();

    /// Asks again and again, since a phonelet may run its loop several times. False when it has not ended in time.
    bool end();

    /// Runs a function on the GUI thread, behind what was posted before and its painting. False when the telephone
    /// did not answer in time, or has ended.
    bool onGui(std::function<void()> function);

    /// Waits until all that was posted has run and been painted. False when the telephone did not answer in
    /// time, or has ended.
    bool finishPosted();

    /// The same, and waits until the phonelet has answered every command that it was given, and what follows from that
    /// is painted; at the limit it gives up. False when the telephone did not answer in time, or has ended.
    bool finishAnswers(std::chrono::milliseconds limit = std::chrono::seconds(1));

    /// Waits until the phonelet runs its loop and shows something. Answers why it does not, or nothing.
    std::string waitForScreen();

    /// What the phonelet has not done yet, so that no screen is there.
    std::string missingScreen() const;

    /// What is the matter with a telephone that does not answer, in words for its user.
    std::string trouble() const;

    /// True once the phonelet's loop has turned.
    bool hasRun() const { return mHasRun; }

    /// Does as finishAnswers(), and then waits for the screen to keep still for a moment, since threads of the
    /// phonelet's own may be at work.
    void settle();

    ScreenWatch& watch() { return mWatch; }
    const ScreenWatch& watch() const { return mWatch; }

    /// What the desktop shows, the strip above the glass; its number is 0 while there is none. Its observer is called
    /// on a thread of the desktop's.
    ScreenWatch& desktop();

    /// Waits until what the desktop was told before is seen in desktop(). False when there is none that answers.
    bool finishDesktop();

    DeliveryLog& deliveries() { return mDeliveries; }
    const std::vector<CustomStep>& steps() const { return mSettings.steps; }
    std::chrono::milliseconds patience() const { return mSettings.patience; }

private:
    void displayChanged(std::string unused) override;
    void publish();
    void startDesktop();
    void runDriver(const Driver& driver);
    bool isStepLate() const;

    FixedFont mFont;
    Settings mSettings;
    ScreenWatch mWatch;
    ScreenWatch mNoDesktop;
    DeliveryLog mDeliveries;
    DisplayAPI::Display* mDisplay = nullptr; // while run() lasts
    std::atomic<bool> mIsPublishPosted = false;
    std::atomic<bool> mHasRun = false;
    std::atomic<bool> mIsStuck = false; // has not answered when it was last asked
    std::atomic<PhoneObserver*> mObserver = nullptr;
    std::exception_ptr mDriverError;
    mutable std::mutex mStepMutex; // held while a step of the phonelet's own runs, or is waited for
    std::string mLateStep;         // that has not returned in time
    std::future<void> mLateEnd;    // when it does
};

}

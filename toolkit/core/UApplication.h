#pragma once

#include "Export.h"
#include "Types.h"
#include "UScreenWE1.h"
#include "UString.h"

#include <atomic>
#include <memory>
#include <string>

class UAgent;
class UEvent;
class UWindowManager;

/// The application, as the event queue and the window manager know it. It holds data only; loop, timers,
/// listeners and window manager belong to the process.
class TOOLKIT_EXPORT UApplication {
public:
    /// How the process shares the screen; the numbers are the maker's.
    enum UIMode : int {};

    /// The newest application, or null before the first. It stays allocated, so that a thread that has just
    /// read it can still post.
    static UApplication* instance();

    virtual ~UApplication();
    UApplication(const UApplication&) = delete;
    UApplication& operator=(const UApplication&) = delete;

    /// Takes the event over; see ULoop::post(). Threads: any.
    void postEvent(UEvent* event);

    /// Posts a key. Threads: any.
    void postKey(int code, int state);

    /// Runs one pass of the loop, for tests and the simulator.
    void processEvents();

    UWindowManager* windowManager();
    std::string getAppName() const { return mName; }

protected:
    explicit UApplication(std::string name);

private:
    std::string mName;
};

/// The telephone's application: variants, formats and the wish for the whole screen.
class TOOLKIT_EXPORT VantoUApplication : public UApplication {
public:
    enum HardwareVariant : int {};
    enum SoftwareType : int {};

    /// Makes the application current, opens the event queue, and takes the screen over. Objects of this class
    /// are kept until the process ends; make them with new.
    VantoUApplication(const UString& name, UScreenWE1* screen, UIMode uiMode, HardwareVariant hardwareVariant,
        SoftwareType softwareType, PhysDefs::hardwareSubVariant hardwareSubVariant);
    ~VantoUApplication() override;

    /// The application of now, or null. Threads: any.
    static VantoUApplication* getCurrentApplication();

    /// Leaves the process without a current application, for the cases in which there is none.
    static void endCurrent();

    // Loop

    int exec();
    void quit();

    /// Destroys what waits in the queue without running it, and refuses later posts, until a new exec() or a
    /// new application.
    void closeEventQueue();

    // Settings

    /// Stores the locale and tells every listener.
    void setLocale(const std::string& locale);
    void setDateFormat(const std::string& format) { mDateFormat = format; }
    void setTimeFormat(const std::string& format) { mTimeFormat = format; }
    const std::string& locale() const { return mLocale; }
    const std::string& dateFormat() const { return mDateFormat; }
    const std::string& timeFormat() const { return mTimeFormat; }

    /// Threads: any, for the two reads.
    void setHardwareVariant(HardwareVariant variant) { mHardwareVariant = variant; }
    HardwareVariant getHardwareVariant() const { return mHardwareVariant; }
    SoftwareType getSoftwareType() const { return mSoftwareType; }
    void setSoftwareType(SoftwareType type);

    /// True while the current application has software type 1, the one with a system window. Threads: any.
    static bool isSoftwareQvt();

    UIMode uiMode() const { return mUIMode; }
    PhysDefs::hardwareSubVariant hardwareSubVariant() const { return mHardwareSubVariant; }

    // Listeners

    /// A second entry of one agent is ignored.
    void addListener(UAgent* agent);
    void removeListener(UAgent* agent);

    // Screen

    void requestFullScreen() { mIsFullScreen = true; }
    void releaseFullScreen() { mIsFullScreen = false; }
    bool isFullScreen() const { return mIsFullScreen; }
    void enableScreen();
    void disableScreen();
    bool isIdleDisplayActive() const;
    bool isSearchableListActive() const;

    /// Asks for a new painting of the popup on top.
    void refreshPopup();

private:
    std::unique_ptr<UScreenWE1> mScreen;
    UIMode mUIMode;
    std::atomic<HardwareVariant> mHardwareVariant;
    std::atomic<SoftwareType> mSoftwareType;
    PhysDefs::hardwareSubVariant mHardwareSubVariant;
    std::string mLocale;
    std::string mDateFormat;
    std::string mTimeFormat;
    bool mIsFullScreen = false;
};

#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/Icons.h>

#include <Rect.h>
#include <Types.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class TranslationInfo;
class TranslatorIfc;
class VantoUApplication;

namespace DisplayAPI {

class CommandListener;
class Displayable;
class DisplayEventIfc;
class DisplayPrivateIfc;
class DisplayRequestEvent;

/// The telephone's display: what an application opens first, and closes last.
///
/// The thread that makes the display is the GUI thread from then on. It names a translator, subscribes, makes
/// screens, calls setCurrent() and show(), and runs exec() until somebody calls shutdown(). All other threads
/// reach the display through the same object.
///
/// Threads: any, and each call returns after it has run on the GUI thread. A call from another thread before exec()
/// waits until the loop runs; the GUI thread must not wait for that thread meanwhile, in displayChanged() neither.
/// The operations under "Without a request" run on the caller's thread: use them there before exec(), or on the GUI
/// thread.
/// Ownership: screens, subscriber and translator stay the application's; delete the screens, then the display.
/// The other order is safe too.
/// Errors: a null or deleted screen is ignored. Once exec() has ended, a call from another thread does nothing and
/// returns at once: null from getCurrent() and getDisplayedRects(), else an empty text.
class DISPLAYAPI_EXPORT Display {
public:
    Display(
        std::string name, std::string locale, std::string dateFormat, std::string timeFormat, bool server, Rect* area);
    Display(std::string name, std::string softwareType, std::string locale, std::string dateFormat,
        std::string timeFormat, bool server, Rect* area);

    /// The full form. `softwareType` is "Zelmark SIP", "Zelmark QVT" or another text; sub-variant, area and the
    /// last flag have no effect.
    Display(std::string applicationName, std::string name, PhysDefs::hardwareSubVariant subVariant,
        std::string softwareType, std::string locale, std::string dateFormat, std::string timeFormat, bool server,
        Rect* area, bool flag);
    virtual ~Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// True while the display lives. The pointer is not followed. Threads: any.
    static bool exists(const Display* display);

    /// Runs a request on the GUI thread; called by the event.
    virtual void processDisplayRequest(DisplayRequestEvent* event);

    // Function keys

    virtual void setFPKLabel(int key, const std::string& label);
    virtual void setFPKStatus(int key, int status);
    virtual void shiftFPKLabel(int key);
    virtual void shiftFPKBar(bool shifted);
    virtual void setAlternateLabel(int key, const std::string& label);

    /// Tells the screens whether a status message covers the first line.
    virtual void setStatusMessageAvailable(bool available);
    virtual void addKeyboardCommandListener(CommandListener* listener);
    virtual void removeKeyboardCommandListener();
    virtual void shiftChangeEventForCertainFPKey(bool shifted, int key);
    virtual void callShowFPKBarMethodFromAdminPhonelet();

    /// How far the ringer's volume bar goes; see setPreviewVolume().
    virtual void setRingerVolumeBarLimit(int limit);

    // Screens

    /// Shows a screen: an ordinary one replaces all that was there, a popup lies on top. Null darkens the glass.
    void setCurrent(Displayable* displayable);

    /// Makes each current in turn, so that the last ends on top.
    void setCurrent(const std::vector<Displayable*>& displayables);
    Displayable* getCurrent();

    /// The current screen, or nothing.
    std::vector<Displayable*> getCurrentWidgets();
    void show();
    void hide();
    void createServerDisplay(Displayable* displayable);
    void setMaximised(bool maximised);

    // Loop

    /// Runs the event loop on the GUI thread, until shutdown().
    ///
    /// Then it recalls what waits to be delivered to listeners, and waits for the delivery that has begun, five
    /// seconds at most. Behind it screens, commands and listeners may be destroyed at once. Nothing is delivered any
    /// more until the next exec() or display; calls of handles from other threads do nothing, and return their default.
    /// Errors: on another thread, and inside itself, it is refused with a line in the log. An exception that leaves the
    /// subscriber, a translator or a screen of the application's own ends the loop and comes out of here.
    void exec();

    /// Ends the loop after the event in hand.
    void shutdown();

    // Screen text

    /// All screens, whatever covers what. It needs no subscriber.
    std::string serialise();

    /// What can be seen in the rectangles. `statusStr` names a status whose lines are asked for; usually empty.
    /// Without a subscriber no screen is written: subscribe() first, also for a program that only asks.
    std::string serialiseByRect(const std::vector<Rect>& rects, std::string statusStr);

    /// The rectangles of the screens on the stack, bottom first. Off the GUI thread they are a copy that stays as
    /// it is until this thread's next call; on the GUI thread they are rewritten by the next call. Null only
    /// when the call could not run.
    std::vector<Rect>* getDisplayedRects();

    // Locale and formats

    void localeChanged(std::string locale);
    void dateFormatChanged(std::string format);
    void timeFormatChanged(std::string format);
    void setSoftwareType(const std::string& softwareType);

    // System window

    void setSystemWindowSize(int lines);
    void setSystemWindowText(int line, std::string text);
    void setSystemWindowTop(int top);
    void showTimeInSystemWindow(bool shown);
    void setTimeInSystemWindow(int hours, int minutes, int seconds);

    /// A call's time as hh:mm:ss; a longer text is cut at 8 characters.
    void setTimer(std::string time);
    void startTimer(std::string time);
    void stopTimer();
    void showTimer();
    void hideTimer(bool hidden);
    void pauseTimer();

    // Status, volume, clipboard

    /// Shows a message over the first line, whatever screens come and go, until another text replaces it or an empty
    /// one takes it away: it never ends by itself, and no notice is given. The text that is shown already changes
    /// nothing. `duration` is how long each part of a text that is wider than the line stands, in milliseconds, a
    /// second at least; with 0 only the beginning is shown.
    void setStatusMessage(const std::string& text, unsigned int duration);

    /// Shows the volume bar of a device (0 handset, 1 headset, 2 speaker, 3 ringer) with value, minimum and
    /// maximum.
    void setPreviewVolume(
        unsigned int device, unsigned int value, unsigned int minimum, unsigned int maximum, unsigned int variant);
    void copy(const std::string& text);
    std::string paste();

    // Without a request

    /// The fixed area of the display, or null if there is none.
    Rect* getDisplayArea();

    /// Names the one who is told of every change; another one takes its place. While it is being told, a call of these
    /// two on another thread waits. One that dies without unSubscribe() is forgotten; but on another thread it must not
    /// die while it may be told. Threads: any, for these two.
    void subscribe(DisplayEventIfc* listener);
    void unSubscribe();

    /// Names the translator of the library's own texts. Nobody notices when it dies: name another one before, or null,
    /// and let it outlive every TranslationInfo that was made with it.
    void setTranslator(TranslatorIfc* translator);
    void setAndUpdateHeadSetIcon(bool on);
    void setAndUpdateSpeakerIcon(bool on);
    void setAndUpdateMuteIcon(bool on);
    void setSliderVisibility(bool visible) { mIsSliderVisible = visible; }
    bool getSliderVisibilityState() const { return mIsSliderVisible; }
    int getEditingStatus();

    // Without effect on this telephone

    void showNotification(TranslationInfo* text, Icons::IconType icon, bool first, int duration, bool second);
    void showNotification(std::string text, Icons::IconType icon, bool first, int duration, bool second);
    bool hasSoftKeyBar() const { return false; }
    bool isCurrentForKeyEvents(Displayable*) const { return true; }
    bool isVisible() const { return true; }
    void enableKeypadEventSending();
    void disableKeypadEventSending();
    void setPopupMode(bool popup);
    void skinChanged(std::string skin);
    void timeHasChanged(std::string time);
    void dateHasChanged(std::string date);
    void keyboardLayoutChanged(std::string layout);

protected:
    void init(DisplayPrivateIfc* displayPrivate);

    /// Hands the request over and returns after it has run. False if it will never run.
    bool postEvent(DisplayRequestEvent* event);

private:
    struct Road;
    struct TextHandover;

    void runRequest(DisplayRequestEvent& event);
    void storeText(const std::function<std::string()>& read);
    std::string fetchText(DisplayRequestEvent* event);

    std::unique_ptr<DisplayPrivateIfc> mPrivate;
    std::shared_ptr<TextHandover> mHandover;
    std::string mDisplayName;
    std::string mSoftwareType;
    bool mIsSliderVisible = false;
    VantoUApplication* mApplication = nullptr; // whose queue this display closes
};

}

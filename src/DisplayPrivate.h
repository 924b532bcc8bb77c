#pragma once

#include <DisplayAPI/DisplayEventIfc.h>
#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/Living.h>

#include "DisplayStack.h"
#include "VisibleRectMonitor.h"

#include <Semaphore.h>
#include <UAgent.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

class StatusMessageMEG;
class VolumeIndicatorMEG;

namespace DisplayAPI {

class ContentWidgetFactoryIfc;
class ContentWidgetIfc;

/// What is shown: the screens on their stack, and the services that belong to the display as a whole.
///
/// An ordinary screen replaces the stack, a popup lies on top of it, and the screen below comes back when the
/// popup goes.
///
/// Threads: GUI thread only, but for subscribe(), unSubscribe() and displayChanged().
/// Ownership: the screens stay the application's; DisplayStack tells whose their widgets are.
class DisplayPrivate : public DisplayPrivateIfc {
public:
    static constexpr int SystemWindowLines = 6;

    /// `name` and `area` have no effect. The factory becomes the display's; null is the ordinary one.
    DisplayPrivate(std::string applicationName, bool server, std::string name, std::string softwareType,
        std::string locale, std::string dateFormat, std::string timeFormat, Rect* area,
        ContentWidgetFactoryIfc* factory);

    /// Gives the screens their widgets back, so that they may be deleted afterwards.
    ~DisplayPrivate() override;
    DisplayPrivate(const DisplayPrivate&) = delete;
    DisplayPrivate& operator=(const DisplayPrivate&) = delete;

    /// Takes a screen off that is being deleted, without a notice and without showing another one. It has left the
    /// registry by then, and its private still lives.
    void forget(Displayable* displayable);

    // Screens

    void setCurrent(Displayable* displayable) override;
    Displayable* getCurrent() override;
    void exec() override;
    void shutdown() override;
    void show() override;
    void hide() override;

    /// Tells the current screen that it has lost the focus, and gives its widget back; the stack stays.
    void removeOldCurrent();
    bool execFinished() const { return mExecFinished; }
    ContentWidgetIfc* getContentWidget() const { return mContent.get(); }

    // Screen text

    std::string serialise() override;
    std::string serialiseByRect(const std::vector<Rect>& rects, std::string statusStr) override;

    /// For each screen of the stack, bottom first, what the screens above leave of it. Parent coordinates.
    std::vector<std::vector<Rect>> findVisibleRects();

    // Notices

    /// Threads: any, for these three. The lock is held while the subscriber runs; it is re-entrant, so the
    /// subscriber may read the screen text and may unsubscribe.
    void subscribe(DisplayEventIfc* listener) override;
    void unSubscribe() override;
    void displayChanged() override;

    void widgetDismissed(DisplayablePrivateIfc* displayable) override;

    /// Gives the notice of a dismissal, once the screen below is back: the screen that was dismissed asks for it.
    void tellOfDismissal();

    // Locale and formats

    void localeChanged(std::string locale) override;
    void skinChanged(std::string) override { }
    void dateFormatChanged(std::string format) override;
    void timeFormatChanged(std::string format) override;

    Rect* getDisplayArea() override { return mDisplayArea.get(); }
    void setMaximised(bool) override { }
    void createServerDisplay(Displayable* displayable) override;
    void setTranslator(TranslatorIfc* translator) override;
    std::vector<Rect>* getDisplayedRects() override;

    // System window

    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, std::string text) override;
    void setSystemWindowTop(int top) override;
    void setAndUpdateHeadSetIcon(bool on) override;
    void setAndUpdateSpeakerIcon(bool on) override;
    void setAndUpdateMuteIcon(bool on) override;
    void showTimeInSystemWindow(bool shown) override;
    void setTimeInSystemWindow(int hours, int minutes, int seconds) override;
    void setTimer(std::string time) override;
    void stopTimer() override;
    void setSoftwareType(const std::string& softwareType) override;

    /// Marks the lines as written when another screen has become current since the last call.
    void clearSWfromDisplayable();

    // Status, volume, clipboard

    void copy(const std::string& text) override { mClipboard = text; }
    std::string paste() override { return mClipboard; }
    void setStatusMessage(const std::string& text, unsigned int duration) override;
    void startTimer(std::string time) override;
    void showTimer() override;
    void hideTimer(bool hidden) override;
    void pauseTimer() override;
    void setPreviewVolume(unsigned int device, unsigned int value, unsigned int minimum, unsigned int maximum,
        unsigned int variant) override;
    int getEditingStatus() override { return 0; }

    // Function keys

    void setFPKLabel(int key, std::string label) override;
    void setFPKStatus(int key, int status) override;
    void shiftFPKLabel(int key) override;
    void shiftFPKBar(bool shifted) override;
    void setAlternateLabel(int key, const std::string& label) override;

    /// Tells every screen of the stack whether a status message covers the first line.
    void setStatusMessageAvailable(bool available) override;
    void showNotification(TranslationInfo*, Icons::IconType, bool, int, bool) override { }
    void showNotification(std::string, Icons::IconType, bool, int, bool) override { }
    void shiftChangeEventForCertainFPKey(bool shifted, int key) override;
    void callShowFPKBarMethodFromAdminPhonelet() override;
    void setRingerVolumeBarLimit(int limit) override { mRingerVolumeBarLimit = limit; }
    std::string dateFormat() override { return mDateFormat; }
    std::string timeFormat() override { return mTimeFormat; }
    void showFPKBar();

private:
    void createContentWidget();
    void cleanup();
    void darken();
    void hideContentWidget();

    // Screen text

    bool hasSubscriber();
    std::string serialiseScreens(const std::vector<Rect>& rects);
    std::string serialiseStatusMessage() const;
    void appendVolumeIndicator(std::string& text) const;
    void appendFPKBar(std::string& text) const;
    std::string serialiseSystemWindow(const std::string& content, const std::string& statusPart);

    /// The second line of the system window as it is written; empty if it isn't.
    std::string secondLineText(const std::string& content);

    // System window

    void showSW(int lines);

    Semaphore mListenerLock{Semaphore::AVAILABLE, 1, true};
    Living<DisplayEventIfc> mDisplayChangeListener GUARDED_BY(mListenerLock);
    bool mOwesNotice GUARDED_BY(mListenerLock) = false; // of a screen that has left, until any notice is given

    DisplayStack mStack{*this};
    bool mIsStacking;
    bool mExecFinished = false;

    std::string mLocale;
    std::string mDateFormat;
    std::string mTimeFormat;
    std::unique_ptr<Rect> mDisplayArea;
    std::unique_ptr<ContentWidgetFactoryIfc> mFactory;
    std::unique_ptr<ContentWidgetIfc> mContent;
    VisibleRectMonitor mRectMonitor;

    bool mIsSystemWindowCollapsed = false;
    std::array<bool, SystemWindowLines> mIsLineChanged{}; // written since the last change of size
    std::string mStatusKey;                               // not empty only during serialiseByRect()
    std::string mClipboard;
    UPointer<StatusMessageMEG> mStatusMessage; // these two are deleted here, unless the tree has done so
    UPointer<VolumeIndicatorMEG> mVolumeIndicator;
    int mRingerVolumeBarLimit = 1;
};

}

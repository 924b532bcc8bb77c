#pragma once

#include "ContentWidgetIfc.h"

#include <Types.h>

#include <memory>

class SystemWindow;

namespace DisplayAPI {

/// The content of this telephone's display.
///
/// The system window exists on software type 1, the function key bar in the call view of a telephone with three
/// display lines. An operation on what does not exist does nothing and answers 0 or an empty text.
/// Threads: GUI thread only.
/// Ownership: it owns root, system window and key bar, and the root deletes the screens that are still in it.
class ContentWidget : public ContentWidgetIfc, public GUIEventIfc {
public:
    ContentWidget();
    ~ContentWidget() override;

    // Geometry: the screen's own, so that most of it does nothing

    void setGeometry(const URect&) override { }
    void show() override { }
    void hide() override { }
    void showMaximized() override { }
    void move(int, int) override { }
    void raise() override { }
    void activateWindow() override { }
    int width() override;
    int height() override;
    UWidget* getUWidget() override { return mRoot.get(); }

    // System window

    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, std::string text, std::string key) override;
    int setSystemWindowTop(int, bool, bool) override { return 0; }
    void showTimeInSystemWindow(bool shown) override;
    void setTimeInSystemWindow(int hours, int minutes, int seconds) override;
    int getSystemWindowTimeToNextUpdate() override;
    void setAndUpdateHeadSetIcon(bool on) override;
    void setAndUpdateSpeakerIcon(bool on) override;
    void setAndUpdateMuteIcon(bool on) override;
    void setTimer(std::string time) override;
    void stopTimer() override;
    void setSWCurrentNumLines(int lines) override;
    int getSWCurrentNumLines() override { return mCurrentLines; }
    std::string getSystemWindowText(int line, std::string key) override;
    void setParent(DisplayPrivate* parent) override { mParent = parent; }
    DisplayPrivate* getParent() override { return mParent; }
    void startTimer(std::string time) override;
    void showTimer() override;
    void hideTimer(bool hidden) override;
    void pauseTimer() override;

    /// Shows the lines of the system window, or leaves the glass to the screens.
    void showLine(bool shown);
    SystemWindow* getSystemWindow();

    // Function key bar

    void showFPKBar() override;
    FPKBarMEG* getFPKBar() override { return mFPKBar.get(); }
    void setFPKLabel(int key, std::string label) override;
    void setFPKStatus(int key, int status) override;
    void shiftFPKLabel(int key) override;
    void shiftFPKBar(bool shifted) override;
    void setAlternateLabel(int key, const std::string& label) override;
    void shiftChangeEventForCertainFPKey(bool shifted, int key) override;
    void callShowFPKBarMethodFromAdminPhonelet() override;

    // Keys and changes

    bool setEventHandler(GUIEventIfc*) override { return false; }
    bool onLeft(const UKeyEvent*) override { return false; }
    bool onRight(const UKeyEvent*) override { return false; }
    bool onUp(const UKeyEvent*) override { return false; }
    bool onDown(const UKeyEvent*) override { return false; }
    bool onOK(const UKeyEvent*) override { return false; }
    using GUIEventIfc::onChange;

    /// Writes a text into the first line of the system window and tells the display.
    bool onChange(const UEvent* event, std::string text, std::string key);

private:
    struct Release {
        void operator()(SystemWindow* window) const;
    };

    /// The system window while the software type has one, else null.
    SystemWindow* systemWindow() const;

    std::unique_ptr<UWidget> mRoot;
    std::unique_ptr<SystemWindow, Release> mSystemWindow;
    std::unique_ptr<FPKBarMEG> mFPKBar;
    int mCurrentLines = 0;
    DisplayPrivate* mParent = nullptr;
};

}

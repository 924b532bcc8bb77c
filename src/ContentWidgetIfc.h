#pragma once

#include <string>

class FPKBarMEG;
class GUIEventIfc;
class UKeyEvent;
class URect;
class UWidget;

namespace DisplayAPI {

class DisplayPrivate;

/// What a display shows its screens on: the widget that they become children of, with the system window and the
/// function key bar around it. Threads: GUI thread only.
class ContentWidgetIfc {
public:
    virtual ~ContentWidgetIfc() = default;

    // Geometry

    virtual void setGeometry(const URect& rect) = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void showMaximized() = 0;
    virtual void move(int left, int top) = 0;
    virtual void raise() = 0;
    virtual void activateWindow() = 0;
    virtual int width() = 0;
    virtual int height() = 0;

    /// The parent of all screens.
    virtual UWidget* getUWidget() = 0;

    // System window

    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, std::string text, std::string key) = 0;
    virtual int setSystemWindowTop(int top, bool isFirstVariant, bool flag) = 0;
    virtual void showTimeInSystemWindow(bool shown) = 0;
    virtual void setTimeInSystemWindow(int hours, int minutes, int seconds) = 0;

    /// The milliseconds until the system window changes by itself, 0 if it won't.
    virtual int getSystemWindowTimeToNextUpdate() = 0;
    virtual void setAndUpdateHeadSetIcon(bool on) = 0;
    virtual void setAndUpdateSpeakerIcon(bool on) = 0;
    virtual void setAndUpdateMuteIcon(bool on) = 0;
    virtual void setTimer(std::string time) = 0;
    virtual void stopTimer() = 0;
    virtual void setSWCurrentNumLines(int lines) = 0;

    /// The number that setSWCurrentNumLines() was last given, whether there is a system window or not.
    virtual int getSWCurrentNumLines() = 0;
    virtual std::string getSystemWindowText(int line, std::string key) = 0;

    virtual void setParent(DisplayPrivate* parent) = 0;
    virtual DisplayPrivate* getParent() = 0;
    virtual void startTimer(std::string time) = 0;
    virtual void showTimer() = 0;
    virtual void hideTimer(bool hidden) = 0;
    virtual void pauseTimer() = 0;

    // Function key bar

    virtual void showFPKBar() = 0;

    /// Null on a telephone without function keys.
    virtual FPKBarMEG* getFPKBar() = 0;
    virtual void setFPKLabel(int key, std::string label) = 0;
    virtual void setFPKStatus(int key, int status) = 0;
    virtual void shiftFPKLabel(int key) = 0;
    virtual void shiftFPKBar(bool shifted) = 0;
    virtual void setAlternateLabel(int key, const std::string& label) = 0;
    virtual void shiftChangeEventForCertainFPKey(bool shifted, int key) = 0;
    virtual void callShowFPKBarMethodFromAdminPhonelet() = 0;

    // Keys: they go to the widget in focus and pass the content by

    virtual bool setEventHandler(GUIEventIfc* handler) = 0;
    virtual bool onLeft(const UKeyEvent* key) = 0;
    virtual bool onRight(const UKeyEvent* key) = 0;
    virtual bool onUp(const UKeyEvent* key) = 0;
    virtual bool onDown(const UKeyEvent* key) = 0;
    virtual bool onOK(const UKeyEvent* key) = 0;
};

}

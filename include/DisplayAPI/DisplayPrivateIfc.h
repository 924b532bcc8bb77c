#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/Icons.h>
#include <DisplayAPI/Numbered.h>

#include <Rect.h>

#include <string>
#include <vector>

class TranslationInfo;
class TranslatorIfc;

namespace DisplayAPI {

class DisplayablePrivateIfc;
class Displayable;
class DisplayEventIfc;

/// The display as its handle and its screens see it. Threads: GUI thread only, but for subscribe(),
/// unSubscribe() and displayChanged().
class DISPLAYAPI_EXPORT DisplayPrivateIfc : public Numbered<DisplayPrivateIfc> {
public:
    virtual ~DisplayPrivateIfc() = default;

    virtual void setCurrent(Displayable* displayable) = 0;
    virtual Displayable* getCurrent() = 0;
    virtual void exec() = 0;
    virtual void shutdown() = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual std::string serialise() = 0;
    virtual std::string serialiseByRect(const std::vector<Rect>& rects, std::string statusStr) = 0;
    virtual void subscribe(DisplayEventIfc* listener) = 0;
    virtual void unSubscribe() = 0;
    virtual void displayChanged() = 0;
    virtual void widgetDismissed(DisplayablePrivateIfc* displayable) = 0;
    virtual void localeChanged(std::string locale) = 0;
    virtual void skinChanged(std::string skin) = 0;
    virtual void dateFormatChanged(std::string format) = 0;
    virtual void timeFormatChanged(std::string format) = 0;
    virtual Rect* getDisplayArea() = 0;
    virtual void setMaximised(bool maximised) = 0;
    virtual void createServerDisplay(Displayable* displayable) = 0;
    virtual void setTranslator(TranslatorIfc* translator) = 0;
    virtual std::vector<Rect>* getDisplayedRects() = 0;
    virtual void setSystemWindowSize(int lines) = 0;
    virtual void setSystemWindowText(int line, std::string text) = 0;
    virtual void setSystemWindowTop(int top) = 0;
    virtual void setAndUpdateHeadSetIcon(bool on) = 0;
    virtual void setAndUpdateSpeakerIcon(bool on) = 0;
    virtual void setAndUpdateMuteIcon(bool on) = 0;
    virtual void showTimeInSystemWindow(bool shown) = 0;
    virtual void setTimeInSystemWindow(int hours, int minutes, int seconds) = 0;
    virtual void setTimer(std::string time) = 0;
    virtual void stopTimer() = 0;
    virtual void setSoftwareType(const std::string& softwareType) = 0;
    virtual void copy(const std::string& text) = 0;
    virtual std::string paste() = 0;
    virtual void setStatusMessage(const std::string& text, unsigned int duration) = 0;
    virtual void startTimer(std::string time) = 0;
    virtual void showTimer() = 0;
    virtual void hideTimer(bool hidden) = 0;
    virtual void pauseTimer() = 0;
    virtual void setPreviewVolume(
        unsigned int device, unsigned int a, unsigned int b, unsigned int c, unsigned int variant)
        = 0;
    virtual int getEditingStatus() = 0;
    virtual void setFPKLabel(int key, std::string label) = 0;
    virtual void setFPKStatus(int key, int status) = 0;
    virtual void shiftFPKLabel(int key) = 0;
    virtual void shiftFPKBar(bool shifted) = 0;
    virtual void setAlternateLabel(int key, const std::string& label) = 0;
    virtual void setStatusMessageAvailable(bool available) = 0;
    virtual void showNotification(TranslationInfo* text, Icons::IconType icon, bool first, int duration, bool second)
        = 0;
    virtual void showNotification(std::string text, Icons::IconType icon, bool first, int duration, bool second) = 0;
    virtual void shiftChangeEventForCertainFPKey(bool shifted, int key) = 0;
    virtual void callShowFPKBarMethodFromAdminPhonelet() = 0;
    virtual void setRingerVolumeBarLimit(int limit) = 0;
    virtual std::string dateFormat() = 0;
    virtual std::string timeFormat() = 0;
};

}

#include "DisplayPrivate.h"

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include "ContentWidgetIfc.h"
#include "CurrentApplication.h"
#include "Road.h"
#include "TranslationHolder.h"

#include <StatusVolumeMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>

namespace DisplayAPI {

namespace {

constexpr unsigned int RingerDevice = 3;

VolumeIndicatorMEG::VolumePreviewIconType volumeIcon(unsigned int device, unsigned int variant)
{
    switch (device) {
    case VolumeIndicatorMEG::Handset: return VolumeIndicatorMEG::Handset;
    case VolumeIndicatorMEG::Headset: return VolumeIndicatorMEG::Headset;
    case VolumeIndicatorMEG::Speaker: return VolumeIndicatorMEG::Speaker;
    case RingerDevice: return variant == 1 ? VolumeIndicatorMEG::RingerOff : VolumeIndicatorMEG::Ringer;
    default: return VolumeIndicatorMEG::Volume;
    }
}

/// The labels of the rows that lists have of their own exist on every hardware but variant 1.
void refreshListTexts(TranslatorIfc* translator)
{
    if (!translator || !VantoUApplication::getCurrentApplication() || currentHardwareVariant() == 1)
        return;
    VantoListBoxMEG::setBackText(backText(translator));
    VantoListBoxMEG::setDeleteText(deleteText(translator));
}

}

// Locale and formats

void DisplayPrivate::localeChanged(std::string locale)
{
    mLocale = std::move(locale);
    deleteKeptHalves();
    refreshListTexts(DisplayablePrivate::commonTranslator);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->setLocale(mLocale);
}

void DisplayPrivate::setTranslator(TranslatorIfc* translator)
{
    DisplayablePrivate::commonTranslator = translator;
    refreshListTexts(translator);
}

void DisplayPrivate::dateFormatChanged(std::string format)
{
    mDateFormat = std::move(format);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->setDateFormat(mDateFormat);
}

void DisplayPrivate::timeFormatChanged(std::string format)
{
    mTimeFormat = std::move(format);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->setTimeFormat(mTimeFormat);
}

void DisplayPrivate::setSoftwareType(const std::string& softwareType)
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->setSoftwareType(static_cast<VantoUApplication::SoftwareType>(softwareTypeNumber(softwareType)));
}

// System window

void DisplayPrivate::setSystemWindowText(int line, std::string text)
{
    if (!mStack.isVisible() || line < 0 || line >= SystemWindowLines)
        return;
    if (text.empty())
        mContent->setSystemWindowText(line, " ", "");
    else
        mContent->setSystemWindowText(line, std::move(text), mStatusKey);
    mIsLineChanged[static_cast<std::size_t>(line)] = true;
}

void DisplayPrivate::setSystemWindowSize(int lines)
{
    if (!mStack.isVisible())
        return;
    if (lines == 0)
        mIsSystemWindowCollapsed = true;
    else if (mContent->getSWCurrentNumLines() <= lines)
        mIsSystemWindowCollapsed = false;
    std::fill(mIsLineChanged.begin() + std::clamp(lines, 0, SystemWindowLines), mIsLineChanged.end(), false);
    mContent->setSWCurrentNumLines(lines);
    showSW(lines);
}

void DisplayPrivate::showSW(int lines)
{
    if (lines > SystemWindowLines || !isSoftwareQvt() || !mStack.current())
        return;
    if (currentHardwareVariant() == 0 && lines >= 1 && mStack.isVisible() && mIsLineChanged[1]) {
        mContent->setSystemWindowText(1, mContent->getSystemWindowText(1, mStatusKey), mStatusKey);
        mIsLineChanged[1] = false;
    }
    displayChanged();
}

void DisplayPrivate::clearSWfromDisplayable()
{
    const Displayable* previous = mStack.previousCurrent();
    const Displayable* current = mStack.current();
    if (previous && previous != current) {
        // The dialer takes the idle screen's lines over.
        const bool isDialing
            = previous->widgetName() == "IdleDisplay" && current && current->widgetName() == "PopupDialer";
        const int lines = std::clamp(mContent->getSWCurrentNumLines(), 0, SystemWindowLines);
        if (!isDialing)
            std::fill_n(mIsLineChanged.begin(), lines, true);
    }
    mStack.markCurrent();
}

void DisplayPrivate::setSystemWindowTop(int top)
{
    const int variant = currentHardwareVariant();
    mContent->setSystemWindowTop(variant == 0 ? 0 : top, variant == 1, false);
}

void DisplayPrivate::setAndUpdateHeadSetIcon(bool on)
{
    mContent->setAndUpdateHeadSetIcon(on);
}

void DisplayPrivate::setAndUpdateSpeakerIcon(bool on)
{
    mContent->setAndUpdateSpeakerIcon(on);
}

void DisplayPrivate::setAndUpdateMuteIcon(bool on)
{
    mContent->setAndUpdateMuteIcon(on);
}

void DisplayPrivate::showTimeInSystemWindow(bool shown)
{
    mContent->showTimeInSystemWindow(shown);
    displayChanged();
}

void DisplayPrivate::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    mContent->setTimeInSystemWindow(hours, minutes, seconds);
    displayChanged();
}

void DisplayPrivate::setTimer(std::string time)
{
    mContent->setTimer(std::move(time));
    displayChanged();
}

void DisplayPrivate::startTimer(std::string time)
{
    mContent->startTimer(std::move(time));
}

void DisplayPrivate::stopTimer()
{
    mContent->stopTimer();
    displayChanged();
}

void DisplayPrivate::showTimer()
{
    mContent->showTimer();
    displayChanged();
}

void DisplayPrivate::hideTimer(bool hidden)
{
    mContent->hideTimer(hidden);
    displayChanged();
}

void DisplayPrivate::pauseTimer()
{
    mContent->pauseTimer();
    displayChanged();
}

// Status and volume

void DisplayPrivate::setStatusMessage(const std::string& text, unsigned int duration)
{
    if (text.empty()) {
        delete mStatusMessage.get();
        setStatusMessageAvailable(false);
        return;
    }
    if (!mStatusMessage || mStatusMessage->text() != text) {
        // The subtraction may wrap around: the message takes it back, and changes in step with the system window.
        const auto untilUpdate = static_cast<unsigned int>(mContent->getSystemWindowTimeToNextUpdate());
        const unsigned int start = duration - untilUpdate;
        delete mStatusMessage.get();
        mStatusMessage = new StatusMessageMEG(text, start, duration);
        mContent->getUWidget()->addWidget(mStatusMessage.get());
    }
    setStatusMessageAvailable(true);
}

void DisplayPrivate::setStatusMessageAvailable(bool available)
{
    mStack.forEach([available](const StackScreen& screen) { screen.widget().setStatusMessageAvailable(available); });
}

void DisplayPrivate::setPreviewVolume(
    unsigned int device, unsigned int value, unsigned int minimum, unsigned int maximum, unsigned int variant)
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
    const auto icon = volumeIcon(device, variant);
    if (mVolumeIndicator) {
        mVolumeIndicator->setVolume(value, minimum, maximum);
        mVolumeIndicator->createIcon(icon);
    } else {
        mVolumeIndicator = new VolumeIndicatorMEG(icon, value, minimum, maximum);
    }
    mVolumeIndicator->setRingerVolumeBarLimit(device == RingerDevice ? mRingerVolumeBarLimit : 1);
    mVolumeIndicator->refresh();
    if (mStack.isVisible())
        mContent->getUWidget()->addWidget(mVolumeIndicator.get());
}

// Function keys

void DisplayPrivate::setFPKLabel(int key, std::string label)
{
    mContent->setFPKLabel(key, std::move(label));
}

void DisplayPrivate::setFPKStatus(int key, int status)
{
    mContent->setFPKStatus(key, status);
}

void DisplayPrivate::shiftFPKLabel(int key)
{
    mContent->shiftFPKLabel(key);
}

void DisplayPrivate::shiftFPKBar(bool shifted)
{
    mContent->shiftFPKBar(shifted);
}

void DisplayPrivate::setAlternateLabel(int key, const std::string& label)
{
    mContent->setAlternateLabel(key, label);
}

void DisplayPrivate::shiftChangeEventForCertainFPKey(bool shifted, int key)
{
    mContent->shiftChangeEventForCertainFPKey(shifted, key);
}

void DisplayPrivate::callShowFPKBarMethodFromAdminPhonelet()
{
    mContent->callShowFPKBarMethodFromAdminPhonelet();
}

void DisplayPrivate::showFPKBar()
{
    mContent->showFPKBar();
}

}

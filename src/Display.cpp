#include <DisplayAPI/Display.h>
#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/DisplayRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include "AnswerWait.h"
#include "DisplayPrivate.h"
#include "GuiThread.h"
#include "LivingSet.h"
#include "Road.h"

#include <Semaphore.h>

#include <cstdlib>
#include <functional>

namespace DisplayAPI {

namespace {

using Event = DisplayRequestEvent;

constexpr std::size_t TimeLength = 8; // hh:mm:ss

/// The number in two characters of a time; 0 where they are missing or no digits.
int twoDigits(const std::string& time, std::size_t position)
{
    return position < time.size() ? std::atoi(time.substr(position, 2).c_str()) : 0;
}

// Never destroyed: threads may post to a display while the process ends.
LivingSet<Display>& livingHandles()
{
    static LivingSet<Display>& instance = *new LivingSet<Display>;
    return instance;
}

}

/// Where a screen text goes from the GUI thread to the one that asked for it.
struct Display::TextHandover {
    Semaphore lock{Semaphore::AVAILABLE, 1};
    std::string text;
};

/// The road of the display's operations to its half on the GUI thread, as DisplayAPI::Road is that of the handles:
/// there it answers the half; elsewhere it posts the request, waits until it has run, and answers null.
struct Display::Road {
    template <typename... Slots>
    static DisplayPrivateIfc* wait(Display* display, Event::DisplayRequests request, const Slots&... slots)
    {
        if (Widget::isGuiThread())
            return display->mPrivate.get();
        display->postEvent(new Event(display, request, slots...));
        return nullptr;
    }

    template <typename T>
    static DisplayPrivateIfc* wait(Display* display, Event::DisplayRequests request, RequestResult<T> result)
    {
        if (Widget::isGuiThread())
            return display->mPrivate.get();
        auto* event = new Event(display, request);
        setResult(*event, &result.variable);
        display->postEvent(event);
        return nullptr;
    }

private:
    static void setResult(Event& event, Displayable** current) { event.setCurrentDisplayable(current); }
    static void setResult(Event& event, std::string* text) { event.setStringReturnValue(text); }
    static void setResult(Event& event, std::vector<Rect>** rects)
    {
        static thread_local std::vector<Rect> copy;
        event.setDisplayedRectsCopy(&copy);
        event.setDisplayedRectsReturnValue(rects);
    }
};

Display::Display(
    std::string name, std::string locale, std::string dateFormat, std::string timeFormat, bool server, Rect* area)
    : Display("", std::move(name), PhysDefs::hardwareSubVariant{}, "softwareUnknown", std::move(locale),
        std::move(dateFormat), std::move(timeFormat), server, area, false)
{
}

Display::Display(std::string name, std::string softwareType, std::string locale, std::string dateFormat,
    std::string timeFormat, bool server, Rect* area)
    : Display("", std::move(name), PhysDefs::hardwareSubVariant{}, std::move(softwareType), std::move(locale),
        std::move(dateFormat), std::move(timeFormat), server, area, false)
{
}

Display::Display(std::string applicationName, std::string name, PhysDefs::hardwareSubVariant, std::string softwareType,
    std::string locale, std::string dateFormat, std::string timeFormat, bool server, Rect* area, bool)
    : mDisplayName(name)
    , mSoftwareType(softwareType)
{
    // First, since a display that follows another one may reach screens from before, which ask for the thread.
    Widget::setGuiThreadId();
    init(new DisplayPrivate(std::move(applicationName), server, std::move(name), std::move(softwareType),
        std::move(locale), std::move(dateFormat), std::move(timeFormat), area, nullptr));
}

Display::~Display()
{
    livingHandles().remove(this);
    // First let everybody go who still waits for this display.
    if (mApplication && mApplication == VantoUApplication::getCurrentApplication())
        mApplication->closeEventQueue();
}

void Display::init(DisplayPrivateIfc* displayPrivate)
{
    livingHandles().add(this);
    mApplication = VantoUApplication::getCurrentApplication();
    mPrivate.reset(displayPrivate);
    mHandover = std::make_shared<TextHandover>();
}

bool Display::postEvent(DisplayRequestEvent* event)
{
    WaitingRequest waiting(&typeid(Display), event->getType());
    Semaphore completion(Semaphore::NOT_AVAILABLE, 1);
    event->setSemaphore(&completion);
    postToApplication(event);
    return awaitAnswer(completion, waiting);
}

// Screens

void Display::setCurrent(Displayable* displayable)
{
    if (auto* half = Road::wait(this, Event::SetCurrent, displayable))
        half->setCurrent(displayable);
}

void Display::setCurrent(const std::vector<Displayable*>& displayables)
{
    for (Displayable* displayable : displayables)
        setCurrent(displayable);
}

Displayable* Display::getCurrent()
{
    Displayable* current = nullptr;
    if (auto* half = Road::wait(this, Event::GetCurrent, result(current)))
        current = half->getCurrent();
    return current;
}

std::vector<Displayable*> Display::getCurrentWidgets()
{
    if (Displayable* current = getCurrent())
        return {current};
    return {};
}

void Display::show()
{
    if (auto* half = Road::wait(this, Event::Show))
        half->show();
}

void Display::hide()
{
    if (auto* half = Road::wait(this, Event::Hide))
        half->hide();
}

void Display::createServerDisplay(Displayable* displayable)
{
    if (auto* half = Road::wait(this, Event::CreateServerDisplay, displayable))
        half->createServerDisplay(displayable);
}

void Display::setMaximised(bool maximised)
{
    if (auto* half = Road::wait(this, Event::SetMaximised, maximised))
        half->setMaximised(maximised);
}

// Loop

void Display::exec()
{
    mPrivate->exec();
}

void Display::shutdown()
{
    if (auto* half = Road::wait(this, Event::Shutdown))
        half->shutdown();
}

// Screen text

std::string Display::serialise()
{
    if (Widget::isGuiThread())
        return mPrivate->serialise();
    return fetchText(new Event(this, Event::Serialise));
}

std::string Display::serialiseByRect(const std::vector<Rect>& rects, std::string statusStr)
{
    if (Widget::isGuiThread())
        return mPrivate->serialiseByRect(rects, std::move(statusStr));
    return fetchText(new Event(this, Event::SerialiseByRect, rects, statusStr));
}

std::string Display::fetchText(DisplayRequestEvent* event)
{
    // Kept here: once the request has run, the display may go before this thread runs again.
    const std::shared_ptr<TextHandover> handover = mHandover;
    if (!postEvent(event))
        return {};
    // The handler has taken the lock for this thread, so that no other text replaces this one.
    struct Guard {
        ~Guard() { lock.give(); }
        Semaphore& lock;
    } guard{handover->lock};
    return handover->text;
}

std::vector<Rect>* Display::getDisplayedRects()
{
    std::vector<Rect>* rects = nullptr;
    if (auto* half = Road::wait(this, Event::GetDisplayedRects, result(rects)))
        rects = half->getDisplayedRects();
    return rects;
}

// Locale and formats

void Display::localeChanged(std::string locale)
{
    if (auto* half = Road::wait(this, Event::LocaleChanged, locale))
        half->localeChanged(std::move(locale));
}

void Display::dateFormatChanged(std::string format)
{
    if (auto* half = Road::wait(this, Event::DateFormatChanged, format))
        half->dateFormatChanged(std::move(format));
}

void Display::timeFormatChanged(std::string format)
{
    if (auto* half = Road::wait(this, Event::TimeFormatChanged, format))
        half->timeFormatChanged(std::move(format));
}

void Display::setSoftwareType(const std::string& softwareType)
{
    if (auto* half = Road::wait(this, Event::SetSoftwareType, softwareType))
        half->setSoftwareType(softwareType);
}

// System window

void Display::setSystemWindowSize(int lines)
{
    if (auto* half = Road::wait(this, Event::SetSystemWindowSize, lines))
        half->setSystemWindowSize(lines);
}

void Display::setSystemWindowText(int line, std::string text)
{
    if (auto* half = Road::wait(this, Event::SetSystemWindowText, line, text))
        half->setSystemWindowText(line, std::move(text));
}

void Display::setSystemWindowTop(int top)
{
    if (auto* half = Road::wait(this, Event::SetSystemWindowTop, top))
        half->setSystemWindowTop(top);
}

void Display::showTimeInSystemWindow(bool shown)
{
    if (auto* half = Road::wait(this, Event::ShowTimeInSystemWindow, shown))
        half->showTimeInSystemWindow(shown);
}

void Display::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    // The request carries the time as text. Numbers over two digits don't fit and are cut.
    char buffer[TimeLength + 1];
    snprintf(buffer, sizeof buffer, "%02d:%02d:%02d", hours, minutes, seconds);
    if (auto* half = Road::wait(this, Event::SetTimeInSystemWindow, std::string(buffer)))
        half->setTimeInSystemWindow(hours, minutes, seconds);
}

void Display::setTimer(std::string time)
{
    if (auto* half = Road::wait(this, Event::SetTimer, time.substr(0, TimeLength)))
        half->setTimer(std::move(time));
}

void Display::startTimer(std::string time)
{
    if (auto* half = Road::wait(this, Event::StartTimer, time.substr(0, TimeLength)))
        half->startTimer(std::move(time));
}

void Display::stopTimer()
{
    if (auto* half = Road::wait(this, Event::StopTimer))
        half->stopTimer();
}

void Display::showTimer()
{
    if (auto* half = Road::wait(this, Event::ShowTimer))
        half->showTimer();
}

void Display::hideTimer(bool hidden)
{
    if (auto* half = Road::wait(this, Event::HideTimer, hidden))
        half->hideTimer(hidden);
}

void Display::pauseTimer()
{
    if (auto* half = Road::wait(this, Event::PauseTimer))
        half->pauseTimer();
}

// Status, volume, clipboard

void Display::setStatusMessage(const std::string& text, unsigned int duration)
{
    if (auto* half = Road::wait(this, Event::SetStatusMessage, static_cast<int>(duration), text))
        half->setStatusMessage(text, duration);
}

void Display::setStatusMessageAvailable(bool available)
{
    if (auto* half = Road::wait(this, Event::SetStatusMessageAvailable, available))
        half->setStatusMessageAvailable(available);
}

void Display::setPreviewVolume(
    unsigned int device, unsigned int value, unsigned int minimum, unsigned int maximum, unsigned int variant)
{
    if (auto* half = Road::wait(this, Event::SetPreviewVolume, device, value, minimum, maximum, variant))
        half->setPreviewVolume(device, value, minimum, maximum, variant);
}

void Display::setRingerVolumeBarLimit(int limit)
{
    if (auto* half = Road::wait(this, Event::SetRingerVolumeBarLimit, limit))
        half->setRingerVolumeBarLimit(limit);
}

void Display::copy(const std::string& text)
{
    if (auto* half = Road::wait(this, Event::Copy, text))
        half->copy(text);
}

std::string Display::paste()
{
    std::string text;
    if (auto* half = Road::wait(this, Event::Paste, result(text)))
        text = half->paste();
    return text;
}

// Function keys

void Display::setFPKLabel(int key, const std::string& label)
{
    if (auto* half = Road::wait(this, Event::SetFPKLabel, key, label))
        half->setFPKLabel(key, label);
}

void Display::setFPKStatus(int key, int status)
{
    if (auto* half
        = Road::wait(this, Event::SetFPKStatus, static_cast<unsigned int>(key), static_cast<unsigned int>(status), 0U))
        half->setFPKStatus(key, status);
}

void Display::shiftFPKLabel(int key)
{
    if (auto* half = Road::wait(this, Event::ShiftFPKLabel, key))
        half->shiftFPKLabel(key);
}

void Display::shiftFPKBar(bool shifted)
{
    if (auto* half = Road::wait(this, Event::ShiftFPKBar, shifted))
        half->shiftFPKBar(shifted);
}

void Display::setAlternateLabel(int key, const std::string& label)
{
    if (auto* half = Road::wait(this, Event::SetAlternateLabel, key, label))
        half->setAlternateLabel(key, label);
}

void Display::shiftChangeEventForCertainFPKey(bool shifted, int key)
{
    if (auto* half = Road::wait(this, Event::ShiftChangeEventForCertainFPKey, shifted, key))
        half->shiftChangeEventForCertainFPKey(shifted, key);
}

void Display::callShowFPKBarMethodFromAdminPhonelet()
{
    if (auto* half = Road::wait(this, Event::CallShowFPKBarMethodFromAdminPhonelet))
        half->callShowFPKBarMethodFromAdminPhonelet();
}

// The road of the requests

bool Display::exists(const Display* display)
{
    return display && livingHandles().contains(display);
}

void Display::processDisplayRequest(DisplayRequestEvent* event)
{
    if (!event)
        return;
    runRequest(*event);
    event->requestCompleted();
}

void Display::runRequest(DisplayRequestEvent& event)
{
    const std::string& text = event.getStringParam();
    const bool flag = event.getBoolParam();
    const int number = event.getIntParam();
    auto unsignedAt = [](int value) { return static_cast<unsigned int>(value); };

    switch (event.getType()) {
    case Event::Hide: hide(); break;
    case Event::Show: show(); break;
    case Event::SetCurrent: setCurrent(event.getDisplayable()); break;
    case Event::GetCurrent: answer(event.getCurrentDisplayable(), getCurrent()); break;
    case Event::Shutdown: shutdown(); break;
    case Event::LocaleChanged: localeChanged(text); break;
    case Event::DateFormatChanged: dateFormatChanged(text); break;
    case Event::TimeFormatChanged: timeFormatChanged(text); break;
    case Event::Serialise: storeText([this] { return serialise(); }); break;
    case Event::CreateServerDisplay: createServerDisplay(event.getDisplayable()); break;
    case Event::SetMaximised: setMaximised(flag); break;
    case Event::GetDisplayedRects: event.setDisplayedRects(getDisplayedRects()); break;
    case Event::SerialiseByRect:
        storeText([&] {
            const std::vector<Rect>* rects = event.getSerialisableRects();
            return serialiseByRect(rects ? *rects : std::vector<Rect>(), text);
        });
        break;
    case Event::Unassigned: break;
    case Event::SetSystemWindowSize: setSystemWindowSize(number); break;
    case Event::SetSystemWindowText: setSystemWindowText(number, text); break;
    case Event::SetSystemWindowTop: setSystemWindowTop(number); break;
    case Event::ShowTimeInSystemWindow: showTimeInSystemWindow(flag); break;
    case Event::SetTimeInSystemWindow:
        mPrivate->setTimeInSystemWindow(twoDigits(text, 0), twoDigits(text, 3), twoDigits(text, 6));
        break;
    case Event::SetTimer: mPrivate->setTimer(text); break;
    case Event::StopTimer: mPrivate->stopTimer(); break;
    case Event::SetSoftwareType: mPrivate->setSoftwareType(text); break;
    case Event::SetStatusMessage: mPrivate->setStatusMessage(text, unsignedAt(number)); break;
    case Event::Copy: copy(text); break;
    case Event::Paste:
        if (std::string* result = event.getStringReturnValue())
            *result = paste();
        break;
    case Event::StartTimer: mPrivate->startTimer(text); break;
    case Event::ShowTimer: mPrivate->showTimer(); break;
    case Event::HideTimer: mPrivate->hideTimer(flag); break;
    case Event::PauseTimer: mPrivate->pauseTimer(); break;
    case Event::SetPreviewVolume:
        mPrivate->setPreviewVolume(unsignedAt(number), unsignedAt(event.getIntParam2()),
            unsignedAt(event.getIntParam3()), unsignedAt(event.getIntParam4()), unsignedAt(event.getIntParam5()));
        break;
    case Event::SetFPKLabel: mPrivate->setFPKLabel(number, text); break;
    case Event::SetFPKStatus: mPrivate->setFPKStatus(number, event.getIntParam2()); break;
    case Event::ShiftFPKLabel: mPrivate->shiftFPKLabel(number); break;
    case Event::ShiftFPKBar: mPrivate->shiftFPKBar(flag); break;
    case Event::SetAlternateLabel: mPrivate->setAlternateLabel(number, text); break;
    case Event::SetStatusMessageAvailable: mPrivate->setStatusMessageAvailable(flag); break;
    case Event::ShiftChangeEventForCertainFPKey: mPrivate->shiftChangeEventForCertainFPKey(flag, number); break;
    case Event::CallShowFPKBarMethodFromAdminPhonelet: mPrivate->callShowFPKBarMethodFromAdminPhonelet(); break;
    case Event::SetRingerVolumeBarLimit: mPrivate->setRingerVolumeBarLimit(number); break;
    }
}

/// The caller gives the lock back, once it has its copy; unless there is no text to copy.
void Display::storeText(const std::function<std::string()>& read)
{
    mHandover->lock.take(-1);
    try {
        mHandover->text = read();
    } catch (...) {
        mHandover->lock.give();
        throw;
    }
}

// Without a request

Rect* Display::getDisplayArea()
{
    return mPrivate->getDisplayArea();
}

void Display::subscribe(DisplayEventIfc* listener)
{
    mPrivate->subscribe(listener);
}

void Display::unSubscribe()
{
    mPrivate->unSubscribe();
}

void Display::setTranslator(TranslatorIfc* translator)
{
    mPrivate->setTranslator(translator);
}

void Display::setAndUpdateHeadSetIcon(bool on)
{
    mPrivate->setAndUpdateHeadSetIcon(on);
}

void Display::setAndUpdateSpeakerIcon(bool on)
{
    mPrivate->setAndUpdateSpeakerIcon(on);
}

void Display::setAndUpdateMuteIcon(bool on)
{
    mPrivate->setAndUpdateMuteIcon(on);
}

int Display::getEditingStatus()
{
    return mPrivate->getEditingStatus();
}

// Without effect on this telephone

void Display::showNotification(TranslationInfo* text, Icons::IconType icon, bool first, int duration, bool second)
{
    if (mPrivate)
        mPrivate->showNotification(text, icon, first, duration, second);
}

void Display::showNotification(std::string text, Icons::IconType icon, bool first, int duration, bool second)
{
    if (mPrivate)
        mPrivate->showNotification(std::move(text), icon, first, duration, second);
}

void Display::addKeyboardCommandListener(CommandListener*) { }

void Display::removeKeyboardCommandListener() { }

void Display::enableKeypadEventSending() { }

void Display::disableKeypadEventSending() { }

void Display::setPopupMode(bool) { }

void Display::skinChanged(std::string) { }

void Display::timeHasChanged(std::string) { }

void Display::dateHasChanged(std::string) { }

void Display::keyboardLayoutChanged(std::string) { }

}

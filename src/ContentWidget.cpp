#include "ContentWidget.h"

#include "CurrentApplication.h"
#include "DisplayPrivate.h"

#include <FPKBarMEG.h>
#include <HardwareVersion.h>
#include <SystemWindow.h>
#include <UString.h>
#include <UWindowManager.h>

namespace DisplayAPI {

ContentWidget::ContentWidget()
    : mRoot(std::make_unique<UWidget>())
{
    const std::string name = currentApplicationName();
    if (name == "DesktopPhonelet")
        mRoot->setCoordinates(0, 0, 161, 15);
    else
        mRoot->setCoordinates(0, 0, 161, 30);
    UWindowManager::instance().setRoot(mRoot.get());
    if (isSoftwareQvt())
        mSystemWindow.reset(new SystemWindow);
    if (name == "CallViewPhonelet" && HardwareVersion::getDisplayLines() == 3)
        mFPKBar = std::make_unique<FPKBarMEG>();
}

ContentWidget::~ContentWidget()
{
    UWindowManager& windows = UWindowManager::instance();
    if (windows.root() == mRoot.get())
        windows.setRoot(nullptr);
}

void ContentWidget::Release::operator()(SystemWindow* window) const
{
    window->release();
}

SystemWindow* ContentWidget::systemWindow() const
{
    return isSoftwareQvt() ? mSystemWindow.get() : nullptr;
}

int ContentWidget::width()
{
    return mRoot->getRect().width();
}

int ContentWidget::height()
{
    return mRoot->getRect().height();
}

// System window

void ContentWidget::setSystemWindowSize(int lines)
{
    if (SystemWindow* window = systemWindow())
        window->setSystemWindowSize(lines);
}

void ContentWidget::setSystemWindowText(int line, std::string text, std::string key)
{
    if (SystemWindow* window = systemWindow())
        window->setSystemWindowText(line, text, key);
}

std::string ContentWidget::getSystemWindowText(int line, std::string key)
{
    if (const SystemWindow* window = systemWindow())
        return window->getSystemWindowText(line, key);
    return {};
}

int ContentWidget::getSystemWindowTimeToNextUpdate()
{
    const SystemWindow* window = systemWindow();
    return window ? window->getTimeToNextUpdate() : 0;
}

void ContentWidget::setSWCurrentNumLines(int lines)
{
    mCurrentLines = lines;
    setSystemWindowSize(lines);
}

void ContentWidget::showTimeInSystemWindow(bool shown)
{
    if (SystemWindow* window = systemWindow())
        window->showTime(shown);
}

void ContentWidget::setTimeInSystemWindow(int hours, int minutes, int seconds)
{
    if (SystemWindow* window = systemWindow())
        window->setTime(hours, minutes, seconds);
}

void ContentWidget::setTimer(std::string time)
{
    if (SystemWindow* window = systemWindow())
        window->setTimer(time);
}

void ContentWidget::startTimer(std::string time)
{
    if (SystemWindow* window = systemWindow())
        window->startTimer(time);
}

void ContentWidget::stopTimer()
{
    if (SystemWindow* window = systemWindow())
        window->stopTimer();
}

void ContentWidget::showTimer()
{
    if (SystemWindow* window = systemWindow())
        window->showTimer();
}

void ContentWidget::hideTimer(bool hidden)
{
    if (SystemWindow* window = systemWindow())
        window->hideTimer(hidden);
}

void ContentWidget::pauseTimer()
{
    if (SystemWindow* window = systemWindow())
        window->pauseTimer();
}

void ContentWidget::showLine(bool shown)
{
    if (SystemWindow* window = systemWindow())
        window->showLine(shown);
}

SystemWindow* ContentWidget::getSystemWindow()
{
    SystemWindow* window = systemWindow();
    return window ? window->getSystemWindow() : nullptr;
}

// The icons stay with the window even if the software type has changed since it was made.

void ContentWidget::setAndUpdateHeadSetIcon(bool on)
{
    if (mSystemWindow)
        mSystemWindow->setAndUpdateHeadSetIcon(on);
}

void ContentWidget::setAndUpdateSpeakerIcon(bool on)
{
    if (mSystemWindow)
        mSystemWindow->setAndUpdateSpeakerIcon(on);
}

void ContentWidget::setAndUpdateMuteIcon(bool on)
{
    if (mSystemWindow)
        mSystemWindow->setAndUpdateMuteIcon(on);
}

// Function key bar

void ContentWidget::showFPKBar()
{
    mRoot->addWidget(mFPKBar.get());
}

void ContentWidget::setFPKLabel(int key, std::string label)
{
    if (mFPKBar)
        mFPKBar->setFPKLabel(key, label);
}

void ContentWidget::setFPKStatus(int key, int status)
{
    if (mFPKBar)
        mFPKBar->setFPKStatus(key, status);
}

void ContentWidget::shiftFPKLabel(int key)
{
    if (mFPKBar)
        mFPKBar->shiftFPKLabel(key);
}

void ContentWidget::shiftFPKBar(bool shifted)
{
    if (mFPKBar)
        mFPKBar->shiftFPKBar(shifted);
}

void ContentWidget::setAlternateLabel(int key, const std::string& label)
{
    if (mFPKBar)
        mFPKBar->setAlternateLabel(key, label);
}

void ContentWidget::shiftChangeEventForCertainFPKey(bool shifted, int key)
{
    if (mFPKBar)
        mFPKBar->shiftChangeEventForCertainFPKey(shifted, key);
}

void ContentWidget::callShowFPKBarMethodFromAdminPhonelet()
{
    if (mFPKBar)
        mFPKBar->setVisible(true);
}

bool ContentWidget::onChange(const UEvent*, std::string text, std::string key)
{
    // There and back, so that the line holds only what the glass can show.
    setSystemWindowText(0, UString::fromUTF8(text).toUTF8(), std::move(key));
    if (mParent)
        mParent->displayChanged();
    return false;
}

}

#include "DisplayPrivate.h"

#include <DisplayAPI/DisplayEventIfc.h>
#include <DisplayAPI/Widget.h>

#include "AnswerWait.h"
#include "CommandExecutor.h"
#include "ContentWidgetFactory.h"
#include "ContentWidgetIfc.h"
#include "CurrentApplication.h"
#include "ExceptionLog.h"
#include "GuiThread.h"
#include "Road.h"
#include "VantoUApplicationFactory.h"

#include <HardwareVersion.h>
#include <Log.h>
#include <StatusVolumeMEG.h>

namespace DisplayAPI {

namespace {

constexpr const char* LogModule = "DisplayAPI::DisplayPrivate";
constexpr int FaultLevel = 2;

void refuseLoop(const char* reason, int line)
{
    if (loggingOnAppUni(LogModule, FaultLevel))
        logAppUni(LogModule, "src/DisplayPrivate", FaultLevel, line, "Display::exec() is refused: %s.", reason);
}

}

DisplayPrivate::DisplayPrivate(std::string applicationName, bool server, std::string, std::string softwareType,
    std::string locale, std::string dateFormat, std::string timeFormat, Rect*, ContentWidgetFactoryIfc* factory)
    : mIsStacking(!server)
    , mLocale(std::move(locale))
    , mDateFormat(std::move(dateFormat))
    , mTimeFormat(std::move(timeFormat))
    , mFactory(factory)
{
    constexpr int stackingMode = 1;
    constexpr int serverMode = 2;
    constexpr int subVariant = 5;
    VantoUApplicationFactory::createVantoUApplication(UString(applicationName),
        static_cast<UApplication::UIMode>(mIsStacking ? stackingMode : serverMode),
        VantoUApplication::HardwareVariant{},
        static_cast<VantoUApplication::SoftwareType>(softwareTypeNumber(softwareType)),
        static_cast<PhysDefs::hardwareSubVariant>(subVariant));
    CommandExecutor::openDeliveries();
    deleteKeptHalves();
    if (auto* application = VantoUApplication::getCurrentApplication()) {
        application->setHardwareVariant(VantoUApplication::HardwareVariant{});
        DisplayPrivate::setSoftwareType(softwareType);
        application->setLocale(mLocale);
        application->setDateFormat(mDateFormat);
        application->setTimeFormat(mTimeFormat);
    }
    if (!mFactory)
        mFactory = std::make_unique<ContentWidgetFactory>();
    if (HardwareVersion::getHWSubPlatformVariant() == 1)
        mDisplayArea = std::make_unique<Rect>(0, 0, 192, 48);
    createContentWidget();
}

DisplayPrivate::~DisplayPrivate()
{
    // From here on no screen finds this display any more, whatever it has stored.
    leave();
    mStack.giveBack();
    cleanup();
}

void DisplayPrivate::createContentWidget()
{
    mContent.reset(mFactory->createContentWidget());
    mContent->setParent(this);
    mStack.setContent(mContent->getUWidget());
    if (currentApplicationName() == "CallViewPhonelet" && HardwareVersion::getDisplayLines() == 3)
        showFPKBar();
}

void DisplayPrivate::cleanup()
{
    // Both leave the content widget, if they stand in it.
    delete mVolumeIndicator.get();
    delete mStatusMessage.get();
    mContent.reset();
    mDisplayArea.reset();
    mFactory.reset();
}

// Screens

Displayable* DisplayPrivate::getCurrent()
{
    assertGuiThread();
    return mStack.current();
}

void DisplayPrivate::setCurrent(Displayable* displayable)
{
    assertGuiThread();
    if (!displayable) {
        darken();
        return;
    }
    const StackScreen screen(displayable);
    if (!screen)
        return;
    mStack.put(screen);
    displayChanged();
}

void DisplayPrivate::darken()
{
    if (!mStack.current())
        return;
    hideContentWidget();
    mStack.darken();
    displayChanged();
}

void DisplayPrivate::widgetDismissed(DisplayablePrivateIfc* displayable)
{
    assertGuiThread();
    if (!displayable)
        return;
    if (mStack.takeOff(*displayable)) {
        CriticalSection section(mListenerLock);
        mOwesNotice = true;
    }
    Displayable* current = mStack.current();
    if (!current || privateOfLiving(current) != displayable)
        return;
    if (mStack.isEmpty())
        setCurrent(nullptr);
    else
        mStack.returnToTop();
}

void DisplayPrivate::createServerDisplay(Displayable* displayable)
{
    assertGuiThread();
    const StackScreen screen(displayable);
    if (!screen)
        return;
    mStack.putServer(screen, mIsStacking);
    show();
}

void DisplayPrivate::show()
{
    assertGuiThread();
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->enableScreen();
    const int hardwareVariant = currentHardwareVariant();
    mStack.setVisible(true);
    mContent->getUWidget()->setVisible(true);
    mStack.showAll();
    if (hardwareVariant == 0)
        displayChanged();
}

void DisplayPrivate::hide()
{
    assertGuiThread();
    mStack.setVisible(false);
    if (auto* application = VantoUApplication::getCurrentApplication()) {
        application->disableScreen();
        if (application->getAppName() != "CallViewPhonelet" && mContent->getUWidget()->isVisible())
            application->releaseFullScreen();
    }
    hideContentWidget();
    if (currentHardwareVariant() == 0)
        displayChanged();
}

void DisplayPrivate::hideContentWidget()
{
    mContent->getUWidget()->setVisible(false);
    if (mVolumeIndicator)
        mVolumeIndicator->setVisible(false);
    setSystemWindowSize(0);
}

void DisplayPrivate::removeOldCurrent()
{
    mStack.removeOldCurrent();
}

std::vector<Rect>* DisplayPrivate::getDisplayedRects()
{
    mRectMonitor.clear();
    mStack.forEach([this](const StackScreen& screen) { mRectMonitor.update(*screen.displayable()); });
    return mRectMonitor.getVisibleRects();
}

void DisplayPrivate::forget(Displayable* displayable)
{
    assertGuiThread();
    mStack.forget(displayable);
}

// Loop

void DisplayPrivate::exec()
{
    if (!Widget::isGuiThread()) {
        refuseLoop("this is not the GUI thread", __LINE__);
        return;
    }
    if (isLoopRunning.exchange(true)) {
        refuseLoop("the loop runs already", __LINE__);
        return;
    }
    // On every way out, an exception included.
    struct End {
        ~End()
        {
            CommandExecutor::closeDeliveries();
            isLoopRunning = false;
        }
    };
    const End end;
    CommandExecutor::openDeliveries();
    deleteKeptHalves();
    const Living<DisplayPrivateIfc> self(this);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->exec();
    // An event may have deleted the display, which ends the loop.
    if (self)
        mExecFinished = true;
}

void DisplayPrivate::shutdown()
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->quit();
}

// Notices

void DisplayPrivate::subscribe(DisplayEventIfc* listener)
{
    CriticalSection section(mListenerLock);
    isSubscribed = listener != nullptr;
    mDisplayChangeListener = Living<DisplayEventIfc>(listener);
}

void DisplayPrivate::unSubscribe()
{
    CriticalSection section(mListenerLock);
    isSubscribed = false;
    mDisplayChangeListener = {};
}

void DisplayPrivate::displayChanged()
{
    CriticalSection section(mListenerLock);
    mOwesNotice = false;
    DisplayEventIfc* subscriber = mDisplayChangeListener.get();
    if (!subscriber)
        return;
    runAndLogExceptions(
        "src/DisplayPrivate", __LINE__, [subscriber] { subscriber->displayChanged({}); },
        [this] {
            const Displayable* current = Widget::isGuiThread() ? mStack.current() : nullptr;
            return "The notice of screen \"" + nameOfLiving(current) + '"';
        });
}

void DisplayPrivate::tellOfDismissal()
{
    CriticalSection section(mListenerLock);
    if (mOwesNotice)
        displayChanged();
}

}

#include "DisplayPrivate.h"

#include <DisplayAPI/DisplayEventIfc.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include "ContentWidgetFactory.h"
#include "ContentWidgetIfc.h"
#include "CurrentApplication.h"
#include "ExistingDisplayables.h"
#include "StackScreen.h"
#include "VantoUApplicationFactory.h"

#include <HardwareVersion.h>
#include <StatusVolumeMEG.h>

namespace DisplayAPI {

namespace {

/// The displays that live: one, but for tests. Screens may die behind the last of them.
std::vector<DisplayPrivate*>& livingDisplays()
{
    static std::vector<DisplayPrivate*>& displays = *new std::vector<DisplayPrivate*>;
    return displays;
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
    livingDisplays().push_back(this);
}

DisplayPrivate::~DisplayPrivate()
{
    std::erase(livingDisplays(), this);
    dropDeadEntries();
    for (Displayable* displayable : mItemList) {
        if (const StackScreen screen{displayable}) {
            screen.widget().setParent(nullptr);
            screen->gainOwnership();
        }
    }
    // A dismissed screen and the content of a tab keep the display without standing on the stack.
    for (Displayable* displayable : livingDisplayables()) {
        auto* screen = dynamic_cast<DisplayablePrivate*>(displayable->getPrivateImpl());
        if (screen && screen->display() == this)
            screen->connectDisplayChangedSignal(nullptr);
    }
    cleanup();
}

void DisplayPrivate::createContentWidget()
{
    mContent.reset(mFactory->createContentWidget());
    mContent->setParent(this);
    if (currentApplicationName() == "CallViewPhonelet" && HardwareVersion::getDisplayLines() == 3)
        showFPKBar();
}

void DisplayPrivate::cleanup()
{
    // Both leave the content widget, if they stand in it.
    mVolumeIndicator.reset();
    mStatusMessage.reset();
    mContent.reset();
    mDisplayArea.reset();
    mFactory.reset();
}

void DisplayPrivate::forgetEverywhere(Displayable* displayable)
{
    for (DisplayPrivate* display : livingDisplays())
        display->forget(displayable);
}

// Loop

void DisplayPrivate::exec()
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->exec();
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
    mDisplayChangeListener = listener;
}

void DisplayPrivate::unSubscribe()
{
    CriticalSection section(mListenerLock);
    mDisplayChangeListener = nullptr;
}

void DisplayPrivate::displayChanged()
{
    CriticalSection section(mListenerLock);
    if (mDisplayChangeListener)
        mDisplayChangeListener->displayChanged({});
}

}

#include "UApplication.h"

#include "EventTypes.h"
#include "UAgent.h"
#include "UEvent.h"
#include "ULoop.h"
#include "UWidget.h"
#include "UWindowManager.h"

#include <vector>

namespace {

std::atomic<UApplication*> gNewest = nullptr;
std::atomic<VantoUApplication*> gCurrent = nullptr;

/// Every application of the process, so that a pointer that a thread has just read stays good.
std::vector<VantoUApplication*>& allApplications()
{
    static auto& applications = *new std::vector<VantoUApplication*>;
    return applications;
}

}

UApplication::UApplication(std::string name)
    : mName(std::move(name))
{
}

UApplication::~UApplication() = default;

UApplication* UApplication::instance()
{
    return gNewest;
}

void UApplication::postEvent(UEvent* event)
{
    ULoop::instance().post(event);
}

void UApplication::postKey(int code, int state)
{
    postEvent(new UKeyEvent(code, state));
}

void UApplication::processEvents()
{
    ULoop::instance().processEvents();
}

UWindowManager* UApplication::windowManager()
{
    return &UWindowManager::instance();
}

VantoUApplication::VantoUApplication(const UString& name, UScreenWE1* screen, UIMode uiMode,
    HardwareVariant hardwareVariant, SoftwareType softwareType, PhysDefs::hardwareSubVariant hardwareSubVariant)
    : UApplication(name.toUTF8())
    , mScreen(screen)
    , mUIMode(uiMode)
    , mHardwareVariant(hardwareVariant)
    , mSoftwareType(softwareType)
    , mHardwareSubVariant(hardwareSubVariant)
{
    allApplications().push_back(this);
    gNewest = this;
    gCurrent = this;
    UWindowManager::instance().setScreen(screen);
    ULoop::instance().open();
}

VantoUApplication::~VantoUApplication()
{
    std::erase(allApplications(), this);
    VantoUApplication* self = this;
    gCurrent.compare_exchange_strong(self, nullptr);
    UApplication* newest = this;
    gNewest.compare_exchange_strong(newest, nullptr);
    if (UWindowManager::instance().screen() == mScreen.get())
        UWindowManager::instance().setScreen(nullptr);
}

VantoUApplication* VantoUApplication::getCurrentApplication()
{
    return gCurrent;
}

void VantoUApplication::endCurrent()
{
    gCurrent = nullptr;
}

int VantoUApplication::exec()
{
    return ULoop::instance().exec();
}

void VantoUApplication::quit()
{
    ULoop::instance().quit();
}

void VantoUApplication::closeEventQueue()
{
    ULoop::instance().close();
}

void VantoUApplication::setLocale(const std::string& locale)
{
    mLocale = locale;
    ListenerHub::instance().notify(EventType::LocaleChanged);
}

void VantoUApplication::setSoftwareType(SoftwareType type)
{
    mSoftwareType = type;
    // The system window comes or goes with it.
    UWindowManager::instance().repaint();
}

bool VantoUApplication::isSoftwareQvt()
{
    const VantoUApplication* application = getCurrentApplication();
    return application && application->getSoftwareType() == 1;
}

void VantoUApplication::addListener(UAgent* agent)
{
    ListenerHub::instance().add(agent);
}

void VantoUApplication::removeListener(UAgent* agent)
{
    ListenerHub::instance().remove(agent);
}

void VantoUApplication::enableScreen()
{
    UWindowManager::instance().setEnabled(true);
}

void VantoUApplication::disableScreen()
{
    UWindowManager::instance().setEnabled(false);
}

bool VantoUApplication::isIdleDisplayActive() const
{
    return UWindowManager::instance().shownWidget(static_cast<int>(UWidget::Role::IdleDisplay)) != nullptr;
}

bool VantoUApplication::isSearchableListActive() const
{
    return UWindowManager::instance().shownWidget(static_cast<int>(UWidget::Role::SearchableList)) != nullptr;
}

void VantoUApplication::refreshPopup()
{
    UWindowManager::instance().repaint();
}

#include "PhoneTest.h"

#include "CommandExecutor.h"
#include "ScreenTextParser.h"

#include <Disturb.h>
#include <UApplication.h>
#include <ULoop.h>
#include <UScreenWE1.h>
#include <UWindowManager.h>

#include <chrono>
#include <cstdlib>
#include <future>
#include <string>
#include <thread>

using DisplayAPI::CommandExecutor;
using DisplayAPI::Display;
using DisplayAPI::Rect;

namespace {

/// Shifts the order of threads in every test of the program, if its caller wishes.
class SeedFromCaller : public testing::Environment {
    void SetUp() override
    {
        if (const char* seed = std::getenv("TEST_SEED"))
            setDisturbanceSeed(std::stoull(seed));
    }
};

[[maybe_unused]] const auto* const theSeed = testing::AddGlobalTestEnvironment(new SeedFromCaller);

}

Rect wholeGlass()
{
    return Rect(0, 0, UScreenWE1::Width, 31);
}

std::string lines(std::initializer_list<const char*> texts)
{
    std::string all;
    for (const char* text : texts) {
        all += text;
        all += '\n';
    }
    return all;
}

std::string fieldOf(const std::string& screenText, const std::string& key)
{
    const std::string text = "\n" + screenText;
    const std::size_t start = text.find("\n" + key + ":");
    if (start == std::string::npos)
        return "(no such field)";
    const std::size_t value = start + key.size() + 2;
    return text.substr(value, text.find('\n', value) - value);
}

PhoneTest::PhoneTest(const PhoneSetup& setup)
    : mSetup(setup)
{
    HardwareVersion::setAll(setup.hardware);
    ULoop::instance().setManualClock(true);
    UWindowManager::instance().setFont(&font);
    makeDisplay();
}

PhoneTest::~PhoneTest()
{
    display.reset();
    UWindowManager::instance().setFont(nullptr);
    HardwareVersion::setAll({});
    ULoop::instance().setManualClock(false);
}

void PhoneTest::makeDisplay()
{
    display.reset();
    display = std::make_unique<Display>(mSetup.applicationName, "Test", PhysDefs::hardwareSubVariant{},
        mSetup.softwareType, "en", "dd.mm.yy", "hh:mm", mSetup.server, nullptr, false);
    display->subscribe(&changes);
    display->show();
}

void PhoneTest::elsewhere(const std::function<void()>& function)
{
    auto done = std::async(std::launch::async, function);
    while (done.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        pump();
    done.get();
    pump();
}

void PhoneTest::endLoop()
{
    // Behind an earlier loop the queue is closed: a shutdown before exec() would be refused, and nothing end the loop.
    ULoop::instance().open();
    std::thread application([this] { display->shutdown(); });
    display->exec();
    application.join();
}

void PhoneTest::TearDown()
{
    changes.onNotice = nullptr;
    changes.onNextNotice = nullptr;
    if (display) {
        display->setCurrent(nullptr);
        display->setTranslator(nullptr);
    }
    CommandExecutor::closeDeliveries(std::chrono::seconds(20));
    CommandExecutor::openDeliveries();
}

void PhoneTest::pump()
{
    ULoop::instance().processEvents();
}

void PhoneTest::press(int key)
{
    UApplication::instance()->postKey(key, UGlobal::KeyPressed);
    UApplication::instance()->postKey(key, UGlobal::KeyReleased);
    pump();
}

void PhoneTest::pressAndHold(int key)
{
    UApplication::instance()->postKey(key, UGlobal::KeyPressed);
    UApplication::instance()->postKey(key, UGlobal::KeyHeld);
    pump();
}

void PhoneTest::type(const std::string& dialKeys)
{
    for (const char key : dialKeys)
        press(key);
}

void PhoneTest::advance(std::uint64_t milliseconds)
{
    ULoop::instance().advance(milliseconds);
}

void PhoneTest::show(DisplayAPI::Displayable& screen)
{
    display->setCurrent(&screen);
    pump();
}

std::string PhoneTest::screenText()
{
    const std::string text = display->serialiseByRect({wholeGlass()}, "");
    EXPECT_EQ(ScreenTextParser::faultOf(text), "") << text;
    return text;
}

std::string PhoneTest::glassLine(int line)
{
    pump();
    return lineText(*UWindowManager::instance().screen(), line);
}

bool PhoneTest::hasIcon(int line, int column, std::uint16_t number)
{
    pump();
    return screenHasIcon(*UWindowManager::instance().screen(), line, column, number);
}

#pragma once

#include "ContentWidgetIfc.h"
#include "DisplayPrivate.h"
#include "TestScreen.h"

#include <DisplayAPI/DisplayEventIfc.h>

#include <HardwareVersion.h>
#include <UWidget.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Counts the notices, and may do something inside one.
class Subscriber : public DisplayAPI::DisplayEventIfc {
public:
    void displayChanged(std::string text) override
    {
        EXPECT_EQ(text, "");
        ++notices;
        if (onNotice)
            onNotice();
    }

    /// The number since the last call.
    int takeNotices() { return std::exchange(notices, 0); }

    int notices = 0;
    std::function<void()> onNotice;
};

/// A display on the test's thread, without a loop. It starts hidden and with a subscriber.
class StackFixture : public ::testing::Test {
protected:
    using Kind = TestScreen::Kind;

    StackFixture() { HardwareVersion::setAll({}); }
    ~StackFixture() override
    {
        display.reset();
        HardwareVersion::setAll({});
    }

    void makeDisplay(const std::string& softwareType = "Zelmark SIP", const std::string& application = "TestPhonelet",
        bool server = false, DisplayAPI::ContentWidgetFactoryIfc* factory = nullptr)
    {
        display.reset();
        display = std::make_unique<DisplayAPI::DisplayPrivate>(
            application, server, "test", softwareType, "en", "date", "time", nullptr, factory);
        display->subscribe(&subscriber);
    }

    std::unique_ptr<TestScreen> makeScreen(const std::string& name, Kind kind = Kind::Ordinary)
    {
        return std::make_unique<TestScreen>(name, log, kind);
    }

    /// What has been noted since the last call.
    std::vector<std::string> takeLog() { return std::exchange(log, {}); }

    UWidget* content() { return display->getContentWidget()->getUWidget(); }
    bool isInContent(TestScreen& screen) { return screen.widget().parentWidget() == content(); }

    std::vector<std::string> log;
    Subscriber subscriber;
    std::unique_ptr<DisplayAPI::DisplayPrivate> display;
};

using Lines = std::vector<std::string>;

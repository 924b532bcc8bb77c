#pragma once

#include "ContentWidgetIfc.h"
#include "DisplayPrivate.h"
#include "Subscriber.h"
#include "TestScreen.h"

#include <HardwareVersion.h>
#include <UWidget.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

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

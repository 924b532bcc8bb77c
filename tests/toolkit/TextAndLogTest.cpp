#include "HardwareVersion.h"
#include "Log.h"
#include "TranslationInfo.h"
#include "Types.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class UpperCase : public TranslatorIfc {
public:
    std::string translate(std::string key) override { return locale + ":" + key; }

    std::string locale = "en";
};

std::vector<LogControl::Message> gMessages;

void keep(const LogControl::Message& message)
{
    gMessages.push_back(message);
}

class LogTest : public testing::Test {
protected:
    LogTest()
    {
        gMessages.clear();
        LogControl::setSink(keep);
    }
    ~LogTest() override { LogControl::reset(); }
};

class Handler : public GUIEventIfc {
public:
    bool onLeft(const UKeyEvent*) override { return true; }
    bool onRight(const UKeyEvent*) override { return true; }
    bool onUp(const UKeyEvent*) override { return true; }
    bool onDown(const UKeyEvent*) override { return true; }
    bool onOK(const UKeyEvent*) override { return true; }
    bool setEventHandler(GUIEventIfc*) override { return true; }
};

}

TEST(TranslationTest, TheTextFollowsTheLocale)
{
    UpperCase translator;
    const TranslationInfo line("<", "Back", "?", &translator);
    EXPECT_EQ(line.getString(), "en:Back");
    EXPECT_EQ(line.getCompleteString(), "<en:Back?");
    translator.locale = "de";
    EXPECT_EQ(line.getCompleteString(), "<de:Back?");
}

TEST(TranslationTest, WithoutATranslatorTheKeyIsTheText)
{
    EXPECT_EQ(TranslationInfo("", "Back", "?", nullptr).getCompleteString(), "Back?");
    EXPECT_EQ(TranslationInfo("Back", nullptr).getString(), "Back");
}

TEST_F(LogTest, EverythingIsOffAtFirst)
{
    EXPECT_FALSE(loggingOnAppUni("DisplayAPI::List", 0));
    EXPECT_FALSE(loggingOnAppUni(nullptr, -1));
    logAppUni("DisplayAPI::List", "src/List", 1, 7, "unwanted");
    EXPECT_TRUE(gMessages.empty());
}

TEST_F(LogTest, AModuleIsWrittenUpToItsLevel)
{
    LogControl::setLevel("DisplayAPI::List", 3);
    LogControl::setLevel("DisplayAPI::Form", 5);
    EXPECT_TRUE(loggingOnAppUni("DisplayAPI::List", 3));
    EXPECT_FALSE(loggingOnAppUni("DisplayAPI::List", 4));
    EXPECT_FALSE(loggingOnAppUni("DisplayAPI::Tree", 1));

    LogControl::setLevel("*", 2);
    EXPECT_TRUE(loggingOnAppUni("DisplayAPI::Tree", 2));
    EXPECT_FALSE(loggingOnAppUni("DisplayAPI::Tree", 3));
    EXPECT_TRUE(loggingOnAppUni("DisplayAPI::List", 3)) << "its own level counts, not the common one";
}

TEST_F(LogTest, AMessageCarriesItsPlaceAndItsWholeText)
{
    LogControl::setLevel("*", 5);
    const std::string name(5000, 'x');
    logAppUni("DisplayAPI::Form", "src/Form", 5, 42, "row %d is %s", 7, name.c_str());
    ASSERT_EQ(gMessages.size(), 1U);
    EXPECT_EQ(gMessages[0].module, "DisplayAPI::Form");
    EXPECT_EQ(gMessages[0].file, "src/Form");
    EXPECT_EQ(gMessages[0].level, 5);
    EXPECT_EQ(gMessages[0].line, 42);
    EXPECT_EQ(gMessages[0].text, "row 7 is " + name);
}

TEST_F(LogTest, WithoutASinkEachMessageIsOneLineOfStandardError)
{
    LogControl::setLevel("*", 5);
    LogControl::setSink(nullptr);
    testing::internal::CaptureStderr();
    logAppUni("DisplayAPI::Form", "src/Form", 5, 42, "Has changed:\n%d", 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "DisplayAPI::Form(5) src/Form:42: Has changed: 1\n");
}

TEST(TypesTest, ADyingHandlerLeavesItsDisplayUnlessAnotherTookItsPlace)
{
    Handler successor;
    GUIEventIfc* display = nullptr;
    {
        Handler handler;
        handler.attachTo(&display);
        display = &handler;
    }
    EXPECT_EQ(display, nullptr);
    {
        Handler handler;
        handler.attachTo(&display);
        display = &successor;
    }
    EXPECT_EQ(display, &successor);
}

TEST(HardwareVersionTest, TheTelephoneHasTwoLinesUntilToldOtherwise)
{
    EXPECT_EQ(HardwareVersion::getDisplayLines(), 2);
    HardwareVersion::setAll(
        {.displayLines = 3, .subVariant = 4, .subPlatformVariant = 5, .isRX40 = true, .isRX70 = false});
    EXPECT_EQ(HardwareVersion::getDisplayLines(), 3);
    EXPECT_EQ(HardwareVersion::getHWSubVariant(), 4);
    EXPECT_EQ(HardwareVersion::getHWSubPlatformVariant(), 5);
    EXPECT_TRUE(HardwareVersion::is_RX40_any());
    EXPECT_FALSE(HardwareVersion::is_RX70());
    HardwareVersion::setAll({});
}

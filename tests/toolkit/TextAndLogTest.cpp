#include "Log.h"
#include "TestTranslator.h"
#include "Types.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

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
    TestTranslator translator;
    translator.prefix = "en:";
    const TranslationInfo line("<", "Back", "?", &translator);
    EXPECT_EQ(line.getString(), "en:Back");
    EXPECT_EQ(line.getCompleteString(), "<en:Back?");
    translator.prefix = "de:";
    EXPECT_EQ(line.getCompleteString(), "<de:Back?");
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

TEST(TypesTest, DisplayAndHandlerForgetEachOtherWhicheverDiesFirst)
{
    Handler successor;
    auto display = std::make_unique<GUIEventLink>();
    {
        Handler handler;
        display->attach(&handler);
    }
    EXPECT_EQ(display->handler(), nullptr);
    {
        Handler handler;
        display->attach(&handler);
        display->attach(&successor);
    }
    EXPECT_EQ(display->handler(), &successor) << "the first had been detached";
    GUIEventLink other;
    other.attach(&successor);
    EXPECT_EQ(display->handler(), nullptr) << "a handler serves one display";
    display.reset();
    EXPECT_EQ(other.handler(), &successor);
}

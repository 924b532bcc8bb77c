#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupDialer.h>

#include "IdleDisplayPrivate.h"

#include <UApplication.h>
#include <UEvent.h>

#include <memory>

using namespace DisplayAPI;

namespace {

class IdleDisplayTest : public PhoneTest {
protected:
    explicit IdleDisplayTest(const PhoneSetup& setup = {})
        : PhoneTest(setup)
    {
        idle.addCommandListener(&listener);
        show(idle);
    }
    IdleDisplayPrivate& half() { return dynamic_cast<IdleDisplayPrivate&>(*idle.getPrivateImpl()); }

    RecordingListener listener;
    TestTranslator translator;
    MenuCommand first{"First", 1};
    MenuCommand second{"Second", 2};
    IdleDisplay idle{"idle"};
};

struct IdleDisplayOnRX40Test : IdleDisplayTest {
    IdleDisplayOnRX40Test()
        : IdleDisplayTest({.hardware = {.isRX40 = true}})
    {
    }
};

std::unique_ptr<IdleDisplay> makeIdle(Stage& stage)
{
    auto idle = std::make_unique<IdleDisplay>("idle");
    idle->addCommandListener(&stage.listener);
    idle->setCurrentPhoneNumber("4711");
    idle->addCommand(&stage.yes);
    idle->addCommand(&stage.no);
    return idle;
}

std::string tellIdle(IdleDisplay& idle)
{
    return std::to_string(idle.getCommandsSize()) + (idle.isCMActiveOnIdleScreen() ? " open" : " closed");
}

}

INSTANTIATE_TEST_SUITE_P(IdleDisplay, EveryScreenTest,
    screenFamily<IdleDisplay>(makeIdle,
        {
            {"setMissedCalls", [](auto& idle, auto&) { idle.setMissedCalls(2); }},
            {"setMessages", [](auto& idle, auto&) { idle.setMessages(1); }},
            {"addSystemMessage", [](auto& idle, auto& stage) { idle.addSystemMessage(stage.translation("Update")); },
                false},
            {"setForwardingAddress", [](auto& idle, auto&) { idle.setForwardingAddress("0815"); }},
            {"its translation",
                [](auto& idle, auto& stage) { idle.setForwardingAddress(stage.translation("Mailbox")); }},
            {"that of a party",
                [](auto& idle, auto& stage) { idle.setForwardingAddress(stage.translation("To"), nullptr); }},
            {"setForwardingIconVisible", [](auto& idle, auto&) { idle.setForwardingIconVisible(true); }},
            {"setServerBasedForwardingAddress",
                [](auto& idle, auto& stage) { idle.setServerBasedForwardingAddress(stage.translation("Server")); }},
            {"changeLogo", [](auto& idle, auto&) { idle.changeLogo("logo.png"); }},
            {"setBrandingText", [](auto& idle, auto&) { idle.setBrandingText("Acme"); }},
            {"displayMobileUserIcon", [](auto& idle, auto&) { idle.displayMobileUserIcon(true, 0); }, false},
            {"addCommand", [](auto& idle, auto& stage) { idle.addCommand(&stage.maybe); }},
            {"setDefaultMenuCommand", [](auto& idle, auto& stage) { idle.setDefaultMenuCommand(&stage.last); }},
            {"OK opens the menu", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"OK chooses", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"setCommands",
                [](auto& idle, auto& stage) {
                    idle.setCommands({&stage.no, &stage.yes});
                }},
            {"a digit", [](auto&, auto& stage) { stage.press('5'); }, false},
            {"addDialer", [](auto& idle, auto&) { idle.addDialer(nullptr); }, false},
            {"clearCommands", [](auto& idle, auto&) { idle.clearCommands(); }},
            {"hide", [](auto& idle, auto&) { idle.hide(); }, false},
        },
        tellIdle));

TEST_F(IdleDisplayTest, TheTelephoneAtRestIsWrittenAndPainted)
{
    EXPECT_EQ(screenText(), "") << "nothing to tell";
    idle.setBrandingText("Acme");
    idle.setCurrentPhoneNumber("4711");
    idle.setMissedCalls(2);
    idle.addSystemMessage("Grüße");
    EXPECT_EQ(screenText(),
        lines({"object:", "name:IdleDisplay", "caption:Acme", "string0:4711", "subitem:", "name:IdleDisplayItem",
            "icon0:SystemMessage", "string0:Grüße", "endsubitem:", "subitem:", "name:IdleDisplayItem",
            "icon0:MissedCalls", "string0:2 missed calls", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(0), "4711                   Acme");
    advance(3000);
    EXPECT_NE(glassLine(1).find("2 missed calls"), std::string::npos);
    EXPECT_EQ(half().serialise(std::vector<Rect>{Rect(0, 0, 161, 14)}),
        lines({"object:", "name:IdleDisplay", "caption:Acme", "string0:4711", "end:"}));
    half().setEmergencyText(new TranslationInfo("112", nullptr));
    half().setCallBack(true);
    pump();
    EXPECT_NE(glassLine(1).find("112"), std::string::npos);
}

TEST_F(IdleDisplayTest, OnlyANewValueGivesANotice)
{
    const auto notices = [this](const std::function<void()>& change) {
        changes.takeNotices();
        change();
        change();
        return changes.takeNotices();
    };
    EXPECT_EQ(notices([&] { idle.setMissedCalls(3); }), 1);
    EXPECT_EQ(notices([&] { idle.setForwardingAddress(new TranslationInfo("0815", nullptr)); }), 1);
    EXPECT_EQ(notices([&] { idle.clearForwardingAddress(); }), 1);
    EXPECT_EQ(notices([&] { idle.clearServerBasedForwardingAddress(); }), 0);
    EXPECT_EQ(notices([&] { idle.setBrandingText("Acme"); }), 2);
    EXPECT_EQ(notices([&] { idle.addCommand(nullptr); }), 0);
    std::string seen;
    changes.onNextNotice = [&] { seen = screenText(); };
    idle.setForwardingAddress("0815");
    EXPECT_EQ(seen.find("0815"), std::string::npos) << "the notice comes before the value";
}

TEST_F(IdleDisplayTest, AChangeOfLocaleReadsTheTextsAgain)
{
    CallPartyIdentifier party("Anna", "4712");
    party.displayText = "Anna Bell";
    auto* info = new TranslationInfo("<", "to", ">", &translator);
    idle.setForwardingAddress(info, &party);
    idle.setForwardingAddress(info, &party); // it is held already
    EXPECT_EQ(screenField("string0"), "<to> Anna Bell");
    idle.addSystemMessage(new TranslationInfo("", "update", "!", &translator));
    idle.setServerBasedForwardingAddress(new TranslationInfo("", "server", "!", &translator));
    MenuCommand translated(new TranslationInfo("", "calls", "?", &translator), 3);
    auto gone = std::make_unique<MenuCommand>("Gone", 4);
    idle.setCommands({&first, gone.get(), &translated});
    gone.reset();
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(idle.getCommandsSize(), 2);
    for (const char* line : {"fr to Anna Bell", "fr update!", "fr server!"})
        EXPECT_NE(screenText().find(std::string("string0:") + line + "\n"), std::string::npos) << line;
    press(UGlobal::KeyOk);
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1).substr(0, 9), "fr calls?");
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{&translated});
    idle.setForwardingAddress(new TranslationInfo("", "home", "", &translator));
    display->localeChanged("fr");
    EXPECT_NE(screenText().find("string0:fr home home\n"), std::string::npos)
        << "what stands behind the first blank counts as the party";
}

TEST_F(IdleDisplayOnRX40Test, TheBlankBeforeThePartyComesWithAChangeOfLocale)
{
    CallPartyIdentifier party;
    party.displayText = " 4712";
    idle.setForwardingAddress(new TranslationInfo("", "to", "", &translator), &party);
    EXPECT_EQ(screenField("string0"), "to 4712");
    party.displayText = "4712";
    idle.setForwardingAddress(new TranslationInfo("", "to", "", &translator), &party);
    EXPECT_EQ(screenField("string0"), "to4712");
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string0"), "to ") << "without a blank there was no party";
}

TEST_F(IdleDisplayTest, ARowOfTheMenuTellsEveryListener)
{
    idle.addCommandListener(&listener);
    idle.setCommands({&first, &second});
    idle.setDefaultMenuCommand(&second);
    EXPECT_EQ(idle.getCommandsSize(), 2);
    idle.displayMobileUserIcon(true, 0);
    auto& widget = dynamic_cast<IdleDisplayMEG&>(*half().getWidget());
    press(UGlobal::KeyOk);
    EXPECT_TRUE(idle.isCMActiveOnIdleScreen());
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk);
    EXPECT_FALSE(idle.isCMActiveOnIdleScreen());
    EXPECT_EQ(widget.status1, 1) << "only the first row clears it";
    press(UGlobal::KeyOk);
    press(UGlobal::KeyOk);
    EXPECT_EQ(widget.status1, 0);
    idle.removeCommandListener(&listener);
    idle.fireBackCommand();
    idle.fireMenuCommand(-1);
    idle.fireMenuCommand(2);
    const std::vector<Command*> told{&second, &second, &first, &first, IdleDisplay::BACK_COMMAND()};
    EXPECT_EQ(listener.commands(5), told);
    press(UGlobal::KeyOk);
    half().lostFocus();
    EXPECT_FALSE(idle.isCMActiveOnIdleScreen()) << "the menu never stands open in the dark";
}

TEST_F(IdleDisplayTest, RowsAndCommandsAgreeWhateverANoticeDoes)
{
    for (int number = 1; number <= 3; ++number) {
        idle.setCommands({&first});
        int notices = 0;
        changes.onNotice = [&] {
            if (++notices == number)
                idle.setCommands({&second, &first});
        };
        display->localeChanged("fr");
        idle.addCommand(&second);
        changes.onNotice = nullptr;
        EXPECT_EQ(half().menuSize(), static_cast<std::size_t>(idle.getCommandsSize())) << "notice " << number;
    }
}

// The way to the dialer and back

TEST_F(IdleDisplayTest, ADigitOpensTheDialerAndLeftComesBack)
{
    idle.setCurrentPhoneNumber("4711");
    type("0");
    EXPECT_EQ(idle.getDialer()->getLineEditText(), "0");
    EXPECT_EQ(glassLine(0).substr(0, 2), "0_") << "it lies over the idle screen";
    EXPECT_EQ(screenText(), "");
    type("1");
    EXPECT_EQ(idle.getDialer()->getLineEditText(), "01");
    EXPECT_TRUE(VantoUApplication::getCurrentApplication()->isFullScreen());
    press(UGlobal::KeyLeft);
    press(UGlobal::KeyLeft);
    press(UGlobal::KeyLeft);
    EXPECT_EQ(screenField("string0"), "4711");
    EXPECT_FALSE(VantoUApplication::getCurrentApplication()->isFullScreen());
    type("5");
    EXPECT_EQ(idle.getDialer()->getLineEditText(), "5");
}

TEST_F(IdleDisplayTest, WithoutItsDialerTheKeysRest)
{
    idle.showDiallerOnInitialKeyEvent(false);
    UKeyEvent key('5', UGlobal::KeyPressed);
    EXPECT_FALSE(half().keyEvent(&key));
    type("5");
    EXPECT_EQ(idle.getDialer()->getLineEditText(), "");
    idle.showDiallerOnInitialKeyEvent(true);
    type("5");
    EXPECT_EQ(idle.getDialer()->getLineEditText(), "5");
}

TEST_F(IdleDisplayTest, AKeyThatTheDialerHandsBackIsTypedThereOnce)
{
    PopupDialer dialer(true, 3);
    dialer.addCommand(&first);
    dialer.setIgnoreKeypadEvents(true);
    idle.addDialer(&dialer);
    idle.showDiallerOnInitialKeyEvent(true);
    type("12");
    EXPECT_EQ(dialer.getLineEditText(), "12");
    idle.showDiallerOnInitialKeyEvent(false);
    type("3");
    EXPECT_EQ(dialer.getLineEditText(), "123") << "what it hands back switches the keys on again";
    UKeyEvent key(UGlobal::KeyRight, UGlobal::KeyPressed);
    EXPECT_TRUE(dynamic_cast<UWidget&>(*dialer.getPrivateImpl()).keyEvent(&key)) << "a key without use ends there";
    idle.addDialer(nullptr);
    EXPECT_FALSE(dynamic_cast<UWidget&>(*dialer.getPrivateImpl()).keyEvent(&key)) << "nobody is behind it any more";
}

TEST_F(IdleDisplayTest, ADialerMayDieOrBeReplacedWhileItIsUp)
{
    idle.setCurrentPhoneNumber("4711");
    auto dialer = std::make_unique<PopupDialer>(true, 3);
    idle.addDialer(dialer.get());
    EXPECT_EQ(idle.getDialer(), dialer.get());
    type("1");
    dialer.reset();
    EXPECT_EQ(screenField("string0"), "4711") << "the idle screen takes the glass back";
    type("2");
    PopupDialer* own = idle.getDialer();
    EXPECT_EQ(own->getLineEditText(), "2");
    idle.addDialer(own);
    EXPECT_EQ(idle.getDialer(), own);
    display->setCurrent(own);
    EXPECT_EQ(screenField("caption"), "2");
    PopupDialer other(true, 3);
    idle.addDialer(&other);
    EXPECT_EQ(screenField("string0"), "4711");
    type("3");
    EXPECT_EQ(other.getLineEditText(), "3");
    {
        IdleDisplay shortLived("");
        shortLived.addDialer(&other);
        show(shortLived);
        type("4");
    }
    EXPECT_EQ(other.getLineEditText(), "34");
    press(UGlobal::KeyUp);
    show(idle);
    EXPECT_EQ(screenField("string0"), "4711");
}

TEST_F(IdleDisplayTest, ADialerThatAnotherScreenReplacesLeavesTheGlass)
{
    idle.setCurrentPhoneNumber("4711");
    type("1");
    display->setCurrent(idle.getDialer());
    List list(0);
    list.append("Speaker");
    show(list);
    show(idle);
    EXPECT_EQ(screenField("string0"), "4711");
    type("2");
    EXPECT_EQ(idle.getDialer()->getLineEditText(), "12") << "the idle screen has the keys again";
}

#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupCall.h>

#include "PopupCallPrivate.h"

#include <optional>

using namespace DisplayAPI;

namespace {

class PopupCallTest : public PhoneTest {
protected:
    /// The lines behind the name, joined by "|".
    std::string fields()
    {
        std::string text = screenText();
        text = text.substr(text.find("PopupCall\n") + 10);
        text.resize(text.rfind("\nend:"));
        for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos;)
            text[at] = '|';
        return text;
    }

    RecordingListener listener;
    MenuCommand accept{"Accept?", 1};
    MenuCommand refuse{"Reject?", 2};
};

std::unique_ptr<PopupCall> makePopup(Stage& stage)
{
    auto popup = std::make_unique<PopupCall>();
    popup->addCommandListener(&stage.listener);
    popup->setState(PopupCall::INCOMING, PopupCall::NORMAL);
    popup->setLine2Text(stage.translation("Carol"));
    popup->addCommand(&stage.yes);
    popup->addCommand(&stage.no);
    return popup;
}

void showParties(PopupCall& popup, Stage& stage, bool areTwo)
{
    CallPartyIdentifier caller("Bob", "4712");
    CallPartyIdentifier called("Carol", "4713");
    popup.setPopupCallDetails(caller, areTwo ? &called : nullptr, FORWARDED_NO_ANSWER, "private",
        areTwo ? stage.translation("aux") : nullptr);
}

std::string tell(PopupCall& popup)
{
    return std::to_string(popup.getSelectedIndex()) + (popup.selectionHasChanged() ? " changed" : " unchanged");
}

}

INSTANTIATE_TEST_SUITE_P(PopupCall, EveryScreenTest,
    screenFamily<PopupCall>(makePopup,
        {
            {"setLine1PrefixText",
                [](auto& popup, auto& stage) { popup.setLine1PrefixText(stage.translation("Line 1")); }},
            {"setText", [](auto& popup, auto& stage) { popup.setText(stage.translation("Anna")); }},
            {"setLine2PrefixText",
                [](auto& popup, auto& stage) { popup.setLine2PrefixText(stage.translation("for")); }},
            {"setLine2Text", [](auto& popup, auto&) { popup.setLine2Text("Carol"); }},
            {"setAuxText", [](auto& popup, auto&) { popup.setAuxText("private"); }},
            {"two parties", [](auto& popup, auto& stage) { showParties(popup, stage, true); }},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"one party", [](auto& popup, auto& stage) { showParties(popup, stage, false); }},
            {"addCommand", [](auto& popup, auto& stage) { popup.addCommand(&stage.maybe); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"setDefaultCommand", [](auto& popup, auto& stage) { popup.setDefaultCommand(&stage.last); }},
            {"setState", [](auto& popup, auto&) { popup.setState(PopupCall::RINGING_GROUP, PopupCall::URGENT); }},
            {"another state", [](auto& popup, auto&) { popup.setState(PopupCall::CONNECTING, PopupCall::NORMAL); }},
            {"setCommands",
                [](auto& popup, auto& stage) {
                    popup.setCommands({&stage.no, &stage.yes});
                }},
            {"clearCommands", [](auto& popup, auto&) { popup.clearCommands(); }},
            {"dismiss", [](auto& popup, auto&) { popup.dismiss(); }},
        },
        tell));

TEST_F(PopupCallTest, EachStateHasItsTextIconsAndSecondLine)
{
    struct Case {
        int state;
        int priority;
        const char* text;
        std::uint16_t icon;
    };
    constexpr const char* cleared = "caption:Bob|subitem:|name:VantoListBoxItem|string0:Accept?|endsubitem:";
    constexpr const char* beside
        = "caption:Bobfor: |subitem:|name:VantoListBoxItem|string0:Accept?|string1:Carol|endsubitem:";
    const Case cases[] = {
        {0, 0, "icon0:Ringing|", 14},
        {0, 1, "icon0:Ringing|", 73},
        {0, 2, "icon0:Ringing|", 48},
        {0, 9, "icon0:Ringing|", 14},
        {1, 0, "icon0:Connecting|", 45},
        {2, 0, "icon0:Busy|", 17},
        {3, 0, "icon0:Unobtainable|", 38},
        {4, 2, "icon0:Incoming|", 48},
        {5, 2, "icon0:GroupCall|caption:Bob|string1:for: Carol", 50},
        {6, 1, "icon0:DSS|", 74},
        {7, 2, "icon0:HoldTimeout|", 49},
        {8, 1, "icon0:Ringing|", 73},
        {9, 1, "icon0:Recall|", 76},
        {10, 1, "icon0:CallBack|", 6},
        {11, 0, "icon0:Ringing|caption:Bob|icon0:BLFfor: |string1:=> Carol", 14},
        {12, 1, "icon0:Ringing|caption:Bob|icon0:GroupCallfor: |string1:=> Carol", 14},
        {13, 0, "icon0:unknown|", 14},
    };
    for (const Case& row : cases) {
        PopupCall popup;
        popup.setText("Bob");
        popup.addCommand(&accept);
        popup.setState(PopupCall::GROUP_CALL, PopupCall::NORMAL);
        popup.setLine2Text("Carol");
        popup.setLine2PrefixText("for");
        if (row.state == 13)
            popup.setState(PopupCall::RINGING_BLF, PopupCall::NORMAL);
        popup.setState(
            static_cast<PopupCall::CallState>(row.state), static_cast<PopupCall::CallPriority>(row.priority));
        show(popup);
        const bool keeps = row.state == 4 || row.state == 8 || row.state == 13;
        std::string text = row.text;
        if (text.back() == '|')
            text += keeps ? beside : cleared;
        EXPECT_EQ(fields(), text) << "state " << row.state;
        EXPECT_TRUE(hasIcon(0, 0, row.icon)) << "state " << row.state << ", priority " << row.priority;
        popup.dismiss();
    }
}

TEST_F(PopupCallTest, PartiesAreShownByTheirRules)
{
    TestTranslator translator;
    const std::string K = CallPartyIdentifier::UnknownParty;
    translator.words = {{K, "unknown"}, {"CVQVTDispIF.Number.Unavailable", "withheld"}};
    display->setTranslator(&translator);
    struct Case {
        const char* name;
        CallPartyIdentifier first;
        std::optional<CallPartyIdentifier> second;
        const char* line1;
        const char* line2;
    };
    using Party = CallPartyIdentifier;
    const Case cases[] = {
        {"known", Party("Bob", "4712"), {}, "Bob 4712", ""},
        {"nothing known", Party(K, K), {}, "unknown", ""},
        {"name alone", Party("Bob", K), {}, "Bob", ""},
        {"number alone", Party(K, "4712"), {}, "4712", ""},
        {"withheld", Party("", "anonymous"), {}, "withheld", ""},
        {"withheld with an unknown name", Party(K, "anonymous"), {}, "anonymous", ""},
        {"withheld with a name", Party("Bob", "anonymous"), {}, "Bob anonymous", ""},
        {"empty", Party("", ""), {}, "", ""},
        {"two known", Party("Bob", "4712"), Party("Carol", "4713"), "Bob 4712", "Carol 4713"},
        {"nothing known of two", Party(K, K), Party(K, K), "unknown", "unknown"},
        {"second name alone", Party("Bob", K), Party("Carol", K), "Bob", "Carol unknown"},
        {"second number alone", Party(K, "4712"), Party(K, "4713"), "4712", "4713"},
        {"second withheld", Party("", "anonymous"), Party("", "anonymous"), "withheld", "anonymous"},
    };
    for (const Case& row : cases) {
        PopupCall popup;
        Party first = row.first;
        std::optional<Party> second = row.second;
        elsewhere([&] { popup.setPopupCallDetails(first, second ? &*second : nullptr, {}, "", nullptr); });
        show(popup);
        EXPECT_EQ(screenField("caption"), row.line1) << row.name;
        EXPECT_EQ(screenField("string1"), *row.line2 ? row.line2 : "(no such field)") << row.name;
        popup.dismiss();
    }
    PopupCall popup;
    popup.setState(PopupCall::GROUP_CALL, PopupCall::NORMAL);
    popup.setLine1Text(Party(K, "4712"));
    popup.setLine2Text(Party(K, K));
    show(popup);
    EXPECT_EQ(fields(), "icon0:GroupCall|caption:4712|string1:unknown");
}

TEST_F(PopupCallTest, HowACallWasForwardedIsWrittenBesideItsChoice)
{
    struct Case {
        int type;
        const char* ofTheChoice;
        const char* ofTwo;
        const char* line2;
        std::uint16_t icon;
    };
    const Case cases[] = {
        {0, "icon0:Forwarded|", "", "Carol 4713", 0},
        {1, "", "", "Carol 4713", 17},
        {2, "", "|icon0:DND", "Carol 4713", 2},
        {3, "icon0:Forwarded|icon1:Incoming|", "", "Carol 4713", 14},
        {4, "", "", "=> Carol 4713", 55},
        {5, "", "", "Carol 4713", 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.type);
        const auto type = static_cast<ForwardedCallType>(each.type);
        CallPartyIdentifier bob("Bob", "4712");
        CallPartyIdentifier carol("Carol", "4713");
        PopupCall popup;
        popup.setState(PopupCall::INCOMING, PopupCall::NORMAL);
        popup.setPopupCallDetails(bob, &carol, type, "", nullptr);
        show(popup);
        const std::string caption = "icon0:Incoming|caption:Bob 4712";
        EXPECT_EQ(fields(), caption + each.ofTwo + "|string1:" + each.line2);
        EXPECT_TRUE(each.icon == 0 || hasIcon(1, 2, each.icon)) << glassLine(1);
        popup.setPopupCallDetails(bob, nullptr, type, "", nullptr);
        popup.addCommand(&accept);
        EXPECT_EQ(
            fields(), caption + "|subitem:|name:VantoListBoxItem|" + each.ofTheChoice + "string0:Accept?|endsubitem:");
        popup.dismiss();
    }
}

TEST_F(PopupCallTest, AnIncomingCallWithALine2HasARowThatChoosesNothing)
{
    PopupCall popup;
    popup.addCommandListener(&listener);
    popup.setState(PopupCall::INCOMING, PopupCall::NORMAL);
    popup.setText(" for you");
    popup.setLine2Text("Carol");
    popup.setCommands({&accept, nullptr, &refuse});
    show(popup);
    EXPECT_EQ(screenField("caption"), "Carol for you");
    EXPECT_NE(glassLine(0).find("Carol for you"), std::string::npos);
    EXPECT_EQ(popup.getSelectedIndex(), 0);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyLeft);
    press(UGlobal::KeyDown);
    EXPECT_EQ(popup.getSelectedIndex(), 1);
    EXPECT_TRUE(popup.selectionHasChanged());
    EXPECT_FALSE(popup.selectionHasChanged());
    EXPECT_EQ(
        fields(), "icon0:Incoming|caption:Carol for you|subitem:|name:VantoListBoxItem|string0:Accept?|endsubitem:")
        << "line 2 has given way";
    press(UGlobal::KeyOk);
    press(UGlobal::KeyDown);
    press(UGlobal::KeyRight);
    const auto commands = listener.commands(3);
    ASSERT_EQ(commands.size(), 3u);
    EXPECT_EQ(commands[0]->getType(), Command::Back);
    EXPECT_EQ(commands[1], &accept);
    EXPECT_EQ(commands[2], &refuse) << "Right is OK";
    Image* picture = reinterpret_cast<Image*>(this);
    popup.setPictureClip(picture);
    popup.setPictureClip(nullptr);
    EXPECT_EQ(screenText().find("icon0:"), std::string::npos);
}

TEST_F(PopupCallTest, AChangeOfLocaleReadsEveryLineAndChoiceAgain)
{
    TestTranslator translator;
    const auto text = [&](const char* key) { return new TranslationInfo("", key, "", &translator); };
    auto* line2 = text("line 2");
    MenuCommand choice(text("choice"), 3);
    CallPartyIdentifier bob("Bob", "");
    PopupCall popup;
    auto* aux = text("aux");
    for (int i = 0; i < 2; ++i)
        popup.setPopupCallDetails(bob, nullptr, FORWARDED_ALWAYS, "", aux);
    popup.setLine1PrefixText(text("prefix"));
    popup.setText(text("text"));
    popup.setState(PopupCall::INCOMING, PopupCall::NORMAL);
    popup.setLine2PrefixText(text("prefix 2"));
    popup.setLine2Text(line2);
    popup.addCommand(&choice);
    popup.setDefaultCommand(&accept);
    EXPECT_EQ(popup.getSelectedIndex(), 1) << "the row of line 2 comes first";
    popup.setState(PopupCall::BUSY, PopupCall::NORMAL);
    popup.setLine2Text(line2);
    popup.setLine2Text(text("nobody"));
    popup.setLine2Text("nobody");
    show(popup);
    EXPECT_EQ(fields(),
        "icon0:Busy|caption:prefix: aux: line 2text|subitem:|name:VantoListBoxItem|icon0:Forwarded|string0:choice|"
        "endsubitem:");
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(fields(),
        "icon0:Busy|caption:fr prefix: fr aux: fr textfr prefix 2: |subitem:|name:VantoListBoxItem|icon0:Forwarded|"
        "string0:fr choice|string1:fr line 2|endsubitem:")
        << "a state that clears line 2 keeps its translation";
}

TEST_F(PopupCallTest, ADeadChoiceTellsNobodyAndIsNoDefault)
{
    auto dead = std::make_unique<MenuCommand>("Dead?", 5);
    MenuCommand* address = dead.get();
    PopupCall popup;
    popup.addCommandListener(&listener);
    popup.addCommandListener(&listener);
    popup.addCommand(address);
    popup.addCommand(&refuse);
    dead.reset();
    show(popup);
    press(UGlobal::KeyOk);
    popup.setDefaultCommand(address);
    EXPECT_EQ(popup.getSelectedIndex(), 0);
    popup.setDefaultCommand(&refuse);
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{&refuse});
    EXPECT_EQ(PopupCall::HIDDEN_COMMAND()->getId(), 1001012345u);
}

#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallConnectedItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/List.h>

#include <TreeItemMEG.h>
#include <UApplication.h>
#include <UScreenWE1.h>
#include <UWindowManager.h>

using namespace DisplayAPI;

namespace {

using Call = CallConnectedItem;

class CallConnectedItemTest : public PhoneTest {
protected:
    /// A row that has become the list's.
    Call& append(Call::CallStateIcon state, const char* text, bool headset = false, bool speaker = false)
    {
        auto* info = new TranslationInfo("", text, "", &translator);
        auto* row = new Call(state, info, headset, nullptr, false, true, speaker, false, false);
        list.append(row);
        return *row;
    }

    TestTranslator translator;
    List list{0};
};

std::unique_ptr<Call> makeCall(Stage& stage)
{
    return std::make_unique<Call>(
        Call::CALL_ALERTING, stage.translation("Anna"), true, nullptr, true, true, false, true, true);
}

void setParty(Call& call, TranslationInfo* prefix)
{
    CallPartyIdentifier party("Bob", "4712");
    party.displayText = "Bob (4712)";
    CallPartyIdentifier second = party;
    call.setPartyDetails(party, &second, FORWARDED_ALWAYS, "group", prefix);
}

std::string tell(Call& call)
{
    return call.getText() + "|" + call.getCallId() + "|" + call.getPartyId() + (call.getEnabled() ? "|on" : "|off");
}

}

INSTANTIATE_TEST_SUITE_P(CallConnectedItem, EveryRowTest,
    rowFamily(inList<Call>(), makeCall,
        {
            {"setText", [](auto& call, auto& stage) { call.setText(stage.translation("Carol")); }},
            {"setSecondLineText",
                [](auto& call, auto& stage) { call.setSecondLineText(stage.translation("on hold")); }},
            {"a party", [](auto& call, auto&) { setParty(call, nullptr); }},
            {"its prefix", [](auto& call, auto& stage) { setParty(call, stage.translation("team")); }},
            {"setCallId", [](auto& call, auto& stage) { call.setCallId(stage.translation("17")); }},
            {"setPartyId", [](auto& call, auto&) { call.setPartyId("18"); }},
            {"setSecurityState", [](auto& call, auto&) { call.setSecurityState(Call::CALL_SECURE); }},
            {"setRecordingState", [](auto& call, auto&) { call.setRecordingState(true); }},
            {"setState", [](auto& call, auto&) { call.setState(Call::CALL_ACTIVE); }},
            {"time", [](auto&, auto& stage) { stage.advance(2000); }},
            {"setMuteIcon", [](auto& call, auto&) { call.setMuteIcon(true); }},
            {"enabled", [](auto& call, auto&) { call.enabled(false); }},
            {"clearSecondLineText", [](auto& call, auto&) { call.clearSecondLineText(); }},
            {"clearing", [](auto& call, auto&) { call.setState(Call::CALL_CLEARING); }},
        },
        tell));

TEST_F(CallConnectedItemTest, EachStateHasItsWordAndTheDurationRunsWhileConnected)
{
    struct Case {
        int state;
        const char* word;
        const char* text;
    };
    const Case cases[]
        = {{5, "Alerting", "Anna  0:00"}, {4, "LineBusy", "Anna  0:00"}, {6, "CallStateNoIcon", "Anna  0:00"},
            {0, "CallStateActive", "Anna  0:01"}, {2, "CallStateHeldByThisEnd", "Anna  0:02"},
            {3, "CallStateHeldByFarEnd", "Anna  0:03"}, {1, "CallStateClearing", "Anna  0:03"}};
    Call& call = append(Call::CALL_ALERTING, "Anna");
    show(list);
    for (const Case& row : cases) {
        call.setState(static_cast<Call::CallStateIcon>(row.state));
        advance(1000);
        EXPECT_EQ(screenField("icon0"), row.word) << row.state;
        EXPECT_EQ(screenField("string0"), row.text) << row.state;
    }
    call.setDisplayHDIconStatus(true);
    EXPECT_EQ(screenField("icon0"), "CallStateClearing") << "shown by the next state";
    call.setState(Call::CALL_ACTIVE);
    EXPECT_EQ(screenField("icon0"), "CallStateActiveHD");
    const std::pair<int, const char*> security[]
        = {{1, "SecureCall"}, {2, "InsecureCall"}, {3, "(no such field)"}, {0, "(no such field)"}};
    for (const auto& [state, word] : security) {
        call.setSecurityState(static_cast<Call::CallSecurityState>(state));
        EXPECT_EQ(screenField("icon1"), word) << state;
    }
}

TEST_F(CallConnectedItemTest, TheMarksShowWhereTheVoiceIs)
{
    // The icons of the current row are inverse.
    append(Call::CALL_ALERTING, "Anna");
    Call& call = append(Call::CALL_ACTIVE, "Bob", true, true);
    show(list);
    EXPECT_TRUE(hasIcon(1, 0, 102)) << "the speaker, whatever the headset";
    call.setSpeakerIcon(false);
    EXPECT_FALSE(hasIcon(1, 0, 90)) << "the headset was not set";
    call.setHeadsetIcon(true);
    EXPECT_TRUE(hasIcon(1, 0, 90));
    call.setMuteIcon(true);
    EXPECT_TRUE(hasIcon(1, 0, 46));
}

TEST_F(CallConnectedItemTest, AChangeOfLocaleReadsEveryTextAgain)
{
    Call& call = append(Call::CALL_ALERTING, "Anna");
    const auto text = [&](const char* key) { return new TranslationInfo("<", key, ">", &translator); };
    setParty(call, text("team"));
    call.setSecondLineText(text("second"));
    call.setCallId(text("id"));
    show(list);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "subitem:", "name:Branch", "icon0:Alerting",
            "string0:team Bob (4712)  0:00", "endsubitem:", "subitem:", "name:Leaf", "string0:<second>",
            "endsubitem:", "end:"}))
        << "the prefix without what stands around it";
    call.clearSecondLineText();
    EXPECT_EQ(screenText().find("Leaf"), std::string::npos);
    EXPECT_EQ(call.getSecondLineText(), "");
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string0"), "<fr team> Bob (4712)  0:00");
    EXPECT_NE(screenText().find("string0:<fr second>"), std::string::npos);
    EXPECT_EQ(call.getCallId(), "<fr id>");
    setParty(call, nullptr);
    EXPECT_EQ(screenField("string0"), "group Bob (4712)  0:00");
    call.setText(text("Carol"));
    EXPECT_EQ(call.getText(), "<fr Carol>");
}

TEST_F(CallConnectedItemTest, TheLastCallThatIsClearedClearsTheScreen)
{
    auto* application = VantoUApplication::getCurrentApplication();
    Call& first = append(Call::CALL_ALERTING, "Anna");
    Call& second = append(Call::CALL_ALERTING, "Bob");
    show(list);
    application->releaseFullScreen();
    first.setState(Call::CALL_ACTIVE);
    EXPECT_TRUE(application->isFullScreen());
    const auto isBlank
        = [&] { return lineText(*UWindowManager::instance().screen(), 0).find("Anna") == std::string::npos; };
    pump();
    first.setState(Call::CALL_CLEARING);
    EXPECT_FALSE(isBlank()) << "another call is there";
    list.remove(&second);
    pump();
    first.setState(Call::CALL_CLEARING);
    EXPECT_TRUE(isBlank());
    pump();
    EXPECT_FALSE(isBlank()) << "until it is painted again";
    delete &second;
}

TEST_F(CallConnectedItemTest, ASecondCreationReplacesTheRowWhereItStands)
{
    Call& call = append(Call::CALL_ALERTING, "Anna");
    append(Call::CALL_ALERTING, "Bob");
    show(list);
    GuiRequestEvent again(&call, 19);
    again.ptrParam1 = new TranslationInfo("Carol", &translator);
    again.boolParam2 = true;
    call.processGuiRequest(again);
    EXPECT_EQ(screenField("string0"), "Carol  -> 0:00");
    EXPECT_EQ(call.getContextMenu(), nullptr);
    EXPECT_EQ(list.size(), 2);
}

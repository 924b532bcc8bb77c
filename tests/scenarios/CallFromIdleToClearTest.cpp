#include "PhoneTest.h"
#include "RecordingListener.h"

#include <DisplayAPI/CallConnectedItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/ForwardedCallType.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupCall.h>
#include <DisplayAPI/PopupDialer.h>

using namespace DisplayAPI;

namespace {

using CallFromIdleToClearTest = PhoneTest;

constexpr ForwardedCallType NotForwarded{5}; // none of the enumeration

}

TEST_F(CallFromIdleToClearTest, EachStepHasItsText)
{
    RecordingListener listener;
    MenuCommand call("Call?", 1);
    MenuCommand disconnect("Disconnect?", 2);
    PopupDialer dialer(true, 3);
    dialer.addCommand(&call);
    dialer.addCommandListener(&listener);
    IdleDisplay idle("");
    idle.setCurrentPhoneNumber("4711");
    idle.addDialer(&dialer);
    show(idle);
    const std::string atRest = lines({"object:", "name:IdleDisplay", "string0:4711", "end:"});
    EXPECT_EQ(screenText(), atRest);

    type("47");
    EXPECT_EQ(screenText(), "") << "the dialer lies over the idle screen, and nobody has made it current";
    show(dialer);
    type("12");
    EXPECT_EQ(screenText(), lines({"object:", "name:PopupDialler", "caption:4712", "string0:Call? ", "end:"}));
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{&call});

    CallPartyIdentifier party("Anna", dialer.getLineEditText());
    party.displayText = "Anna";
    dialer.dismiss();
    EXPECT_EQ(screenText(), atRest);
    PopupCall outgoing;
    outgoing.addCommand(&disconnect);
    outgoing.setPopupCallDetails(party, nullptr, NotForwarded, "", nullptr);
    outgoing.setState(PopupCall::RINGING, PopupCall::NORMAL);
    show(outgoing);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:PopupCall", "icon0:Ringing", "caption:Anna 4712", "subitem:", "name:VantoListBoxItem",
            "string0:Disconnect?", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(1).substr(0, 11), "Disconnect?");

    List connected(0);
    auto* row = new CallConnectedItem(
        CallConnectedItem::CALL_ACTIVE, nullptr, false, nullptr, false, true, true, false, false);
    row->setPartyDetails(party, nullptr, NotForwarded, "", nullptr);
    connected.append(row);
    outgoing.dismiss();
    show(connected);
    advance(42000);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "subitem:", "name:Branch", "icon0:CallStateActive", "string0:Anna  0:42",
            "endsubitem:", "end:"}));

    row->setState(CallConnectedItem::CALL_CLEARING);
    EXPECT_EQ(screenField("icon0"), "CallStateClearing");
    connected.remove(row);
    delete row;
    show(idle);
    EXPECT_EQ(screenText(), atRest);
    display->setCurrent(nullptr);
}

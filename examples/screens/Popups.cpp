#include "Popups.h"

#include "Stage.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/MenuCommand.h>

using namespace DisplayAPI;

namespace {

constexpr ForwardedCallType NotForwarded{5}; // none of the enumeration, so that no text says so

/// A call of Bob that may be for Carol.
void showCallOf(
    Stage& stage, PopupCall::CallState state, PopupCall::CallPriority priority, ForwardedCallType type = NotForwarded)
{
    CallPartyIdentifier bob("Bob", "4712");
    CallPartyIdentifier carol("Carol", "4713");
    auto& popup = stage.make<PopupCall>();
    popup.setPopupCallDetails(bob, type == NotForwarded ? nullptr : &carol, type, "", nullptr);
    popup.setState(state, priority);
    popup.addCommand(&stage.make<MenuCommand>("Accept?", 1));
    popup.addCommand(&stage.make<MenuCommand>("Reject?", 2));
    stage.showOver(popup);
}

PopupNotification& makeNotice(Stage& stage, int type)
{
    auto& popup = stage.make<PopupNotification>();
    popup.setType(static_cast<PopupNotification::InfoType>(type));
    popup.setText("First line");
    popup.setLine2Text("Second line");
    return popup;
}

}

void showCall(Stage& stage, int state)
{
    showCallOf(stage, static_cast<PopupCall::CallState>(state), PopupCall::NORMAL);
}

void showPriority(Stage& stage, int priority)
{
    showCallOf(stage, PopupCall::INCOMING, static_cast<PopupCall::CallPriority>(priority));
}

void showForwardedCall(Stage& stage, int type)
{
    showCallOf(stage, PopupCall::INCOMING, PopupCall::NORMAL, static_cast<ForwardedCallType>(type));
}

void showNotice(Stage& stage, int type)
{
    stage.showOver(makeNotice(stage, type));
}

void showLongNotice(Stage& stage, int)
{
    PopupNotification& popup = makeNotice(stage, PopupNotification::INFO);
    popup.setLine3Text("Third line");
    stage.showOver(popup);
}

void showQuestion(Stage& stage, int state)
{
    auto& popup = stage.make<PopupConfirm>(true);
    popup.setState(static_cast<PopupConfirm::PopupState>(state));
    popup.setText("Go on?");
    popup.addCommand(&stage.make<MenuCommand>("No?", 1));
    popup.addCommand(&stage.make<MenuCommand>("Yes?", 2));
    stage.showOver(popup);
}

void showWork(Stage& stage, int type)
{
    auto& popup = stage.make<PopupProgress>();
    popup.setType(static_cast<PopupProgress::InfoType>(type));
    popup.setText("Mobile user");
    popup.setCurrentStageText("Stage 3/5");
    popup.updateProgressBar(60);
    stage.showOver(popup);
}

void showMenu(Stage& stage, int)
{
    auto& menu = stage.make<ContextMenu>(true);
    // The voice is there when the first row is added.
    menu.setLoudSpeakerStatus(true);
    menu.addCommand(&stage.make<MenuCommand>("Loudspeaker?", 1), nullptr, false, true, "Speaker");
    menu.setLoudSpeakerStatus(false);
    menu.addCommand(&stage.make<MenuCommand>("Mute?", 2), nullptr, false, false, "");
    stage.showOver(menu);
}

#include "Rows.h"

#include "Stage.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/ExpandingTreeList.h>
#include <DisplayAPI/QVTList.h>
#include <DisplayAPI/TextBox.h>
#include <DisplayAPI/TranslationInfo.h>
#include <DisplayAPI/WaveStyleListItem.h>

using namespace DisplayAPI;

namespace {

constexpr Icons::IconType Triangle{345};

/// The row becomes the list's. What changes it on the glass comes behind.
void showInList(Stage& stage, const std::string& title, ListItem* row)
{
    auto& list = stage.make<List>(0);
    list.setTitle(title);
    list.append(row);
    stage.show(list);
}

/// A list of calls has no title.
CallConnectedItem* showCallRow(Stage& stage, CallConnectedItem::CallStateIcon state)
{
    auto* row = new CallConnectedItem(state, nullptr, false, nullptr, true, true, false, false, false);
    row->setText("Bob 4712");
    auto& list = stage.make<List>(0);
    list.append(row);
    stage.show(list);
    return row;
}

CallPartyIdentifier* bob(int icon)
{
    auto* party = new CallPartyIdentifier("Bob", "4712");
    party->numberIconType = static_cast<CallPartyIdentifier::PhoneNumberIconType>(icon);
    return party;
}

TranslationInfo* text(const std::string& words)
{
    return new TranslationInfo(words, nullptr);
}

void showInForwarding(Stage& stage, CallForwardItem* item)
{
    auto& list = stage.make<ExpandingTreeList>(false);
    list.setTitle("Forwarding");
    list.append(item);
    stage.show(list);
}

}

void showConnected(Stage& stage, int state)
{
    showCallRow(stage, static_cast<CallConnectedItem::CallStateIcon>(state));
}

void showSecurity(Stage& stage, int state)
{
    showCallRow(stage, CallConnectedItem::CALL_ACTIVE)
        ->setSecurityState(static_cast<CallConnectedItem::CallSecurityState>(state));
}

void showBetterVoice(Stage& stage, int)
{
    CallConnectedItem* row = showCallRow(stage, CallConnectedItem::CALL_ACTIVE);
    row->setDisplayHDIconStatus(true);
    row->setState(CallConnectedItem::CALL_ACTIVE);
}

void showSecondLine(Stage& stage, int)
{
    showCallRow(stage, CallConnectedItem::CALL_ACTIVE)->setSecondLineText("for Sales");
}

void showRecording(Stage& stage, int)
{
    showCallRow(stage, CallConnectedItem::CALL_ACTIVE)->setRecordingState(true);
}

void showLogRow(Stage& stage, int icon)
{
    showInList(stage, "Call log", new CallLogMainItem(bob(icon), "2000-12-24 18:30", 2, false, false));
}

void showLogRowOfElsewhere(Stage& stage, int icon)
{
    showInList(stage, "Call log", new CallLogMainItem(bob(icon), "2000-12-24 18:30", 1, false, true, 0, true));
}

void showBoldLogRow(Stage& stage, int)
{
    showInList(
        stage, "Call log", new CallLogMainItem(bob(CallLogMainItem::NoIcon), "2000-12-24 18:30", 1, true, false));
}

void showLine(Stage& stage, int state)
{
    showInList(stage, "Lines",
        new LineOverviewItem(static_cast<LineOverviewItem::LineState>(state), "4711", "Bob", true, nullptr));
}

void showRow(Stage& stage, int)
{
    auto* row = new ListItem("Bob", true);
    row->setLeftIcon(Triangle);
    row->setRightText("10:42");
    showInList(stage, "Messages", row);
}

void showWaveStyleRow(Stage& stage, int)
{
    ListItem* row = new WaveStyleListItem("", true); // its own texts are for other telephones
    row->setText("Bob");
    showInList(stage, "Conversations", row);
}

void showBar(Stage& stage, int)
{
    auto* row = new ListItem(ListItem::InfiniteProgressItem);
    row->setText("Searching");
    showInList(stage, "Directory", row);
    row->startInfiniteProgressBar();
}

void showQVTList(Stage& stage, int)
{
    auto& list = stage.make<QVTList>();
    for (const char* row : {"Calls", "Messages", "Settings"})
        list.append(row);
    stage.show(list);
    list.setSelectedIndex(1); // only such a row has the highlight
}

void showForwarding(Stage& stage, int icon)
{
    auto* item = new CallForwardItem(static_cast<CallLogMainItem::IconType>(icon), text("All calls"), false, true);
    showInForwarding(stage, item);
    if (icon == CallLogMainItem::NoIcon)
        item->check();
    else
        item->setCFIconVisible(true);
}

void showUncheckedForwarding(Stage& stage, int)
{
    showInForwarding(stage, new CallForwardItem(CallLogMainItem::NoIcon, text("All calls"), false, true));
}

void showForwardingText(Stage& stage, int)
{
    showInForwarding(stage, new CallForwardItem(text("No forwarding")));
}

void showText(Stage& stage, int)
{
    auto& box = stage.make<TextBox>(true);
    box.setText("A text that takes more lines than the two of the glass, so that Down leads on.", false);
    stage.show(box);
}

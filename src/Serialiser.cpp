#include "Serialiser.h"

#include "ScreenTextWriter.h"
#include "WidgetRects.h"

#include <CallRowsMEG.h>
#include <TreeItemMEG.h>
#include <Types.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>

#include <array>
#include <string_view>

namespace DisplayAPI {

namespace {

constexpr std::string_view ContextArrow = " ->";

// By BranchMEG::IconType.
constexpr std::array<std::string_view, 8> CallStates = {"CallStateActive", "CallStateClearing",
    "CallStateHeldByThisEnd", "CallStateHeldByFarEnd", "CallStateNoIcon", "LineBusy", "Alerting", "CallStateActiveHD"};

// By the icon type of a row of the call log or of the call backs. Type 4 has no line at all.
constexpr std::array<std::string_view, 4> PartyKinds = {"Private", "Business1", "Business2", "Mobile"};
constexpr int NoPartyKind = 4;

template <std::size_t Count>
constexpr std::string_view word(
    const std::array<std::string_view, Count>& words, int number, std::string_view otherwise)
{
    return number >= 0 && number < static_cast<int>(Count) ? words[static_cast<std::size_t>(number)] : otherwise;
}

void writePlainRow(ScreenTextWriter& writer, const VantoListBoxItemMEG& row)
{
    writer.subitem("VantoListBoxItem");
    writer.startField("string0");
    writer.value(" ");
    writer.value(row.getText().toUTF8());
    if (row.drawCMA())
        writer.value(ContextArrow);
    writer.endField();
    writer.endSubitem();
}

/// "string0: " and a text, with the arrow behind it where the row is current.
void writeRowText(ScreenTextWriter& writer, const UString& text, const VantoListBoxItemMEG& row, bool isCurrent)
{
    writer.startField("string0");
    writer.value(" ");
    writer.value(text.toUTF8());
    if (isCurrent && row.drawCMA())
        writer.value(ContextArrow);
    writer.endField();
}

void writeCallLogRow(ScreenTextWriter& writer, const CallLogListItemMEG& row, bool isCurrent)
{
    writer.subitem("CallLogListItem");
    std::string_view iconKey = "icon0";
    if (row.completedElsewhere()) {
        writer.field(iconKey, "CompletedElsewhere");
        iconKey = "icon1";
    }
    if (row.getIconType() != NoPartyKind)
        writer.field(iconKey, word(PartyKinds, row.getIconType(), "NoIcon"));
    writeRowText(writer, row.getDisplayedText(), row, isCurrent);
    writer.spacedField("string1", ClientUtils::itos(row.numberOfCalls()));
    writer.spacedField("string2", (row.dateIsPresentDay() ? row.time() : row.date()).toUTF8());
    writer.endSubitem();
}

void writeCallBackState(ScreenTextWriter& writer, const CallBackListItemMEG& row)
{
    const bool isPaused = row.getCallBackState() == CallBackListItemMEG::Paused;
    if (row.getCallBackType() == CallBackListItemMEG::NoReply)
        writer.field("icon", isPaused ? "CallBackNoReply-Paused" : "CallBackNoReply-Active");
    else if (row.getCallBackType() == CallBackListItemMEG::Busy)
        writer.field("icon", isPaused ? "CallBackBusy-Paused" : "CallBackBusy-Active");
}

void writeCallBackRow(ScreenTextWriter& writer, const CallBackListItemMEG& row, bool isCurrent)
{
    writer.subitem("CallBackListItem");
    writeCallBackState(writer, row);
    writeRowText(writer, row.getText(), row, isCurrent);
    if (row.getIconType() != NoPartyKind)
        writer.field("icon", word(PartyKinds, row.getIconType(), "NoIcon"));
    writer.spacedField("string1", (row.dateIsPresentDay() ? row.time() : row.date()).toUTF8());
    writer.endSubitem();
}

void writeSecurity(ScreenTextWriter& writer, BranchMEG::CallSecurityState state)
{
    if (state == BranchMEG::SecureCall)
        writer.field("icon1", "SecureCall");
    else if (state == BranchMEG::InsecureCall)
        writer.field("icon1", "InsecureCall");
}

/// The line below a call, where one of the rectangles holds it whole.
void writeLeaf(ScreenTextWriter& writer, const std::vector<URect>& rects, const BranchMEG& branch)
{
    const TreeElement* child = branch.childElement(0);
    if (!child || child->elementKind() != TreeElement::LeafElement || !branch.childShown())
        return;
    const auto& leaf = static_cast<const Leaf&>(*child);
    if (!isWhollyIn(leaf.getRect(), rects) || leaf.text().isEmpty())
        return;
    writer.subitem("Leaf");
    writer.field("string0", leaf.text().toUTF8());
    writer.endSubitem();
}

void writeBranch(ScreenTextWriter& writer, const std::vector<URect>& rects, const BranchMEG& branch,
    const VantoListBoxItemMEG* current, bool isCurrent)
{
    writer.subitem("Branch");
    writer.field("icon0", word(CallStates, branch.getFirstIconType(), "Unknown"));
    writer.startField("string0");
    writer.value(branch.text().toUTF8());
    if (isCurrent) {
        writer.value(" ");
        if (current && branch.hasContextMenuArrow() && current->isVisible())
            writer.value(ContextArrow);
        writer.value(" ");
    } else {
        writer.value("   ");
    }
    writer.value(branch.getTimeDuration().toUTF8());
    writer.endField();
    if (isCurrent)
        writeSecurity(writer, branch.getCallSecurityState());
    writer.endSubitem();
    writeLeaf(writer, rects, branch);
}

void writeRow(ScreenTextWriter& writer, const std::vector<URect>& rects, const VantoListBoxItemMEG& current)
{
    switch (current.getItemType()) {
    case VantoListBoxItemMEG::PlainRow:
    case VantoListBoxItemMEG::LeftIconRow: writePlainRow(writer, current); break;
    case VantoListBoxItemMEG::TreeRow:
        writeBranch(writer, rects, *static_cast<const TreeItemMEG&>(current).branch, &current, true);
        break;
    case VantoListBoxItemMEG::CallLogRow:
        writeCallLogRow(writer, static_cast<const CallLogListItemMEG&>(current), true);
        break;
    case VantoListBoxItemMEG::CallBackRow:
        writeCallBackRow(writer, static_cast<const CallBackListItemMEG&>(current), true);
        break;
    }
}

/// The row at an index, if it is of this kind.
template <typename Row>
const Row* rowAt(int index, VantoListBoxWithTitleMEG* list)
{
    return list && index >= 0 ? dynamic_cast<const Row*>(list->list()->item(index)) : nullptr;
}

}

std::string Serialiser::serialiseVantoListBox(std::vector<URect> rects, VantoListBoxWithTitleMEG* list)
{
    if (!list)
        return {};
    ScreenTextWriter writer;
    writer.object("VantoListBox");
    if (!list->getTitle().isEmpty()) {
        writer.field("caption", list->listTitle()->text().toUTF8());
        mHasCaption = true;
    }
    if (const VantoListBoxItemMEG* current = list->list()->currentItem())
        writeRow(writer, rects, *current);
    writer.endObject();
    return writer.take();
}

std::string Serialiser::serialiseBranch(
    std::vector<URect> rects, BranchMEG* branch, VantoListBoxWithTitleMEG* list, int index)
{
    if (!branch || !list)
        return {};
    const VantoListBoxItemMEG* current = list->list()->currentItem();
    ScreenTextWriter writer;
    writeBranch(writer, rects, *branch, current, index == list->list()->indexOf(current));
    return writer.take();
}

std::string Serialiser::doCallLogListItem(int index, VantoListBoxWithTitleMEG* list)
{
    const auto* row = rowAt<CallLogListItemMEG>(index, list);
    if (!row)
        return {};
    ScreenTextWriter writer;
    writeCallLogRow(writer, *row, index == list->list()->currentIndex());
    return writer.take();
}

std::string Serialiser::doCallBackListItem(int index, VantoListBoxWithTitleMEG* list)
{
    const auto* row = rowAt<CallBackListItemMEG>(index, list);
    if (!row)
        return {};
    ScreenTextWriter writer;
    writeCallBackRow(writer, *row, index == list->list()->currentIndex());
    return writer.take();
}

}

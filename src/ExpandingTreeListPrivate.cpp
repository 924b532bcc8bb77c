#include "ExpandingTreeListPrivate.h"

#include <DisplayAPI/ExpandingTreeListItemPrivateIfc.h>

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <VantoListBoxMEG.h>

#include <algorithm>

namespace DisplayAPI {

namespace {

/// The kind of the rows that have a check box, or an icon in its place.
constexpr int CheckedKind = 4;

std::string branchText(const CallForwardListItemMEG& row, int number)
{
    return row.branchText(number).toUTF8();
}

void writeBranchTexts(ScreenTextWriter& writer, const CallForwardListItemMEG& row)
{
    writer.field("string0", branchText(row, 1));
    writer.field("string1", branchText(row, 2));
    writer.field("string2", branchText(row, 3) + " ");
}

}

ExpandingTreeListPrivate::ExpandingTreeListPrivate(ExpandingTreeList* parent)
    : mParent(parent)
{
    assertGuiThread();
    mWidget->setListener(this);
    joinApplication(this);
}

ExpandingTreeListPrivate::~ExpandingTreeListPrivate()
{
    assertGuiThread();
    leaveApplication(this);
}

void ExpandingTreeListPrivate::show()
{
    if (!mWidget)
        return;
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
    mWidget->show();
}

// Rows and title

void ExpandingTreeListPrivate::append(ExpandingTreeListItemPrivateIfc* item)
{
    assertGuiThread();
    if (!item || !mWidget)
        return;
    if (ExpandingListItemBaseMEG* row = item->getWidget())
        mWidget->addTopLevelItem(row);
    item->releaseOwnership();
}

void ExpandingTreeListPrivate::clear()
{
    assertGuiThread();
    if (mWidget)
        mWidget->clear();
}

int ExpandingTreeListPrivate::getSelectedIndex()
{
    const ExpandingListItemBaseMEG* row = mWidget ? mWidget->currentTopLevelItem() : nullptr;
    return row ? mWidget->indexOfTopLevelItem(row) : -1;
}

void ExpandingTreeListPrivate::setReadonly(int index, bool readOnly)
{
    if (mWidget)
        mWidget->list()->setReadOnly(index, readOnly);
}

void ExpandingTreeListPrivate::setRightArrowEqualsOK(bool equals)
{
    if (mWidget)
        mWidget->list()->setRightArrowEqualsOK(equals);
}

void ExpandingTreeListPrivate::setTitle(const std::string& title)
{
    showTitle(mTitleInfo.show(title));
    generateDisplayChangedEvent();
}

void ExpandingTreeListPrivate::setTitle(TranslationInfo* title)
{
    showTitle(mTitleInfo.show(title));
    generateDisplayChangedEvent();
}

void ExpandingTreeListPrivate::localeChanged(std::string)
{
    if (mTitleInfo)
        showTitle(mTitleInfo.completeString());
}

void ExpandingTreeListPrivate::showTitle(const std::string& title)
{
    if (mWidget)
        mWidget->setTitle(UString(title));
}

// What the user does

void ExpandingTreeListPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::RowMoved:
    case EventType::BranchesFolded: rowMoved(); break;
    case EventType::PopupRowMoved: generateDisplayChangedEvent(); break;
    case EventType::RowChosen: selectedEvent(); break;
    case EventType::LeftPressed:
        if (auto* application = VantoUApplication::getCurrentApplication())
            application->releaseFullScreen();
        leftEvent();
        break;
    case EventType::RightPressed: rightEvent(); break;
    case EventType::LocaleChanged: localeChanged({}); break;
    default: break;
    }
}

void ExpandingTreeListPrivate::rowMoved()
{
    LifeNode life(this);
    generateDisplayChangedEvent();
    if (life.isAlive() && mWidget)
        mWidget->refresh();
}

void ExpandingTreeListPrivate::tell(Command& command)
{
    postCommandTo(mListeners, &command, mParent);
}

// Screen text: of the row that has the highlight, on itself or on one of its branches

std::string ExpandingTreeListPrivate::serialise()
{
    if (!mWidget)
        return {};
    ScreenTextWriter writer;
    writer.object("ExpandingListBox");
    serialiseTitle(writer);
    serialiseTopItem(writer);
    writer.endObject();
    return writer.take();
}

std::string ExpandingTreeListPrivate::serialise(const std::vector<Rect>&)
{
    return serialise();
}

void ExpandingTreeListPrivate::serialiseTitle(ScreenTextWriter& writer) const
{
    const std::string title = mWidget->getTitle().toUTF8();
    if (title.empty())
        return;
    writer.field("caption", title);
    writer.field("string0", std::to_string(mWidget->list()->currentIndex() + 1));
}

int ExpandingTreeListPrivate::getSelectedIndexForSerialisation()
{
    return std::max(getSelectedIndex(), 0);
}

void ExpandingTreeListPrivate::serialiseTopItem(ScreenTextWriter& writer)
{
    const auto* top
        = dynamic_cast<const CallForwardListItemMEG*>(mWidget->topLevelItem(getSelectedIndexForSerialisation()));
    writer.subitem("ExpandingListBoxItem");
    if (top && top->kind() == CheckedKind)
        serialiseCheckedRow(writer, *top);
    else if (top)
        serialiseTextRow(writer, *top);
    writer.endSubitem();
}

void ExpandingTreeListPrivate::serialiseCheckedRow(ScreenTextWriter& writer, const CallForwardListItemMEG& top) const
{
    const VantoListBoxItemMEG* current = mWidget->list()->currentItem();
    if (top.firstDisplayFlag()) {
        if (top.secondDisplayFlag())
            writer.field("icon0", "Forwarded");
    } else if (&top == current) {
        serialiseCheckboxIconIfRequired(writer, top);
    }
    serialiseTopItemScrollArrows(writer);
    writer.field("string0", current && current->isVisible() ? current->getText().toUTF8() : std::string());
}

void ExpandingTreeListPrivate::serialiseTextRow(ScreenTextWriter& writer, const CallForwardListItemMEG& top) const
{
    const VantoListBoxItemMEG* current = mWidget->list()->currentItem();
    if (&top == current) {
        writer.field("string0", top.getText().toUTF8() + " ");
    } else if (current && current == top.branchRow(0) && top.branchMode() != 1) {
        writer.value("Forwarded");
        writer.endField();
        writer.field("string0", branchText(top, 4) + branchText(top, 5) + " ");
    } else if (current && (current == top.branchRow(0) || current == top.branchRow(1))) {
        writeBranchTexts(writer, top);
    }
}

void ExpandingTreeListPrivate::serialiseCheckboxIconIfRequired(
    ScreenTextWriter& writer, const CallForwardListItemMEG& row) const
{
    if (row.isCheckboxIcon())
        writer.field("icon0", row.checked() ? "checked" : "unchecked");
}

void ExpandingTreeListPrivate::serialiseTopItemScrollArrows(ScreenTextWriter& writer) const
{
    const VantoListBoxMEG& list = *mWidget->list();
    const int last = list.count() - 1;
    const int current = list.currentIndex();
    if (!list.isVisible() || last < 1 || current < 0)
        return;
    if (current == 0)
        writer.field("icon3", "NavigationArrowDown");
    else if (current == last)
        writer.field("icon3", "NavigationArrowUp");
    else
        writer.field("icon3", "NavigationArrowUpDown");
}

}

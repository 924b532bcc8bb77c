#include "TreePrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>

namespace DisplayAPI {

namespace {

constexpr std::uint16_t MenuIcon = 57;
constexpr std::uint16_t MessagesIcon = 7;
constexpr std::uint16_t BranchIcon = 39;
constexpr std::uint16_t InsideIcon = 40;
constexpr std::uint16_t NoIcon = 0;

struct IconWord {
    int icon;
    const char* word;
};

constexpr IconWord TreeIcons[] = {
    {MenuIcon, "Menu"},
    {MessagesIcon, "Messages"},
};

constexpr IconWord Arrows[] = {
    {TwoLineDisplay::ArrowUp, "NavigationArrowUp"},
    {TwoLineDisplay::ArrowDown, "NavigationArrowDown"},
    {TwoLineDisplay::ArrowBoth, "NavigationArrowUpDown"},
};

/// A line with the word of an icon; empty if the icon has none.
template <std::size_t Count>
std::string iconLine(const char* key, const IconWord (&words)[Count], int icon)
{
    ScreenTextWriter writer;
    for (const IconWord& entry : words) {
        if (entry.icon == icon)
            writer.field(key, entry.word);
    }
    return writer.take();
}

std::string commonBackLabel()
{
    return backLabel(DisplayablePrivate::commonTranslator)->getCompleteString();
}

}

TreePrivate::TreePrivate(Tree* parent)
    : mParent(parent)
{
    assertGuiThread();
    mWidget->setEventHandler(this);
    joinApplication(this);
}

TreePrivate::~TreePrivate()
{
    assertGuiThread();
    for (TreeNodePrivate* node : mChildren)
        node->setTree(nullptr);
}

// Nodes

void TreePrivate::addNode(TreeNodePrivateIfc* node)
{
    auto* added = dynamic_cast<TreeNodePrivate*>(node);
    if (!added || added->isPlaced())
        return;
    added->setTree(this);
    mChildren.push_back(added);
    if (mChildren.size() == 1)
        mSelected = 0;
    draw();
}

int TreePrivate::getChildCount(bool recursive, bool withCollapsed) const
{
    return TreeNodePrivate::countRows(mChildren, recursive, withCollapsed);
}

TreeNodePrivate* TreePrivate::getChildNodeAtIndex(int index) const
{
    const TreeRows* rows = &mChildren;
    for (std::size_t i = 0; index >= 0 && i < rows->size();) {
        TreeNodePrivate* row = (*rows)[i];
        if (index == 0)
            return row;
        const int size = 1 + row->getChildCount(true, true);
        if (index < size) {
            rows = &row->children();
            i = 0;
            --index;
        } else {
            index -= size;
            ++i;
        }
    }
    return nullptr;
}

void TreePrivate::nodeDies(TreeNodePrivate& node)
{
    const auto open
        = std::find_if(mPath.begin(), mPath.end(), [&node](const OpenBranch& branch) { return branch.node == &node; });
    for (auto left = mPath.end() - open; left > 0; --left)
        closeLastBranch();
    leaveLevel(node);
    draw();
}

/// The row goes, and each place that the user has or had in its level stays at the row where it was.
void TreePrivate::leaveLevel(TreeNodePrivate& node)
{
    const TreeNodePrivate* branch = node.parent();
    const TreeRows& rows = branch ? branch->children() : mChildren;
    const auto row = static_cast<int>(std::find(rows.begin(), rows.end(), &node) - rows.begin());
    const bool isLast = row + 1 == static_cast<int>(rows.size());
    const auto adapt = [row, isLast](int& selected) {
        if (row < selected || (row == selected && isLast))
            --selected;
    };
    const TreeNodePrivate* above = nullptr;
    for (OpenBranch& open : mPath) {
        if (above == branch)
            adapt(open.savedSelection);
        above = open.node;
    }
    if (above == branch)
        adapt(mSelected);
    if (branch)
        node.leaveParent();
    else
        std::erase(mChildren, &node);
}

// The user's place

const TreeRows& TreePrivate::level() const
{
    return mPath.empty() ? mChildren : mPath.back().node->children();
}

TreeNodePrivate* TreePrivate::selectedNode() const
{
    const TreeRows& rows = level();
    const auto row = static_cast<std::size_t>(mSelected);
    return row < rows.size() ? rows[row] : nullptr;
}

bool TreePrivate::isOnPath(const TreeNodePrivate* node) const
{
    return std::any_of(mPath.begin(), mPath.end(), [node](const OpenBranch& open) { return open.node == node; });
}

/// Calls visit(node) for each node in front of the current row, in the order of their flat indices.
template <typename Visit>
void TreePrivate::walkToSelection(const Visit& visit) const
{
    const TreeRows* rows = &mChildren;
    for (const OpenBranch& open : mPath) {
        for (auto row = rows->begin(); row != rows->end() && *row != open.node; ++row)
            (*row)->walk(visit);
        visit(*open.node);
        rows = &open.node->children();
    }
    const TreeNodePrivate* selected = selectedNode();
    for (auto row = rows->begin(); selected && row != rows->end() && *row != selected; ++row)
        (*row)->walk(visit);
}

int TreePrivate::getSelectedIndex()
{
    const std::string label = commonBackLabel();
    int index = 0;
    walkToSelection([&index, &label](const TreeNodePrivate& node) { index += node.isBackRow(label) ? 0 : 1; });
    return index;
}

int TreePrivate::getSelectedIndexIncludeBack() const
{
    int index = 0;
    walkToSelection([&index](const TreeNodePrivate&) { ++index; });
    return index;
}

void TreePrivate::setSelectedIndex(int index)
{
    const auto rows = static_cast<int>(level().size());
    if (index >= 0 && index < rows)
        mSelected = index;
    else if (mPath.empty())
        std::printf("TreePrivate::setSelectedIndex -> invalid index %i m_vChildren %i \n", index, rows);
    else
        std::printf("TreePrivate::setSelectedIndex -> invalid index %i child count %i\n", index, rows);
}

void TreePrivate::expandNode(TreeNodePrivateIfc* node, bool select)
{
    auto* branch = dynamic_cast<TreeNodePrivate*>(node);
    const TreeRows& rows = level();
    const bool isRow = std::find(rows.begin(), rows.end(), branch) != rows.end();
    if (isRow && !branch->children().empty()) {
        mPath.push_back({branch, mSelected});
        branch->expand();
        selectAndDraw(0);
    } else if (select && (isRow || isOnPath(branch))) {
        selectAndDraw(0);
    }
}

void TreePrivate::selectAndDraw(int row)
{
    mSelected = row;
    draw();
}

void TreePrivate::closeLastBranch()
{
    mSelected = mPath.back().savedSelection;
    mPath.back().node->collapse();
    mPath.pop_back();
}

void TreePrivate::collapseOneNode(TreeNodePrivate* node)
{
    if (node->isCollapsed())
        return;
    closeLastBranch();
    draw();
}

void TreePrivate::collapseNode(TreeNodePrivateIfc* node)
{
    if (mPath.empty() || mPath.front().node != node || mPath.front().node->isCollapsed())
        return;
    while (!mPath.empty())
        closeLastBranch();
    draw();
}

// Name and icon

void TreePrivate::setTreeIcon(Tree::TreeIcon icon)
{
    mTreeIcon = icon == Tree::Menu ? MenuIcon : icon == Tree::Messages ? MessagesIcon : NoIcon;
}

void TreePrivate::localeChanged(std::string locale)
{
    if (mNameInfo)
        mName = mNameInfo.completeString();
    for (TreeNodePrivate* node : mChildren)
        node->localeChanged(locale);
    draw();
}

// Keys. Drawing and telling come last in each, since the subscriber or a listener may delete the tree

bool TreePrivate::onUp(const UKeyEvent* key)
{
    const int row = mSelected > 0 ? mSelected - 1 : lastRow();
    return move(key->state(), mHasJumpedUp, row, 0);
}

bool TreePrivate::onDown(const UKeyEvent* key)
{
    const int row = mSelected < lastRow() ? mSelected + 1 : 0;
    return move(key->state(), mHasJumpedDown, row, lastRow());
}

/// Held down, a key jumps to the end of the level, once; when it is released it moves by one row, unless it has jumped.
bool TreePrivate::move(int state, bool& hasJumped, int next, int end)
{
    const bool isStep = state == UGlobal::KeyReleased && !hasJumped;
    const bool isJump = state == UGlobal::KeyHeld;
    if (isJump || state == UGlobal::KeyPressed || state == UGlobal::KeyReleased)
        hasJumped = isJump;
    if ((isStep || isJump) && !mChildren.empty())
        selectAndDraw(isJump ? end : next);
    return true;
}

bool TreePrivate::onRight(const UKeyEvent*)
{
    return true;
}

bool TreePrivate::onLeft(const UKeyEvent*)
{
    if (mPath.empty())
        postCommand(&mBackCommand, mParent);
    else
        collapseOneNode(mPath.back().node);
    return true;
}

bool TreePrivate::onOK(const UKeyEvent*)
{
    TreeNodePrivate* node = selectedNode();
    if (!node)
        return true;
    if (!node->children().empty() && !node->isCollapsed())
        collapseNode(node);
    else if (!node->children().empty() && !node->getProtected())
        expandNode(node, true);
    else if (!node->children().empty() || node->hasContextArrow())
        rightPressedOnLeafNode();
    else if (!mPath.empty() && node->isBackRow(commonBackLabel()))
        collapseOneNode(mPath.back().node);
    else
        okPressedOnLeafNode();
    return true;
}

void TreePrivate::okPressedOnLeafNode()
{
    postCommand(&mOkCommand, mParent);
}

void TreePrivate::rightPressedOnLeafNode()
{
    postCommand(&mRightCommand, mParent);
}

bool TreePrivate::setEventHandler(GUIEventIfc*)
{
    return false;
}

bool TreePrivate::keyEvent(UKeyEvent* key)
{
    return key->type == EventType::Key && key->key() == UGlobal::KeyLeft && onLeft(key);
}

void TreePrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged("");
}

// Life on the screen

void TreePrivate::show()
{
    if (!mWidget)
        return;
    mWidget->show();
    mWidget->setEnabled(true);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
    draw();
}

void TreePrivate::lostFocus()
{
    if (mWidget)
        mWidget->setEnabled(false);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->releaseFullScreen();
}

void TreePrivate::draw()
{
    if (!mWidget)
        return;
    mWidget->clear();
    drawName();
    drawRow();
    mWidget->refresh();
    generateDisplayChangedEvent();
}

void TreePrivate::drawName()
{
    if (!mPath.empty()) {
        mWidget->addIcon(0, InsideIcon);
        mWidget->addText(0, UString(mPath.back().node->getBasicText()));
    } else {
        if (mTreeIcon != NoIcon)
            mWidget->addIcon(0, mTreeIcon);
        mWidget->addText(0, UString(mName));
    }
    mWidget->addText(0, UString(":"));
}

void TreePrivate::drawRow()
{
    TreeNodePrivate* node = selectedNode();
    if (!node) {
        mWidget->addText(1, UString());
        return;
    }
    if (!node->children().empty())
        mWidget->addIcon(1, BranchIcon);
    else if (!node->isBackRow(commonBackLabel()))
        mWidget->addIcon(1, NoIcon);
    mWidget->addText(1, UString(node->getText()));
    drawArrows();
}

void TreePrivate::drawArrows()
{
    const bool hasSeveral = lastRow() > 0;
    mWidget->setScrollIndication(hasSeveral);
    if (!hasSeveral) {
        mWidget->setArrowMode(TwoLineDisplay::NoArrow);
        return;
    }
    mWidget->addIcon(1, NoIcon);
    mWidget->setArrowMode(mSelected == 0 ? TwoLineDisplay::ArrowDown
            : mSelected == lastRow()     ? TwoLineDisplay::ArrowUp
                                         : TwoLineDisplay::ArrowBoth);
}

// Screen text

std::string TreePrivate::serialise()
{
    if (!mWidget)
        return {};
    ScreenTextWriter writer;
    writer.unnamedObject();
    writer.blocks(serialiseTopLine());
    writer.blocks(serialiseBottomLine());
    writer.endObject();
    return writer.take();
}

std::string TreePrivate::serialiseTopLine() const
{
    ScreenTextWriter writer;
    writer.field("name", "TreeList");
    writer.blocks(serialiseTopLineText());
    writer.blocks(serialiseTopLineIconIfRequierd());
    return writer.take();
}

std::string TreePrivate::serialiseTopLineText() const
{
    ScreenTextWriter writer;
    writer.field("caption", (mPath.empty() ? mName : "- " + mPath.back().node->getBasicText()) + ":");
    return writer.take();
}

std::string TreePrivate::serialiseTopLineIconIfRequierd() const
{
    return iconLine("icon", TreeIcons, mTreeIcon);
}

std::string TreePrivate::serialiseBottomLine() const
{
    ScreenTextWriter writer;
    writer.subitem("VantoListBoxItem");
    writer.blocks(serialiseBottomLineText());
    writer.blocks(serialiseScrollArrowsIfRequired());
    writer.endSubitem();
    return writer.take();
}

std::string TreePrivate::serialiseBottomLineText() const
{
    ScreenTextWriter writer;
    writer.startField("string0");
    if (TreeNodePrivate* node = selectedNode()) {
        writer.value(node->children().empty() ? "" : "+ ");
        writer.value(node->getText() + " ");
    }
    writer.endField();
    return writer.take();
}

std::string TreePrivate::serialiseScrollArrowsIfRequired() const
{
    return iconLine("icon3", Arrows, mWidget ? mWidget->arrowMode() : TwoLineDisplay::NoArrow);
}

}

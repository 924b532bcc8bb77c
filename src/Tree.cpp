#include <DisplayAPI/Command.h>
#include <DisplayAPI/Tree.h>
#include <DisplayAPI/TreeNode.h>
#include <DisplayAPI/TreePrivateIfc.h>

#include "LastingCommand.h"
#include "Road.h"
#include "TreeNodes.h"
#include "TreePrivate.h"

#include <utility>

namespace DisplayAPI {

enum class Tree::Request : int {
    Create = 0,
    Destroy = 1,
    AddNode = 3,
    AddTranslatedNode = 4,
    GetSelected = 5,
    GetSelectedIndex = 6,
    ExpandNode = 7,
    CollapseNode = 8,
    CollapseTreeToLevel = 9,
    SetTreeName = 11,
    SetTranslatedTreeName = 12,
    SetTreeIcon = 13,
    SetSelectedIndex = 19,
};

Tree::Tree()
    : mNodes(std::make_unique<TreeNodes>())
{
    create();
}

Tree::~Tree()
{
    destroy();
}

void Tree::create()
{
    if (!Road::wait(this, Request::Create))
        return;
    mName = "Tree";
    mPrivate = std::make_unique<TreePrivate>(this);
}

void Tree::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
    mNodes->deleteAll();
}

DisplayablePrivateIfc* Tree::getPrivateImpl()
{
    return mPrivate.get();
}

// Nodes

TreeNode* Tree::addNode(const std::string& text, int id)
{
    void* added = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::AddNode, text, id, result(added)))
        added = append(*half, new TreeNode(text, id));
    return static_cast<TreeNode*>(added);
}

TreeNode* Tree::addNode(TranslationInfo* text, int id)
{
    void* added = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::AddTranslatedNode, given(text), id, result(added)))
        added = append(*half, new TreeNode(text, id));
    return static_cast<TreeNode*>(added);
}

TreeNode* Tree::append(TreePrivateIfc& half, TreeNode* node)
{
    // The notice of the new row may delete the node, or the tree.
    LifeNode life(&half);
    mNodes->add(node);
    half.addNode(node->getPrivateImpl());
    return life.isAlive() && mNodes->contains(node) ? node : nullptr;
}

std::vector<TreeNode*> Tree::getTreeNodes() const
{
    return mNodes->all();
}

int Tree::getNodeCount() const
{
    return mNodes->size();
}

TreeNode* Tree::findItemAt(int index)
{
    return mNodes->find(index);
}

// The user's place

TreeNode* Tree::getSelected()
{
    void* selected = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelected, result(selected)))
        selected = findItemAt(half->getSelectedIndex());
    return static_cast<TreeNode*>(selected);
}

int Tree::getSelectedIndex()
{
    int index = -1;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectedIndex, result(index)))
        index = half->getSelectedIndex();
    return index;
}

void Tree::setSelectedIndex(int index)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetSelectedIndex, index))
        half->setSelectedIndex(index);
}

void Tree::expandNode(TreeNode* node, bool select)
{
    if (!node)
        return;
    // The node may have gone while the request was under way.
    auto* half = Road::wait(this, mPrivate, Request::ExpandNode, node, select);
    if (half && mNodes->holds(node))
        half->expandNode(node->getPrivateImpl(), select);
}

void Tree::collapseNode(TreeNode* node)
{
    if (!node)
        return;
    auto* half = Road::wait(this, mPrivate, Request::CollapseNode, node);
    if (half && mNodes->holds(node))
        half->collapseNode(node->getPrivateImpl());
}

// Name and icon

void Tree::setTreeName(std::string name)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTreeName, name))
        half->setTreeName(std::move(name));
}

void Tree::setTreeName(TranslationInfo* name)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTranslatedTreeName, given(name)))
        half->setTreeName(name);
}

void Tree::setTreeIcon(TreeIcon icon)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTreeIcon, icon))
        half->setTreeIcon(icon);
}

void Tree::localeChanged(std::string locale)
{
    for (TreeNode* node : mNodes->all())
        node->localeChanged(locale);
}

// Listeners

void Tree::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

Command* Tree::HIGHLIGHT_CHANGED_COMMAND()
{
    static Command* command = lastingCommand(Command::Menu);
    return command;
}

// Without effect on this telephone

void Tree::collapseTreeToLevel(int level)
{
    if (auto* half = Road::wait(this, mPrivate, Request::CollapseTreeToLevel, level))
        half->collapseTreeToLevel(level);
}

void Tree::setUsedWithTab(bool) { }

void Tree::setWrapAround(bool) { }

void Tree::restoreFocusAndShowHighlight() { }

void Tree::removeHighLight() { }

void Tree::insertChildNode(TreeNode*, TreeNode*, int) { }

void Tree::removeChildNode(TreeNode*, int) { }

// Road across threads

void Tree::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* node = static_cast<TreeNode*>(event.ptrParam1);
    const int number = event.intParam1;

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(); break;
    case Request::Destroy: destroy(); break;
    case Request::AddNode: answer(event.ptrResult, addNode(text, number)); break;
    case Request::AddTranslatedNode: answer(event.ptrResult, addNode(translation, number)); break;
    case Request::GetSelected: answer(event.ptrResult, getSelected()); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::ExpandNode: expandNode(node, event.boolParam1); break;
    case Request::CollapseNode: collapseNode(node); break;
    case Request::CollapseTreeToLevel: collapseTreeToLevel(number); break;
    case Request::SetTreeName: setTreeName(text); break;
    case Request::SetTranslatedTreeName: setTreeName(translation); break;
    case Request::SetTreeIcon: setTreeIcon(static_cast<TreeIcon>(number)); break;
    case Request::SetSelectedIndex: setSelectedIndex(number); break;
    }
    signalComplete(event);
}

}

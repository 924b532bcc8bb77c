#include <DisplayAPI/TreeNode.h>
#include <DisplayAPI/TreeNodePrivateIfc.h>

#include "Road.h"
#include "TreeNodePrivate.h"
#include "TreeNodes.h"

#include <utility>

namespace DisplayAPI {

enum class TreeNode::Request : int {
    Create = 0,
    CreateFromTranslation = 1,
    AddNode = 2,
    AddTranslatedNode = 3,
    EnableContextMenuArrow = 4,
    Destroy = 5,
    SetProtected = 6,
    GetProtected = 7,
    RemoveBack = 8,
};

TreeNode::TreeNode(const std::string& text, int id)
    : mNodes(std::make_unique<TreeNodes>())
    , mId(id)
{
    create(text);
}

TreeNode::TreeNode(TranslationInfo* text, int id)
    : mNodes(std::make_unique<TreeNodes>())
    , mId(id)
{
    create(text);
}

TreeNode::~TreeNode()
{
    destroy();
}

void TreeNode::create(const std::string& text)
{
    if (!Road::wait(this, Request::Create, text))
        return;
    mName = "TreeNode";
    mPrivate = std::make_unique<TreeNodePrivate>(text);
}

void TreeNode::create(TranslationInfo* text)
{
    if (!Road::wait(this, Request::CreateFromTranslation, given(text)))
        return;
    mName = "TreeNode";
    mPrivate = std::make_unique<TreeNodePrivate>(text);
}

void TreeNode::destroy()
{
    // First, so that nobody finds a node that is half gone.
    if (TreeNodes* owner = std::exchange(mOwner, nullptr))
        owner->forget(this);
    Road::end(this, mPrivate, Request::Destroy);
    mNodes->deleteAll();
}

TreeNodePrivateIfc* TreeNode::getPrivateImpl()
{
    return mPrivate.get();
}

// Children

TreeNode* TreeNode::addNode(const std::string& text, int id)
{
    void* added = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::AddNode, text, id, result(added)))
        added = append(*half, new TreeNode(text, id));
    return static_cast<TreeNode*>(added);
}

TreeNode* TreeNode::addNode(TranslationInfo* text, int id)
{
    void* added = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::AddTranslatedNode, given(text), id, result(added)))
        added = append(*half, new TreeNode(text, id));
    return static_cast<TreeNode*>(added);
}

TreeNode* TreeNode::append(TreeNodePrivateIfc& half, TreeNode* node)
{
    mNodes->add(node);
    half.addNode(node->getPrivateImpl());
    return node;
}

void TreeNode::removeBack(bool removed)
{
    if (auto* half = Road::wait(this, mPrivate, Request::RemoveBack, removed))
        half->removeBack(removed);
}

std::vector<TreeNode*> TreeNode::getChildNodes() const
{
    return mNodes->all();
}

// The row

std::string TreeNode::getText() const
{
    return mPrivate ? mPrivate->getText() : std::string();
}

void TreeNode::enableContextMenuArrow(bool enabled)
{
    if (auto* half = Road::wait(this, mPrivate, Request::EnableContextMenuArrow, enabled))
        half->enableContextMenuArrow(enabled);
}

void TreeNode::setProtected(bool isProtected)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetProtected, isProtected))
        half->setProtected(isProtected);
}

bool TreeNode::getProtected()
{
    bool isProtected = false;
    if (auto* half = Road::wait(this, mPrivate, Request::GetProtected, result(isProtected)))
        isProtected = half->getProtected();
    return isProtected;
}

void TreeNode::setInactive(bool inactive)
{
    if (mPrivate)
        mPrivate->setInactive(inactive);
}

void TreeNode::localeChanged(std::string locale)
{
    if (mPrivate)
        mPrivate->localeChanged(std::move(locale));
}

// Without effect on this telephone

TreeNode* TreeNode::insertNode(TranslationInfo*, int, int)
{
    return nullptr;
}

TreeNode* TreeNode::insertNode(TreeNode*, int)
{
    return nullptr;
}

void TreeNode::removeNode(int) { }

void TreeNode::subMenuIndicator(bool) { }

// Road across threads

void TreeNode::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(text); break;
    case Request::CreateFromTranslation: create(translation); break;
    case Request::AddNode: answer(event.ptrResult, addNode(text, event.intParam1)); break;
    case Request::AddTranslatedNode: answer(event.ptrResult, addNode(translation, event.intParam1)); break;
    case Request::EnableContextMenuArrow: enableContextMenuArrow(event.boolParam1); break;
    case Request::Destroy: destroy(); break;
    case Request::SetProtected: setProtected(event.boolParam1); break;
    case Request::GetProtected: answer(event.boolResult, getProtected()); break;
    case Request::RemoveBack: removeBack(event.boolParam1); break;
    }
    signalComplete(event);
}

}

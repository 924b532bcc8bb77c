#include "TreeNodePrivate.h"

#include <DisplayAPI/DisplayablePrivate.h>

#include "GuiThread.h"
#include "TreePrivate.h"

namespace DisplayAPI {

TreeNodePrivate::TreeNodePrivate(const std::string& text)
    : mText(text)
{
    assertGuiThread();
}

TreeNodePrivate::TreeNodePrivate(TranslationInfo* text)
{
    assertGuiThread();
    mText = mInfo.show(text);
}

TreeNodePrivate::~TreeNodePrivate()
{
    assertGuiThread();
    removeBackItem();
    for (TreeNodePrivate* child : mChildren)
        child->mParent = nullptr;
    // The tree is drawn anew, and its notice is the last that happens here.
    if (TreePrivate* shown = tree())
        shown->nodeDies(*this);
    else
        leaveParent();
}

TreePrivate* TreeNodePrivate::tree() const
{
    const TreeNodePrivate* top = this;
    while (top->mParent)
        top = top->mParent;
    return top->mTree;
}

void TreeNodePrivate::leaveParent()
{
    if (mParent)
        std::erase(mParent->mChildren, this);
    mParent = nullptr;
}

// Texts

void TreeNodePrivate::localeChanged(std::string locale)
{
    if (mInfo)
        mText = mInfo.completeString();
    for (TreeNodePrivate* child : mChildren)
        child->localeChanged(locale);
}

// Children

void TreeNodePrivate::addNode(TreeNodePrivateIfc* child)
{
    auto* added = dynamic_cast<TreeNodePrivate*>(child);
    if (!added || added->isPlaced())
        return;
    removeBackItem();
    added->mParent = this;
    mChildren.push_back(added);
    if (!mHasRemovedBack)
        addBackItem();
}

void TreeNodePrivate::addBackItem()
{
    TranslatorIfc* translator = getTranslator();
    if (!translator)
        translator = DisplayablePrivate::commonTranslator;
    auto* back = new TreeNodePrivate(backLabel(translator).release());
    back->mIsMadeByLibrary = true;
    mChildren.push_back(back);
}

void TreeNodePrivate::removeBackItem()
{
    if (mChildren.empty() || !mChildren.back()->mIsMadeByLibrary)
        return;
    delete mChildren.back();
    mChildren.pop_back();
}

int TreeNodePrivate::countRows(const TreeRows& rows, bool recursive, bool withCollapsed)
{
    int count = static_cast<int>(rows.size());
    if (!recursive)
        return count;
    for (const TreeNodePrivate* row : rows) {
        if (withCollapsed || !row->isCollapsed())
            count += countRows(row->mChildren, recursive, withCollapsed);
    }
    return count;
}

int TreeNodePrivate::getChildCount(bool recursive, bool withCollapsed) const
{
    return countRows(mChildren, recursive, withCollapsed);
}

bool TreeNodePrivate::isBackRow(const std::string& label) const
{
    return mIsMadeByLibrary || mText == "Back?" || mText == label;
}

// State

void TreeNodePrivate::expand()
{
    if (!mChildren.empty())
        mIsCollapsed = false;
}

}

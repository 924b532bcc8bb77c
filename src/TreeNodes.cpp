#include "TreeNodes.h"

#include <DisplayAPI/TreeNode.h>

#include <algorithm>

namespace DisplayAPI {

void TreeNodes::add(TreeNode* node)
{
    std::lock_guard lock(mMutex);
    node->mOwner = this;
    mNodes.push_back(node);
}

void TreeNodes::forget(const TreeNode* node)
{
    std::lock_guard lock(mMutex);
    std::erase(mNodes, node);
}

void TreeNodes::deleteAll()
{
    for (;;) {
        TreeNode* last = nullptr;
        {
            std::lock_guard lock(mMutex);
            if (mNodes.empty())
                return;
            last = mNodes.back();
            last->mOwner = nullptr;
            mNodes.pop_back();
        }
        delete last;
    }
}

std::vector<TreeNode*> TreeNodes::all() const
{
    std::lock_guard lock(mMutex);
    return mNodes;
}

int TreeNodes::size() const
{
    std::lock_guard lock(mMutex);
    return static_cast<int>(mNodes.size());
}

bool TreeNodes::contains(const TreeNode* node) const
{
    std::lock_guard lock(mMutex);
    // From the end: mostly it is asked about the newest.
    return std::find(mNodes.rbegin(), mNodes.rend(), node) != mNodes.rend();
}

bool TreeNodes::holds(const TreeNode* node) const
{
    std::lock_guard lock(mMutex);
    return std::any_of(mNodes.begin(), mNodes.end(),
        [node](const TreeNode* entry) { return entry == node || entry->mNodes->holds(node); });
}

TreeNode* TreeNodes::find(int index) const
{
    return index < 0 ? nullptr : walk(index);
}

/// Counts `left` down to the node that is looked for.
TreeNode* TreeNodes::walk(int& left) const
{
    std::lock_guard lock(mMutex);
    for (TreeNode* node : mNodes) {
        if (left-- == 0)
            return node;
        if (TreeNode* found = node->mNodes->walk(left))
            return found;
    }
    return nullptr;
}

}

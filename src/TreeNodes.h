#pragma once

#include <mutex>
#include <vector>

namespace DisplayAPI {

class TreeNode;

/// The nodes that a tree or a node owns, in the order of adding. Threads: any.
class TreeNodes {
public:
    TreeNodes() = default;
    TreeNodes(const TreeNodes&) = delete;
    TreeNodes& operator=(const TreeNodes&) = delete;

    void add(TreeNode* node);

    /// Called by a node that dies.
    void forget(const TreeNode* node);

    /// Deletes the nodes from the last to the first.
    void deleteAll();

    std::vector<TreeNode*> all() const;
    int size() const;

    /// True for a node that stands here. The pointer is not followed.
    bool contains(const TreeNode* node) const;

    /// True for a node that stands here or below. The pointer is not followed.
    bool holds(const TreeNode* node) const;

    /// The node at an index of the walk in which each node stands in front of its children; null outside.
    TreeNode* find(int index) const;

private:
    TreeNode* walk(int& left) const;

    mutable std::mutex mMutex;
    std::vector<TreeNode*> mNodes;
};

}

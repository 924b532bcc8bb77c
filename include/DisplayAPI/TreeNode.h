#pragma once

#include <DisplayAPI/Widget.h>

#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class TreeNodePrivateIfc;
class TreeNodes;

/// A node of a Tree: a row of its level and, as soon as it has children, the branch that opens behind it.
///
/// Nodes are made by addNode() of a tree or of another node. One that the application makes itself stands in no tree.
///
/// Threads: any. The calls return after they have run on the GUI thread; those that read children, text and number, and
/// setInactive(), act at once, and are not for the time in which another thread changes the same node.
/// Ownership: a node owns its children and the translations handed in; it belongs to whoever made it by addNode(). One
/// that is deleted leaves its tree.
/// Screen text: as the row of its tree's object; the name of a branch is that of its translation, without prefix and
/// suffix, and empty without one.
class DISPLAYAPI_EXPORT TreeNode : public Widget {
public:
    TreeNode(const std::string& text, int id);
    TreeNode(TranslationInfo* text, int id);

    /// Deletes the children too, the last one first.
    ~TreeNode() override;

    // Children. They are seen when the tree is drawn next

    /// Adds a child at the end, before the Back row, and returns it; null where there is no answer, since the event
    /// loop has ended.
    TreeNode* addNode(const std::string& text, int id);
    TreeNode* addNode(TranslationInfo* text, int id);

    /// Whether the next addNode() leaves the branch without a Back row. One that is there stays until then.
    void removeBack(bool removed);

    /// In the order of adding, without the Back row.
    std::vector<TreeNode*> getChildNodes() const;

    // The row

    std::string getText() const;
    int getId() const { return mId; }

    /// Lets OK post a command of type 9 instead of 6, if the node has no children.
    void enableContextMenuArrow(bool enabled);

    /// Lets OK post a command of type 9 instead of entering the branch: the application decides.
    void setProtected(bool isProtected);

    /// False where there is no answer.
    bool getProtected();

    /// Stored only.
    void setInactive(bool inactive);

    /// Reads the texts of the node and of all below it again. Threads: GUI thread.
    void localeChanged(std::string locale);

    // Without effect on this telephone

    /// Null. Translation and node stay the caller's.
    TreeNode* insertNode(TranslationInfo* text, int id, int index);
    TreeNode* insertNode(TreeNode* node, int index);
    void removeNode(int index);
    void subMenuIndicator(bool shown);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;

    /// The half on the GUI thread; null until it has been made.
    TreeNodePrivateIfc* getPrivateImpl();

private:
    enum class Request : int;

    friend class TreeNodes;

    void create(const std::string& text);
    void create(TranslationInfo* text);
    void destroy();
    TreeNode* append(TreeNodePrivateIfc& half, TreeNode* node);

    std::unique_ptr<TreeNodePrivateIfc> mPrivate;
    std::unique_ptr<TreeNodes> mNodes;
    TreeNodes* mOwner = nullptr; // those among which the node stands
    const int mId;
};

}

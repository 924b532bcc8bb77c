#pragma once

#include <DisplayAPI/Displayable.h>

#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class TreeNode;
class TreeNodes;
class TreePrivateIfc;

/// A menu of menus: the first line names the level that the user is in, the second shows one row of it.
///
/// Up and Down move in the level, from its end to its beginning too; held down they jump to its end. OK enters a
/// branch, which gets a row "Back?" at its end from the library. That row and Left lead out again, to the row from
/// which the user came. The rest comes to the listeners as commands of the tree's own, told apart by their types: 6 for
/// OK on a row without branches, 9 for OK on a protected branch or on a row with a context arrow, 1 for Left at the
/// top. getSelected() then tells the row.
///
/// A tree counts its nodes in the order of a walk in which each node stands in front of its children: that is the index
/// of getSelectedIndex() and findItemAt(). setSelectedIndex() alone counts the rows of the level that is shown.
///
/// Threads: any. The calls return after they have run on the GUI thread; those that read the nodes, and
/// addCommandListener(), act at once.
/// Ownership: the tree owns its nodes and the translations handed in; listeners stay the application's. A node that is
/// deleted leaves its tree, and who was inside it stands at the row behind it.
/// Errors: a node of another tree, or one that is gone, is ignored. A tree that was made after the event loop had ended
/// ignores every call, and deletes the translations it is handed.
/// Screen text: an object "TreeList" with the name of the level, the tree's icon and the current row. Names, icon and
/// nodes below the level that is shown are seen when it is drawn next.
class DISPLAYAPI_EXPORT Tree : public Displayable {
public:
    /// What the tree is about; it sets the icon. Another number takes the icon away.
    enum TreeIcon : int {
        Menu = 0,
        Messages = 1,
    };

    /// Makes an empty tree without name and icon.
    Tree();

    /// Takes the tree off the screen and deletes its nodes, the last one first.
    ~Tree() override;

    // Nodes

    /// Adds a node at the end of the top level, and returns it; null where there is no answer, since the event loop has
    /// ended or the node has gone meanwhile. The number is the application's own.
    TreeNode* addNode(const std::string& text, int id);
    TreeNode* addNode(TranslationInfo* text, int id);

    /// The top level, in the order of adding. Threads: any, without waiting.
    std::vector<TreeNode*> getTreeNodes() const;
    int getNodeCount() const;

    /// The node at an index of the walk through the whole tree; null outside. Threads: any, without waiting.
    TreeNode* findItemAt(int index);

    // The user's place

    /// The node of the current row. Null without nodes, and where there is no answer. On a Back row it is the node that
    /// follows in the walk, if there is one.
    TreeNode* getSelected();

    /// The index of the current row in the walk; 0 without nodes, -1 where there is no answer. A node whose text is
    /// that of a Back row does not count.
    int getSelectedIndex();

    /// Makes a row of the level that is shown current, counted from 0 with the Back row. An index outside is refused,
    /// and printed on the standard output.
    void setSelectedIndex(int index);

    /// Enters a branch that is a row of the level that is shown, also a protected one. Where there is nothing to
    /// enter, on a row without children or a branch that the user is in, `select` makes the first row current.
    void expandNode(TreeNode* node, bool select);

    /// Returns to the top level, if the user came from this node of it.
    void collapseNode(TreeNode* node);

    // Name and icon

    /// The name of the top level.
    void setTreeName(std::string name);
    void setTreeName(TranslationInfo* name);
    void setTreeIcon(TreeIcon icon);

    /// Reads the nodes' texts again. A change of locale does this by itself. Threads: GUI thread.
    void localeChanged(std::string locale);

    // Listeners

    /// Adds a listener; one that is added twice is told twice. Threads: any, without waiting.
    void addCommandListener(CommandListener* listener);

    /// A command of type 7, which is not posted in this version.
    static Command* HIGHLIGHT_CHANGED_COMMAND();

    // Without effect on this telephone

    void collapseTreeToLevel(int level);
    void setUsedWithTab(bool used);
    void setWrapAround(bool wraps);
    void restoreFocusAndShowHighlight();
    void removeHighLight();

    /// The nodes stay whose they are.
    void insertChildNode(TreeNode* parent, TreeNode* child, int index);
    void removeChildNode(TreeNode* parent, int index);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create();
    void destroy();
    TreeNode* append(TreePrivateIfc& half, TreeNode* node);

    std::unique_ptr<TreePrivateIfc> mPrivate;
    std::unique_ptr<TreeNodes> mNodes;
};

}

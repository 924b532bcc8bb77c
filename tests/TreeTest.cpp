#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/Tree.h>
#include <DisplayAPI/TreeNode.h>

#include "TreePrivate.h"

#include <UApplication.h>

#include <memory>
#include <random>

using namespace DisplayAPI;

namespace {

class TreeTest : public PhoneTest {
protected:
    TreeTest()
    {
        tree->addCommandListener(&listener);
        show(*tree);
    }
    TreePrivate& half() { return dynamic_cast<TreePrivate&>(*tree->getPrivateImpl()); }
    TranslationInfo* text(const char* key) { return new TranslationInfo("<", key, ">", &translator); }
    void hold(int key)
    {
        pressAndHold(key);
        UApplication::instance()->postKey(key, UGlobal::KeyReleased);
        pump();
    }

    /// The rows of the level, once around from the current one.
    std::string rows()
    {
        std::string all;
        const TreeNodePrivate* start = half().selectedNode();
        do {
            all += screenField("string0") + "|";
            press(UGlobal::KeyDown);
        } while (half().selectedNode() != start);
        return all;
    }

    TestTranslator translator;
    RecordingListener listener;
    std::unique_ptr<Tree> tree = std::make_unique<Tree>();
};

std::unique_ptr<Tree> makeTree(Stage& stage)
{
    auto tree = std::make_unique<Tree>();
    tree->addCommandListener(&stage.listener);
    tree->setTreeName(stage.translation("Menu"));
    if (TreeNode* branch = tree->addNode(stage.translation("Settings"), 1)) {
        branch->addNode("Ringer", 2);
        branch->addNode("Language", 3)->addNode("English", 4);
    }
    if (TreeNode* leaf = tree->addNode("About", 5))
        leaf->enableContextMenuArrow(true);
    return tree;
}

void tellOf(const std::vector<TreeNode*>& nodes, std::string& all)
{
    for (TreeNode* node : nodes) {
        all += node->getText() + std::to_string(node->getId()) + (node->getProtected() ? "! (" : " (");
        tellOf(node->getChildNodes(), all);
        all += ") ";
    }
}

std::string tell(Tree& tree)
{
    const TreeNode* selected = tree.getSelected();
    std::string all = std::to_string(tree.getSelectedIndex()) + (selected ? " at " + selected->getText() : "") + " of "
        + std::to_string(tree.getNodeCount()) + ": ";
    tellOf(tree.getTreeNodes(), all);
    return all;
}

/// A change of the first node, which is seen later; a tree without a half has none.
Change<Tree> onNode(const char* name, const std::function<void(TreeNode&, Stage&)>& make)
{
    return {name,
        [make](Tree& tree, Stage& stage) {
            if (TreeNode* node = tree.findItemAt(0))
                make(*node, stage);
        },
        false};
}

}

INSTANTIATE_TEST_SUITE_P(Tree, EveryScreenTest,
    screenFamily<Tree>(makeTree,
        {
            {"addNode", [](auto& tree, auto&) { tree.addNode("Help", 6); }},
            {"a translation", [](auto& tree, auto& stage) { tree.addNode(stage.translation("Info"), 7); }},
            {"setTreeName", [](auto& tree, auto& stage) { tree.setTreeName(stage.translation("Top")); }, false},
            {"a literal", [](auto& tree, auto&) { tree.setTreeName("Main"); }, false},
            {"setTreeIcon", [](auto& tree, auto&) { tree.setTreeIcon(Tree::Messages); }, false},
            {"Up", [](auto&, auto& stage) { stage.press(UGlobal::KeyUp); }},
            {"setSelectedIndex", [](auto& tree, auto&) { tree.setSelectedIndex(0); }, false},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"collapseNode", [](auto& tree, auto&) { tree.collapseNode(tree.findItemAt(0)); }, false},
            {"expandNode", [](auto& tree, auto&) { tree.expandNode(tree.findItemAt(0), true); }},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }, false},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"no effect", [](auto& tree, auto&) { tree.collapseTreeToLevel(1); }, false},
        },
        tell));

INSTANTIATE_TEST_SUITE_P(TreeNode, EveryScreenTest,
    screenFamily<Tree>(makeTree,
        {
            onNode("addNode", [](auto& node, auto&) { node.addNode("Volume", 8); }),
            onNode("a translation", [](auto& node, auto& stage) { node.addNode(stage.translation("Clock"), 9); }),
            onNode("removeBack", [](auto& node, auto&) { node.removeBack(true); }),
            onNode("addNode again", [](auto& node, auto&) { node.addNode("Lamp", 10); }),
            onNode("setProtected", [](auto& node, auto&) { node.setProtected(true); }),
            onNode("enableContextMenuArrow", [](auto& node, auto&) { node.enableContextMenuArrow(true); }),
        },
        tell));

TEST_F(TreeTest, TheLevelAndItsRowStandOnTheGlassAndInTheText)
{
    tree->setTreeName(text("Menu"));
    tree->setTreeIcon(Tree::Menu);
    TreeNode* settings = tree->addNode(text("Settings"), 1);
    settings->addNode("Ringer", 2);
    tree->addNode("About", 3);
    show(*tree);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:TreeList", "caption:<Menu>:", "icon:Menu", "subitem:", "name:VantoListBoxItem",
            "string0:+ <Settings> ", "icon3:NavigationArrowDown", "endsubitem:", "end:"}));
    EXPECT_TRUE(hasIcon(0, 0, 57));
    EXPECT_EQ(glassLine(0).substr(6, 8), "<Menu>: ");
    EXPECT_TRUE(hasIcon(1, 0, 39));
    EXPECT_EQ(glassLine(1).substr(6), "<Settings>              v");
    hold(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1), "  About                   ^");

    tree->setTreeIcon(Tree::Messages);
    hold(UGlobal::KeyUp);
    press(UGlobal::KeyOk);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:TreeList", "caption:- Settings:", "icon:Messages", "subitem:", "name:VantoListBoxItem",
            "string0:Ringer ", "icon3:NavigationArrowDown", "endsubitem:", "end:"}));
    EXPECT_TRUE(hasIcon(0, 0, 40));
    EXPECT_EQ(glassLine(0).substr(6, 10), "Settings: ");
    settings->addNode("Clock", 4);
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenField("string0"), "Clock ");
    EXPECT_EQ(screenField("icon3"), "NavigationArrowUpDown");

    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(glassLine(0).substr(6, 12), "fr Settings:");
    press(UGlobal::KeyLeft);
    EXPECT_EQ(screenField("caption"), "<fr Menu>:");
}

TEST_F(TreeTest, AnEmptyTreeBearsEveryKey)
{
    for (const int key : {UGlobal::KeyUp, UGlobal::KeyDown, UGlobal::KeyOk, UGlobal::KeyRight, UGlobal::KeyLeft})
        hold(key);
    EXPECT_EQ(screenField("caption") + screenField("string0") + screenField("icon3"), ":(no such field)");
    EXPECT_EQ(tree->getSelectedIndex(), 0);
    EXPECT_EQ(tree->getSelected(), nullptr);
    EXPECT_EQ(listener.waitFor(1).front().first->getType(), Command::Back);

    RecordingListener second;
    tree->addCommandListener(&second);
    tree->getPrivateImpl()->removeCommandListener(&listener);
    tree->getPrivateImpl()->clearCommandListeners();
    press(UGlobal::KeyLeft);
    EXPECT_EQ(second.waitFor(1).front().first->getType(), Command::Back);
    EXPECT_EQ(listener.count(), 1U);
}

TEST_F(TreeTest, OkTellsWhatTheRowIsFor)
{
    struct Case {
        const char* name;
        bool isBranch, isProtected, hasArrow;
        int type; // 0: the branch opens
    };
    for (const Case& row : std::initializer_list<Case>{{"a leaf", false, false, false, 6},
             {"a protected leaf", false, true, false, 6}, {"a leaf with an arrow", false, false, true, 9},
             {"a branch", true, false, true, 0}, {"a protected branch", true, true, false, 9}}) {
        SCOPED_TRACE(row.name);
        TreeNode* node = tree->addNode(row.name, 1);
        if (row.isBranch)
            node->addNode("inside", 2);
        node->setProtected(row.isProtected);
        node->enableContextMenuArrow(row.hasArrow);
        const std::size_t before = listener.count();
        press(UGlobal::KeyOk);
        EXPECT_EQ(half().depth(), row.type == 0 ? 1 : 0);
        if (row.type != 0) {
            const auto told = listener.waitFor(before + 1).back();
            EXPECT_EQ(told.first->getType(), row.type);
            EXPECT_EQ(told.second, tree.get());
            EXPECT_EQ(tree->getSelected(), node);
        }
        if (row.isProtected)
            tree->expandNode(node, true);
        EXPECT_EQ(half().depth(), row.isBranch ? 1 : 0);
        delete node;
    }
}

TEST_F(TreeTest, ABranchEndsInABackRow)
{
    struct Case {
        const char* name;
        TranslatorIfc *own, *common;
        bool isRemoved;
        const char* rows;
    };
    TestTranslator common;
    translator.words["Back"] = "Return";
    common.words["Back"] = "Home";
    for (const Case& row :
        std::initializer_list<Case>{{"without a translator", nullptr, nullptr, false, "a |b |Back? |"},
            {"the node's own", &translator, &common, false, "a |b |Return? |"},
            {"the common one", nullptr, &common, false, "a |b |Home? |"},
            {"removed", &translator, &common, true, "a |b |"}}) {
        SCOPED_TRACE(row.name);
        display->setTranslator(row.common);
        TreeNode* node = tree->addNode(new TranslationInfo("branch", row.own), 1);
        node->addNode("a", 2);
        node->removeBack(row.isRemoved);
        node->addNode("b", 3);
        node->removeBack(!row.isRemoved);
        press(UGlobal::KeyOk);
        EXPECT_EQ(rows(), row.rows);
        hold(UGlobal::KeyDown);
        display->setTranslator(nullptr);
        press(UGlobal::KeyOk);
        EXPECT_EQ(half().depth(), row.isRemoved ? 1 : 0) << "a row of the library leads back, whatever it reads now";
        delete node;
    }
}

TEST_F(TreeTest, ANodeThatReadsLikeABackRowLeadsBackAndIsNeverDeleted)
{
    TreeNode* top = tree->addNode("Back?", 1);
    TreeNode* branch = tree->addNode("branch", 2);
    branch->removeBack(true);
    TreeNode* inside = branch->addNode("Back?", 3);
    branch->addNode("last", 4);
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.waitFor(1).front().first->getType(), Command::Select) << "at the top it is a leaf";
    press(UGlobal::KeyDown);
    EXPECT_EQ(tree->getSelectedIndex(), 0) << "it does not count";
    press(UGlobal::KeyOk);
    press(UGlobal::KeyOk);
    EXPECT_EQ(half().depth(), 0);
    EXPECT_EQ(tree->findItemAt(2), inside);
    EXPECT_EQ(tree->findItemAt(0), top);
    EXPECT_EQ(tree->findItemAt(4), nullptr);
}

TEST_F(TreeTest, OddNodesAndIndicesLeaveTheUserWhereHeIs)
{
    TreeNode* branch = tree->addNode("branch", 1);
    TreeNode* inner = branch->addNode("inner", 2);
    inner->addNode("leaf", 3);
    TreeNode stranger("stranger", 4);
    stranger.addNode("child", 5);
    for (TreeNode* node : {inner, &stranger, static_cast<TreeNode*>(nullptr)}) {
        tree->expandNode(node, true);
        tree->collapseNode(node);
        EXPECT_EQ(half().depth(), 0);
    }
    testing::internal::CaptureStdout();
    tree->setSelectedIndex(1);
    tree->setSelectedIndex(-1);
    tree->expandNode(branch, false);
    tree->setSelectedIndex(1);
    tree->expandNode(branch, false);
    EXPECT_EQ(screenField("string0"), "Back? ");
    tree->setSelectedIndex(2);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
        "TreePrivate::setSelectedIndex -> invalid index 1 m_vChildren 1 \n"
        "TreePrivate::setSelectedIndex -> invalid index -1 m_vChildren 1 \n"
        "TreePrivate::setSelectedIndex -> invalid index 2 child count 2\n");
    tree->expandNode(branch, true); // the user is in it
    EXPECT_EQ(screenField("string0"), "+ inner ");
    press(UGlobal::KeyOk);
    tree->collapseNode(inner);
    EXPECT_EQ(half().depth(), 2);
    changes.takeNotices();
    tree->collapseNode(branch);
    EXPECT_EQ(half().depth(), 0);
    EXPECT_EQ(changes.takeNotices(), 1);
}

TEST_F(TreeTest, ANodeThatIsDeletedLeavesItsTreeAndTheUserStaysAtARow)
{
    TreeNode* a = tree->addNode("a", 1);
    TreeNode* b = tree->addNode("b", 2);
    TreeNode* inner = b->addNode("inner", 3);
    inner->addNode("leaf", 4);
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyOk);
    elsewhere([a] { delete a; });
    EXPECT_EQ(tree->getSelectedIndex(), 2);
    delete inner;
    EXPECT_EQ(rows(), "Back? |");
    press(UGlobal::KeyLeft);
    EXPECT_EQ(rows(), "+ b |");
    changes.onNextNotice = [&] { tree.reset(); };
    delete b;
    EXPECT_EQ(tree, nullptr);

    tree = std::make_unique<Tree>();
    show(*tree);
    changes.onNextNotice = [&] { delete tree->getTreeNodes().front(); };
    EXPECT_EQ(tree->addNode("gone", 5), nullptr);
    changes.onNextNotice = [&] { tree.reset(); };
    EXPECT_EQ(tree->addNode("gone too", 6), nullptr);
}

namespace {

/// What the tree should be, without a thought for speed.
struct ModelRow {
    int id = -1; // of a row that leads back
    TreeNode* node = nullptr;
    bool hasBack = true;
    std::vector<std::unique_ptr<ModelRow>> rows = {};
};

struct Model {
    ModelRow& level() { return path.empty() ? top : *path.back().first; }
    ModelRow& current() { return *level().rows[selected]; }
    std::size_t last() { return level().rows.size() - 1; }
    void add(ModelRow& branch, int id, TreeNode* node)
    {
        if (!branch.rows.empty() && branch.rows.back()->id < 0)
            branch.rows.pop_back();
        branch.rows.push_back(std::make_unique<ModelRow>(ModelRow{id, node}));
        if (branch.hasBack && &branch != &top)
            branch.rows.push_back(std::make_unique<ModelRow>());
        all.push_back(branch.rows[branch.rows.size() - (branch.rows.back()->id < 0 ? 2 : 1)].get());
    }
    void goBack()
    {
        if (path.empty())
            return;
        selected = path.back().second;
        path.pop_back();
    }
    void enter()
    {
        path.emplace_back(&current(), selected);
        selected = 0;
    }
    void press(int key)
    {
        if (key == UGlobal::KeyUp)
            selected = selected > 0 ? selected - 1 : last();
        else if (key == UGlobal::KeyDown)
            selected = selected < last() ? selected + 1 : 0;
        else if (key == UGlobal::KeyLeft || (key == UGlobal::KeyOk && current().id < 0))
            goBack();
        else if (key == UGlobal::KeyOk && !current().rows.empty())
            enter();
    }
    bool count(const ModelRow& branch, bool withBack, int& before)
    {
        for (const auto& row : branch.rows) {
            if (row.get() == &current())
                return true;
            before += withBack || row->id >= 0 ? 1 : 0;
            if (count(*row, withBack, before))
                return true;
        }
        return false;
    }

    ModelRow top;
    std::vector<ModelRow*> all{&top};
    std::vector<std::pair<ModelRow*, std::size_t>> path;
    std::size_t selected = 0;
};

}

TEST_F(TreeTest, RandomNavigationAndGrowthAgreeWithAPlainModel)
{
    std::mt19937 random(1);
    const auto upTo = [&random](std::size_t count) { return random() % count; };
    const int keys[] = {UGlobal::KeyUp, UGlobal::KeyDown, UGlobal::KeyOk, UGlobal::KeyOk, UGlobal::KeyLeft};
    int deepest = 0;
    for (int round = 0; round < 20; ++round) {
        tree = std::make_unique<Tree>();
        show(*tree);
        Model model;
        for (int step = 0; step < 200; ++step) {
            if (step < 10 || upTo(4) == 0) {
                ModelRow& branch = *model.all[upTo(model.all.size())];
                if (branch.node && upTo(5) == 0)
                    branch.node->removeBack(!(branch.hasBack = !branch.hasBack));
                const std::string text = std::to_string(step);
                model.add(branch, step, branch.node ? branch.node->addNode(text, step) : tree->addNode(text, step));
            } else if (upTo(10) == 0) {
                hold(UGlobal::KeyDown);
                model.selected = model.last();
            } else {
                const int key = keys[upTo(std::size(keys))];
                press(key);
                model.press(key);
            }
            int flat = 0;
            int index = 0;
            ASSERT_TRUE(model.count(model.top, true, flat) && model.count(model.top, false, index));
            ASSERT_EQ(half().depth(), static_cast<int>(model.path.size()));
            ASSERT_EQ(half().getSelectedIndexIncludeBack(), flat);
            ASSERT_EQ(tree->getSelectedIndex(), index);
            ASSERT_EQ(half().getChildNodeAtIndex(flat), half().selectedNode());
            ASSERT_TRUE(model.current().id < 0 || tree->getSelected() == model.current().node);
            deepest = std::max(deepest, half().depth());
        }
    }
    EXPECT_GT(deepest, 3);
}

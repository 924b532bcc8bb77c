#include "ListFixture.h"
#include "TreeItemMEG.h"

#include <memory>

namespace {

class TreeItemTest : public ListFixture {
protected:
    TreeItemTest() { list.setCoordinates(3, 0, 157, 13); }

    static TreeItemMEG* call(const std::string& name, BranchMEG::IconType state = BranchMEG::CallActive)
    {
        return new TreeItemMEG(state, UString(name), true, true);
    }

    /// A conference of two members in the list.
    TreeItemMEG* addConference()
    {
        TreeItemMEG* conference = call("Conference");
        conference->setTreeType(TreeItemMEG::ConferenceType);
        for (const char* name : {"Bob 4712", "Carol 4713"}) {
            TreeItemMEG* member = call(name);
            member->setTreeType(TreeItemMEG::ConferenceType);
            member->cancelDurationTimer();
            conference->addChildItem(member);
        }
        list.addItem(conference);
        return conference;
    }

    static std::string duration(const TreeItemMEG& row) { return row.branch->getTimeDuration().toUTF8(); }
};

}

TEST_F(TreeItemTest, TheDurationRunsFromTheFirstConnection)
{
    std::unique_ptr<TreeItemMEG> row(call("Bob", BranchMEG::Alerting));
    Recorder ticks;
    row->branch->setListener(&ticks);
    advance(5000);
    EXPECT_EQ(duration(*row), "0:00");
    EXPECT_TRUE(ticks.entries.empty());

    row->setFirstIconType(BranchMEG::CallActive);
    advance(9999);
    EXPECT_EQ(duration(*row), "0:09");
    EXPECT_EQ(ticks.entries.front().source, row->branch);
    EXPECT_EQ(ticks.takeTypes(), Types(9, EventType::ContentChanged));

    row->setFirstIconType(BranchMEG::CallHeldByThisEnd);
    row->setFirstIconType(BranchMEG::CallActiveHD);
    advance(3600001);
    EXPECT_EQ(duration(*row), "1:00:10") << "a new state does not start the time again";
    row->stopDurationTimer();
    ticks.entries.clear();
    row->setFirstIconType(BranchMEG::CallActive);
    advance(60000);
    EXPECT_EQ(duration(*row), "1:00:10");
    EXPECT_TRUE(ticks.entries.empty());

    row->cancelDurationTimer();
    row->setFirstIconType(BranchMEG::CallActive);
    advance(2000);
    EXPECT_EQ(duration(*row), "0:00");
}

TEST_F(TreeItemTest, ATickMayDeleteTheRow)
{
    auto* row = call("Bob");
    list.addItem(row);
    Recorder ticks;
    row->branch->setListener(&ticks);
    ticks.onEvent = [row](UEvent&) { delete row; };
    advance(3000);
    EXPECT_EQ(ticks.entries.size(), 1u);
    EXPECT_EQ(list.count(), 0);
}

TEST_F(TreeItemTest, OneCallTakesBothLines)
{
    auto* row = call("Bob 4712");
    row->setSecondLineText(text("second line of the call"));
    list.addItem(row);
    advance(42000);
    EXPECT_EQ(line(0), "\u25A1\u25A1Bob 4712            0:42>");
    EXPECT_EQ(line(1), "second line of the call    ");
    EXPECT_FALSE(isInverse(0));
}

TEST_F(TreeItemTest, ASecondCallStandsBelowTheFirst)
{
    auto* bob = call("Bob 4712");
    auto* carol = call("Carol 4713", BranchMEG::CallHeldByThisEnd);
    carol->setPrePrefixText(text("2"));
    list.addItem(bob);
    list.addItem(carol);
    EXPECT_EQ(line(0), "\u25A1\u25A1Bob 4712            0:00>");
    EXPECT_EQ(line(1), "\u25A1\u25A12 Carol 4713        0:00 ") << "one below the other";
    EXPECT_TRUE(isInverse(0));

    carol->setSecondLineText(text("consultation"));
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(0), "\u25A1\u25A12 Carol 4713        0:00>");
    EXPECT_EQ(line(1), "consultation              ^");
    press(UGlobal::KeyUp);
    EXPECT_EQ(line(1), "\u25A1\u25A12 Carol 4713        0:00 ") << "the second line shows on the current row only";
}

// Conferences

TEST_F(TreeItemTest, TheHighlightGoesThroughTheMembers)
{
    TreeItemMEG* conference = addConference();
    list.addItem(call("Dave"));
    EXPECT_EQ(line(0), "\u25A1\u25A1Conference          0:00>");
    EXPECT_EQ(line(1), "  Bob 4712                v");
    EXPECT_TRUE(isInverse(0));

    std::vector<int> children;
    for (int presses = 0; presses < 4; ++presses) {
        press(UGlobal::KeyDown);
        children.push_back(list.currentIndex() * 10 + conference->getCurrentChild());
    }
    EXPECT_EQ(children, (std::vector<int>{1, 2, 12, 0})) << "title, members, next row, and round again";
    EXPECT_EQ(agent.takeTypes(), Types(4, EventType::RowMoved));
    press(UGlobal::KeyUp);
    press(UGlobal::KeyUp);
    EXPECT_EQ(conference->getCurrentChild(), 2) << "from below the last member comes first";
    EXPECT_EQ(line(1), "  Carol 4713              |");
    EXPECT_TRUE(isInverse(1));
    EXPECT_FALSE(isInverse(0));
}

TEST_F(TreeItemTest, MembersComeAndGoWithTheirOwners)
{
    TreeItemMEG* conference = addConference();
    auto* dave = call("Dave");
    list.addItem(dave);
    conference->addChildItem(dave);
    conference->addChildItem(dave);
    conference->addChildItem(nullptr);
    EXPECT_EQ(list.count(), 1) << "a call that joins leaves the list";
    EXPECT_EQ(conference->childCount(), 3);

    conference->setCurrentChild(3);
    conference->removeChildItem(0);
    conference->removeChildItem(4);
    auto* bob = static_cast<BranchMEG*>(conference->branch->childElement(0))->parentWidget();
    std::unique_ptr<UWidget> first(bob);
    conference->removeChildItem(1);
    EXPECT_EQ(bob->parentWidget(), nullptr);
    EXPECT_EQ(conference->getCurrentChild(), 2) << "Dave stays current";
    delete dave;
    EXPECT_EQ(conference->getCurrentChild(), 1);
    conference->removeChildItem(static_cast<TreeItemMEG*>(bob));

    UPointer<UWidget> carol(static_cast<BranchMEG*>(conference->branch->childElement(0))->parentWidget());
    list.clear();
    EXPECT_FALSE(carol) << "members die with the conference";
}

#include "ExpandingListMEG.h"
#include "ListFixture.h"

#include <algorithm>
#include <memory>
#include <random>

namespace {

using Row = VantoListBoxItemMEG;
using TopRow = CallForwardListItemMEG;

const std::string LongText = "to: a number that takes more than one line of the glass";

class ExpandingListTest : public GlassTest {
protected:
    ExpandingListTest()
    {
        root.addWidget(list.get());
        list->setListener(&recorder);
    }

    TopRow* add(const std::string& name, const std::string& branch = "")
    {
        auto* row = new TopRow(TopRow::IconType{4}, text(name), false);
        row->setBranchText(text(branch));
        list->addTopLevelItem(row);
        return row;
    }

    /// The rows as the list has them.
    std::vector<Row*> rows() const
    {
        std::vector<Row*> all;
        for (int index = 0; index < list->list()->count(); ++index)
            all.push_back(list->list()->item(index));
        return all;
    }

    std::unique_ptr<ExpandingListMEG> list = std::make_unique<ExpandingListMEG>();
    Recorder recorder;
};

/// A list and beside it the vector of what must stand in it.
class ExpandingListStory : public ExpandingListTest, public testing::WithParamInterface<unsigned> {
protected:
    std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(random); }
    TopRow* any() { return tops[below(tops.size())]; }
    UString anyBranchText() { return text(std::vector<std::string>{"", "to: 4711", LongText}[below(3)]); }

    /// All top-level rows, and behind the one that has the highlight its branches.
    std::vector<Row*> expectedRows() const
    {
        std::vector<Row*> all;
        for (TopRow* top : tops) {
            all.push_back(top);
            for (int index = 0; top == list->currentTopLevelItem() && index < top->branchCount(); ++index)
                all.push_back(top->branchRow(index));
        }
        return all;
    }

    void take(TopRow* row) { std::erase(tops, row); }

    /// One thing that may happen to the list. Returns the row that loses its place by it, if one does.
    void step()
    {
        if (tops.size() < 2 || below(5) == 0) {
            tops.push_back(add("row"));
            return;
        }
        TopRow* row = any();
        switch (below(8)) {
        case 0:
            take(row);
            delete row;
            break;
        case 1:
            take(row);
            list->list()->removeItem(row);
            other.list()->addItem(row);
            break;
        case 2:
            take(row);
            other.addTopLevelItem(row);
            break;
        case 3: delete row->branchRow(static_cast<int>(below(2))); break;
        case 4: list->list()->setCurrentItem(static_cast<int>(below(rows().size()))); break;
        case 5: below(20) == 0 ? tops.clear(), list->clear() : other.clear(); break;
        default: row->setBranchText(anyBranchText());
        }
    }

    std::mt19937 random{GetParam()};
    std::vector<TopRow*> tops;
    ExpandingListMEG other;
};

}

TEST_P(ExpandingListStory, HasTheBranchesOfTheHighlightedRowAndNoOthers)
{
    for (int count = 0; count < 2000; ++count) {
        const std::vector<Row*> before = rows();
        const bool isKey = below(2) == 0;
        if (isKey)
            press(below(2) == 0 ? UGlobal::KeyUp : UGlobal::KeyDown);
        else
            step();
        ASSERT_EQ(rows(), expectedRows()) << "after " << count << " steps";

        // Only a key raises something: the move, and behind it that rows have unfolded.
        Types types;
        if (isKey && before.size() > 1)
            types.push_back(EventType::RowMoved);
        if (isKey && rows() != before)
            types.push_back(EventType::BranchesFolded);
        ASSERT_EQ(recorder.takeTypes(), types);

        ASSERT_EQ(list->topLevelCount(), static_cast<int>(tops.size()));
        for (int index = 0; index < list->topLevelCount(); ++index) {
            ASSERT_EQ(list->topLevelItem(index), tops[static_cast<std::size_t>(index)]);
            ASSERT_EQ(list->indexOfTopLevelItem(tops[static_cast<std::size_t>(index)]), index);
        }
        ASSERT_EQ(list->topLevelItem(list->topLevelCount()), nullptr);
        ASSERT_EQ(list->currentTopLevelItem() == nullptr, tops.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ExpandingListStory, testing::Range(1U, 9U));

TEST_F(ExpandingListTest, AHighlightOnABranchThatGoesStaysInItsRow)
{
    TopRow* row = add("All calls", LongText);
    add("Busy");
    list->list()->setCurrentItem(2);
    row->setBranchText(text("to: 4711"));
    EXPECT_EQ(list->list()->currentItem(), row->branchRow(0));
    row->setBranchText(UString());
    EXPECT_EQ(list->list()->currentItem(), row);
}

TEST_F(ExpandingListTest, AListenerMayDeleteTheListOrItsRowsInsideAnyEvent)
{
    for (const int type : {EventType::RowMoved, EventType::BranchesFolded, EventType::RowChosen}) {
        for (const bool isWholeList : {true, false}) {
            list = std::make_unique<ExpandingListMEG>();
            root.addWidget(list.get());
            list->setListener(&recorder);
            add("All calls", LongText);
            add("Busy", "to: 4711");
            list->list()->setCurrentItem(2);
            recorder.onEvent = [&](UEvent& event) {
                if (event.type != type)
                    return;
                if (isWholeList)
                    list.reset();
                else
                    list->clear();
            };
            press(type == EventType::RowChosen ? UGlobal::KeyOk : UGlobal::KeyDown);
            EXPECT_TRUE(isWholeList ? !list : rows().empty()) << type;
        }
    }
}

TEST_F(ExpandingListTest, OddTextsTakeTwoBranchRowsAtMost)
{
    TopRow* row = add("All calls");
    for (const std::string& odd : {std::string(1 << 20, 'x'), std::string(1 << 20, ' '), std::string(100, '\n'),
             std::string("a\0b c", 5), std::string("\xF0\x9F\x98\x80\xCC\x81"), LongText + LongText}) {
        row->setBranchText(text(odd));
        row->setMainText(text(odd));
        EXPECT_EQ(row->branchText(1), text(odd));
        for (int count = 0; count < list->list()->count(); ++count) {
            line(1);
            press(UGlobal::KeyDown);
        }
        EXPECT_LE(row->branchCount(), 2);
    }
}

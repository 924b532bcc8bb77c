#include "Disturbance.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>

#include <TranslationInfo.h>

#include <functional>
#include <memory>

using namespace DisplayAPI;

namespace {

class ThreadedListTest : public ThreadedPhoneTest {
protected:
    /// Runs work in four threads at once, once for each seed.
    static void disturbed(const std::function<void()>& work)
    {
        underDisturbance([&work] { runThreads(4, [&work](int) { work(); }); });
    }
};

}

TEST_F(ThreadedListTest, ManyThreadsWorkOnOneListAndReadCopies)
{
    List list(0);
    display->setCurrent(&list);
    disturbed([&] {
        auto* mine = new ListItem("mine", true);
        list.append(mine);
        list.append("theirs");
        list.setTitle("title");
        EXPECT_GE(list.getItems().size(), 2u);
        list.remove(mine);
        delete mine; // stands behind the remove in the queue
    });
    EXPECT_EQ(list.size(), 800);
}

TEST_F(ThreadedListTest, ListsComeAndGoWhileOthersDo)
{
    disturbed([&] {
        List list(0);
        list.append("row");
        auto* row = new ListItem("more", true);
        list.append(row);
        display->setCurrent(&list);
        EXPECT_EQ(list.size(), 2);
        EXPECT_EQ(list.removeAt(1), row);
        delete row;
    });
    EXPECT_EQ(display->getCurrent(), nullptr);
}

TEST_F(ThreadedListTest, IconsAreReadWhileTheRowsAreMade)
{
    disturbed([] {
        ListItem item("Anna", true);
        item.setLeftIcon(static_cast<Icons::IconType>(345));
        const int seen = item.getLeftIcon();
        EXPECT_TRUE(seen == 0 || seen == 345);
    });
}

TEST_F(ThreadedListTest, BehindTheLoopAListGivesItsDefaults)
{
    List list(1);
    list.append(new ListItem("A", true));
    EXPECT_EQ(list.size(), 1);
    endLoop();
    EXPECT_EQ(list.size(), -1);
    EXPECT_EQ(list.getSelectedIndex(), -1);
    EXPECT_EQ(list.getSelected(), nullptr);
    EXPECT_EQ(list.removeAt(0), nullptr);
    EXPECT_EQ(list.getItems().size(), 0u);
    EXPECT_EQ(list.getDialer(), nullptr);
    EXPECT_TRUE(list.hasBackItem());
}

TEST_F(ThreadedListTest, RowsThatDieBehindTheLoopAreForgotten)
{
    // Made at one address, the second row is not the first one.
    alignas(ListItem) char place[sizeof(ListItem)];
    auto* first = new (place) ListItem("A", true);
    auto list = std::make_unique<List>(0);
    auto* second = new ListItem("B", true);
    auto* third = new ListItem("C", true);
    list->append(first);
    list->append(second);
    list->append(third);
    display->setCurrent(list.get());
    EXPECT_EQ(list->size(), 3);
    endLoop();
    first->~ListItem();
    auto* later = new (place) ListItem("D", true);
    list->remove(second);
    delete second;
    list.reset();
    EXPECT_FALSE(ListItem::exists(third));
    EXPECT_TRUE(ListItem::exists(later));
    later->~ListItem();
}

TEST_F(ThreadedListTest, TheNextLoopFindsNoRowThatDiedBehindTheLast)
{
    List list(0);
    auto* row = new ListItem("A", true);
    list.append(row);
    list.append("B");
    EXPECT_EQ(list.size(), 2);
    endLoop();
    delete row;
    auto* late = new ListItem("late", true);
    Widget::setGuiThreadId(); // the work goes over to this thread
    EXPECT_EQ(list.size(), 1);
    EXPECT_EQ(list.getItems().size(), 1u);
    EXPECT_EQ(list.getSelected(), list.getItems()[0]);
    list.append(late);
    EXPECT_EQ(list.size(), 1) << "it has no half";
    EXPECT_TRUE(ListItem::exists(late)) << "and stays the caller's";
    delete late;
}

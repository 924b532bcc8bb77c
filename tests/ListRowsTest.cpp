#include "ListFixture.h"

#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include "HeldRows.h"

#include <UApplication.h>

#include <functional>
#include <memory>
#include <new>
#include <utility>

using namespace DisplayAPI;

namespace {

class ListRowsTest : public ListFixture { };

}

TEST_F(ListRowsTest, AnotherHolderMayTakeARowOver)
{
    struct Conference : HeldRows {
        void rowChanged(ListItem&, ListItemPrivateIfc*) override { }
        void takeOut(int, ListItemPrivateIfc*) override { }
    };
    List list(List::Plain);
    fill(list, "ABC");
    show(list);
    const std::unique_ptr<ListItem> b(list.getItems()[1]);
    {
        Conference conference;
        b->holder()->letGo(*b);
        EXPECT_EQ(both(list), "[A]C");
        ASSERT_TRUE(HeldRows::isFree(b.get()));
        conference.expect(*b, 0);
        list.append(b.get());
        EXPECT_EQ(both(list), "[A]C") << "it is the conference's";
    }
    EXPECT_EQ(b->holder(), nullptr) << "the conference has gone";
}

/// Each change of the rows, with one thing that the subscriber does inside one of its notices.
TEST_F(ListRowsTest, GlassAndHandlesAgreeWhateverHappensInANotice)
{
    struct Scene {
        std::unique_ptr<List> list = std::make_unique<List>(0);
        List other{0};
        ListItem* a = nullptr; // the first row
        ListItem* b = nullptr; // the second
        ListItem* x = nullptr; // a new one
    };
    using Act = std::function<void(Scene&)>;
    const auto removeAndGive = [](Scene& scene, ListItem* row) {
        if (!ListItem::exists(row))
            return;
        scene.list->remove(row);
        scene.other.append(row);
    };
    const std::pair<const char*, Act> changesOf[] = {
        {"append", [](Scene& s) { s.list->append(s.x); }},
        {"insertAt", [](Scene& s) { s.list->insertAt(s.x, 0); }},
        {"removeAt", [](Scene& s) { s.list->removeAt(0); }},
        {"remove", [](Scene& s) { s.list->remove(s.a); }},
        {"removeAll", [](Scene& s) { s.list->removeAll(); }},
        {"clear", [](Scene& s) { s.list->clear(); }},
        {"move", [](Scene& s) { s.list->move(s.a, s.x, 1); }},
        {"move within", [](Scene& s) { s.list->move(s.a, s.b, 0); }},
        {"replace", [](Scene& s) { s.list->replace(s.a, s.x); }},
        {"replace a foreign row", [](Scene& s) { s.list->replace(s.other.getItems()[0], s.x); }},
        {"death", [](Scene& s) { delete s.b; }},
    };
    const std::pair<const char*, Act> actions[] = {
        {"delete the new row", [](Scene& s) { delete std::exchange(s.x, nullptr); }},
        {"delete the first row", [](Scene& s) { delete s.a; }},
        {"give the new row away", [&](Scene& s) { removeAndGive(s, s.x); }},
        {"give the first row away", [&](Scene& s) { removeAndGive(s, s.a); }},
        {"hand the first row on", [](Scene& s) { s.other.insertAt(s.a, 0); }},
        {"append the first row", [](Scene& s) { s.list->append(s.a); }},
        {"append another", [](Scene& s) { s.list->append(new CountedItem("Y")); }},
        {"insert another", [](Scene& s) { s.list->insertAt(new CountedItem("Y"), 0); }},
        {"take out by index", [](Scene& s) { s.list->removeAt(1); }},
        {"replace the second", [](Scene& s) { s.list->replace(s.b, new CountedItem("Z")); }},
        {"move to the end", [](Scene& s) { s.list->move(s.a, s.b, 9); }},
        {"remove all", [](Scene& s) { s.list->removeAll(); }},
        {"clear", [](Scene& s) { s.list->clear(); }},
        {"delete the list", [](Scene& s) { s.list.reset(); }},
    };
    for (const auto& [changeName, change] : changesOf) {
        for (const auto& [actionName, action] : actions) {
            for (int turn = 1; turn <= 3; ++turn) {
                SCOPED_TRACE(changeName + std::string(", in notice ") + std::to_string(turn) + ": " + actionName);
                Scene scene;
                fill(*scene.list, "ABC");
                fill(scene.other, "O");
                scene.a = scene.list->getItems()[0];
                scene.b = scene.list->getItems()[1];
                scene.x = new CountedItem("X");
                show(*scene.list);
                int notices = 0;
                changes.onNotice = [&, act = action] {
                    // A row that has gone can't be named again.
                    const bool isThere = ListItem::exists(scene.a) && ListItem::exists(scene.b) && scene.list;
                    if (++notices == turn && isThere)
                        act(scene);
                };
                change(scene);
                changes.onNotice = nullptr;
                if (scene.list)
                    both(*scene.list);
                both(scene.other);
                for (ListItem* row : ListItem::all()) {
                    if (!row->holder())
                        delete row; // the application has it back
                }
            }
        }
    }
}

TEST_F(ListRowsTest, ARowOnItsWayOutMayGoToAnotherList)
{
    const std::pair<const char*, std::function<void(List&, ListItem*)>> table[] = {
        {"remove", [](List& list, ListItem* a) { list.remove(a); }},
        {"removeAt", [](List& list, ListItem*) { EXPECT_EQ(list.removeAt(0), nullptr); }},
        {"replace", [](List& list, ListItem* a) { list.replace(a, list.removeAt(1)); }},
        {"move", [](List& list, ListItem* a) { list.move(a, list.getItems()[1], 0); }},
    };
    for (const auto& [name, change] : table) {
        SCOPED_TRACE(name);
        List list(List::Plain);
        List other(List::Plain);
        fill(list, "AB");
        ListItem* a = list.getItems()[0];
        show(list);
        changes.onNotice = [&] {
            if (!a->getPrivateImplemetation()->getVantoListItem()->parentWidget())
                other.append(a);
        };
        change(list, a);
        changes.onNotice = nullptr;
        EXPECT_EQ(both(other), "[A]");
        EXPECT_EQ(both(list), "[B]");
    }
}

TEST_F(ListRowsTest, ARowThatComesWhileTheListIsClearedGoesWithTheRest)
{
    List list(List::Plain);
    fill(list, "AB");
    show(list);
    changes.onNextNotice = [&] { list.append(new CountedItem("X")); };
    list.clear();
    EXPECT_EQ(both(list), "");
    EXPECT_EQ(CountedItem::living, 0);
}

TEST_F(ListRowsTest, TheEndOfARowMayBeTheEndOfItsList)
{
    auto list = std::make_unique<List>(List::Plain);
    struct LastRow : CountedItem {
        explicit LastRow(std::unique_ptr<List>& theList)
            : CountedItem("last")
            , list(theList)
        {
        }
        ~LastRow() override { list.reset(); }
        std::unique_ptr<List>& list;
    };
    fill(*list, "AB");
    list->append(new LastRow(list));
    fill(*list, "C");
    list->clear();
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(CountedItem::living, 0);
}

TEST_F(ListRowsTest, AListThatIsMadeAtADeadOnesAddressIsNotTakenForIt)
{
    alignas(List) char place[sizeof(List)];
    auto* list = new (place) List(0);
    fill(*list, "AB");
    show(*list);
    changes.onNextNotice = [&] {
        list->~List();
        list = new (place) List(0);
    };
    list->replace(list->getItems()[0], new CountedItem("X"));
    EXPECT_EQ(CountedItem::living, 0) << "the dead list's rows, and the one on its way there";
    EXPECT_EQ(both(*list), "");
    list->~List();
}

TEST_F(ListRowsTest, ARowMadeAgainBySomebodysRequestKeepsItsPlace)
{
    List list(0);
    fill(list, "ABC");
    ListItem* b = list.getItems()[1];
    list.setSelected(b);
    auto* again = new GuiRequestEvent(b, 0);
    again->stringParam1 = "B2";
    UApplication::instance()->postEvent(again);
    pump();
    EXPECT_EQ(both(list), "A[B2]C");
}

#include "EveryScreen.h"
#include "ListFixture.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include <Log.h>
#include <UApplication.h>

#include <cstdio>
#include <functional>

using namespace DisplayAPI;

namespace {

std::vector<LogControl::Message> messages;

class ListTest : public ListFixture { };

std::unique_ptr<List> makeList(Stage& stage)
{
    auto list = std::make_unique<List>(1);
    list->addCommandListener(&stage.listener);
    for (const char* text : {"A", "B", "C"})
        list->append(stage.newRow(text));
    return list;
}

/// A row by its index; null behind the end.
ListItem* at(List& list, std::size_t index)
{
    const std::vector<ListItem*> items = list.getItems();
    return index < items.size() ? items[index] : nullptr;
}

/// The rows and the current one; handles and toolkit rows must agree.
std::string tell(List& list)
{
    if (Widget::isGuiThread() && list.getPrivateImpl() && half(list).getListWidget()) {
        EXPECT_EQ(rows(list), toolkitRows(list));
    }
    return rows(list) + " " + std::to_string(list.size());
}

/// Runs a change that gives the first row back, which the application then deletes.
Change<List> givingBack(const char* name, void (*change)(List& list, ListItem* first, Stage& stage))
{
    return {name, [change](List& list, Stage& stage) {
                ListItem* first = at(list, 0);
                change(list, first, stage);
                stage.takeBack(first);
            }};
}

}

INSTANTIATE_TEST_SUITE_P(List, EveryScreenTest,
    screenFamily<List>(makeList,
        {
            {"append", [](auto& list, auto& stage) { list.append(stage.newRow("X")); }},
            {"append a text", [](auto& list, auto& stage) { list.append(stage.translation("Y")); }},
            {"insertAt", [](auto& list, auto& stage) { list.insertAt(stage.newRow("Z"), 0); }},
            {"setSelected", [](auto& list, auto&) { list.setSelected(at(list, 1)); }},
            {"setSelectedIndex", [](auto& list, auto&) { list.setSelectedIndex(0); }, false},
            {"setTitle", [](auto& list, auto& stage) { list.setTitle(stage.translation("Title")); }},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }},
            {"move within", [](auto& list, auto&) { list.move(nullptr, at(list, 1), 0); }},
            givingBack("move", [](auto& list, auto* row, auto& stage) { list.move(row, stage.newRow("M"), 0); }),
            givingBack("replace", [](auto& list, auto* row, auto& stage) { list.replace(row, stage.newRow("R")); }),
            {"replace null", [](auto& list, auto& stage) { list.replace(nullptr, stage.newRow("N")); }},
            givingBack("remove", [](auto& list, auto* row, auto&) { list.remove(row); }),
            {"removeAt", [](auto& list, auto& stage) { stage.takeBack(list.removeAt(0)); }},
            {"delete a row", [](auto& list, auto& stage) { stage.takeBack(at(list, 0)); }},
            {"clear", [](auto& list, auto&) { list.clear(); }},
        },
        tell));

// Rows

TEST(ListOnBothRoadsTest, TheRowsAreTheSame)
{
    const std::string seen = onBothRoads([](Display& display) {
        List list(0);
        display.setCurrent(&list);
        std::string story;
        const auto tell = [&](const char* step) {
            story += std::string(step) + ": " + rows(list) + " " + std::to_string(list.size()) + " "
                + std::to_string(list.getSelectedIndex()) + "\n";
        };
        auto* b = new ListItem("B", true);
        auto* x = new ListItem("X", true);
        auto* y = new ListItem("Y", true);
        auto* z = new ListItem("Z", true);
        tell("empty");
        list.append("A");
        list.append(b);
        list.append(new TranslationInfo("", "C", "", nullptr));
        tell("append");
        list.insertAt(x, -5);
        list.insertAt(y, 100);
        list.insertAt(z, 2);
        tell("insertAt");
        list.setSelected(b);
        tell("setSelected");
        list.setSelectedIndex(99);
        list.setSelectedIndex(0);
        tell("setSelectedIndex");
        list.remove(x);
        list.remove(x);
        tell("remove");
        delete list.removeAt(-1);
        tell("removeAt");
        list.replace(b, x);
        tell("replace");
        list.move(z, b, 3);
        tell("move");
        list.append(z);
        list.move(z, z, 0);
        tell("move alone");
        list.replace(nullptr, list.removeAt(0));
        tell("replace null");
        ListItem* c = list.getItems()[1];
        list.removeAll();
        tell("removeAll");
        delete b;
        delete c;
        delete x;
        delete y;
        list.append(z);
        list.clear();
        tell("clear");
        return story;
    });
    // Rows in view stay where they are when others come or go; the first row of an empty list is current.
    EXPECT_EQ(seen,
        lines({"empty:  0 -1", "append: [A]BC 3 0", "insertAt: X[A]ZBCY 6 1", "setSelected: XAZ[B]CY 6 3",
            "setSelectedIndex: [X]AZBCY 6 0", "remove: [A]ZBCY 5 0", "removeAt: [Z]BCY 4 0", "replace: [Z]XCY 4 0",
            "move: [X]CYB 4 0", "move alone: Z[X]CYB 5 1", "replace null: [X]CYBZ 5 0", "removeAll:  0 -1",
            "clear:  0 -1"}));
}

TEST_F(ListTest, RowsThatAreGivenBackStayWhole)
{
    List list(0);
    fill(list, "ABCDE");
    const std::vector<ListItem*> items = list.getItems();
    auto* f = new CountedItem("F");
    auto* g = new CountedItem("G");
    list.remove(items[0]);
    EXPECT_EQ(list.removeAt(0), items[1]);
    list.replace(items[2], f);
    list.move(items[3], g, 0);
    EXPECT_EQ(both(list), "G[F]E") << "what replaces the current row is current";
    list.removeAll();
    EXPECT_EQ(CountedItem::living, 7);
    for (ListItem* item : {items[0], items[1], items[2], items[3], items[4], (ListItem*)f, (ListItem*)g}) {
        EXPECT_EQ(item->holder(), nullptr);
        EXPECT_EQ(item->getText().size(), 1u) << "the row's widget lives";
        delete item;
    }
    EXPECT_EQ(CountedItem::living, 0);
}

TEST_F(ListTest, ARowThatStandsSomewhereIsRefused)
{
    List list(0);
    List other(0);
    fill(list, "AB");
    fill(other, "XY");
    ListItem* a = list.getItems()[0];
    ListItem* x = other.getItems()[0];
    VantoListBoxMEG loose;
    CountedItem held("H");
    loose.addItem(held.getPrivateImplemetation()->getVantoListItem());
    for (ListItem* item : {a, x, static_cast<ListItem*>(&held)}) {
        list.append(item);
        list.insertAt(item, 0);
        list.replace(list.getItems()[1], item);
        list.replace(nullptr, item);
    }
    list.move(list.getItems()[1], x, 0);
    list.move(list.getItems()[1], &held, 0);
    EXPECT_EQ(both(list), "[A]B");
    EXPECT_EQ(both(other), "[X]Y");
    loose.removeItem(held.getPrivateImplemetation()->getVantoListItem());
}

TEST_F(ListTest, NullAndForeignRowsChangeNothing)
{
    List list(0);
    fill(list, "AB");
    CountedItem foreign("X");
    list.append(static_cast<ListItem*>(nullptr));
    list.insertAt(nullptr, 0);
    list.remove(nullptr);
    list.remove(&foreign);
    list.replace(list.getItems()[0], nullptr);
    list.replace(nullptr, nullptr);
    list.move(nullptr, nullptr, 0);
    list.move(list.getItems()[0], nullptr, 0);
    list.setSelected(nullptr);
    list.setSelected(&foreign);
    list.addCommandListener(nullptr);
    list.removeCommandListener(nullptr);
    list.addDialer(nullptr);
    EXPECT_EQ(both(list), "[A]B");
    EXPECT_EQ(foreign.getText(), "X");
}

TEST_F(ListTest, TheLastRowTakesTheListOffTheScreenOnlyByRemove)
{
    List list(0);
    fill(list, "A");
    show(list);
    const UWidget* parent = half(list).getWidget()->parentWidget();
    ASSERT_NE(parent, nullptr);
    list.replace(list.getItems()[0], list.removeAt(5));
    std::unique_ptr<ListItem> row(list.removeAt(0));
    EXPECT_EQ(half(list).getWidget()->parentWidget(), parent) << "removeAt()";
    list.append(row.release());
    row.reset(list.getItems()[0]);
    list.replace(row.get(), new CountedItem("B"));
    EXPECT_EQ(half(list).getWidget()->parentWidget(), parent) << "replace()";
    CountedItem foreign("X");
    delete list.removeAt(0);
    list.replace(&foreign, new CountedItem("C"));
    EXPECT_EQ(half(list).getWidget()->parentWidget(), parent) << "replace() of a foreign row";
    EXPECT_FALSE(half(list).hasOwnership());
    row.reset(list.getItems()[0]);
    list.remove(row.get());
    EXPECT_EQ(half(list).getWidget()->parentWidget(), nullptr);
    EXPECT_TRUE(half(list).hasOwnership());
    display->hide();
    list.append("D");
    EXPECT_EQ(half(list).getWidget()->parentWidget(), nullptr) << "hidden";
    display->show();
    EXPECT_EQ(half(list).getWidget()->parentWidget(), parent) << "shown again";
    EXPECT_FALSE(half(list).hasOwnership());
}

TEST_F(ListTest, ACurrentListComesBackWithItsFirstRow)
{
    List list(0);
    const std::pair<const char*, std::function<void()>> table[] = {
        {"append", [&] { list.append(new CountedItem("append")); }},
        {"insertAt", [&] { list.insertAt(new CountedItem("insertAt"), 0); }},
        {"replace", [&] { list.replace(nullptr, new CountedItem("replace")); }},
        {"move", [&] { list.move(nullptr, new CountedItem("move"), 0); }},
    };
    fill(list, "A");
    show(list);
    for (const auto& [name, comeBack] : table) {
        std::unique_ptr<ListItem> last(list.getItems()[0]);
        list.remove(last.get());
        pump();
        EXPECT_EQ(glassLine(0), std::string(27, ' '));
        std::string seen;
        changes.onNextNotice = [&] {
            pump();
            seen = glassLine(0);
        };
        comeBack();
        EXPECT_TRUE(seen.starts_with(name)) << seen;
        EXPECT_FALSE(half(list).hasOwnership());
    }
    UWidget tab;
    half(list).getWidget()->setParent(&tab);
    display->setCurrent(nullptr);
    half(list).getWidget()->setParent(&tab);
    std::unique_ptr<ListItem> last(list.getItems()[0]);
    list.remove(last.get());
    list.append(last.release());
    EXPECT_EQ(half(list).getWidget()->parentWidget(), nullptr) << "not on the display";
}

TEST_F(ListTest, ListsOfManyRowsEnd)
{
    constexpr int count = 100000;
    List list(0);
    show(list);
    for (int i = 0; i < count; ++i)
        list.append("row");
    EXPECT_EQ(list.size(), count);
    const std::vector<ListItem*> items = list.getItems();
    list.append(items[count / 2]);
    EXPECT_EQ(list.size(), count) << "refused";
    list.removeAll();
    EXPECT_EQ(list.size(), 0);
    for (ListItem* item : items)
        list.append(item);
    list.setSelectedIndex(count - 1);
    EXPECT_EQ(list.getSelected(), items.back());
    list.clear();
    EXPECT_EQ(list.size(), 0);
}

// Odd circumstances

TEST_F(ListTest, AFailedRemoveAtIsLogged)
{
    messages.clear();
    LogControl::setLevel("DisplayAPI::List", 3);
    LogControl::setSink([](const LogControl::Message& message) { messages.push_back(message); });
    List list(0);
    EXPECT_EQ(list.removeAt(0), nullptr);
    fill(list, "A");
    EXPECT_EQ(list.removeAt(list.size()), nullptr);
    list.move(list.getItems()[0], nullptr, 0);
    LogControl::setLevel("DisplayAPI::List", 5);
    list.setSelectedIndex(7);
    LogControl::reset();
    char address[20];
    std::snprintf(address, sizeof address, "%p", (void*)&list);
    const std::string removeAt = "removeAt() this " + std::string(address) + ", cannot remove item at index ";
    ASSERT_EQ(messages.size(), 4u);
    EXPECT_EQ(messages[0].text, removeAt + "0");
    EXPECT_EQ(messages[1].text, removeAt + "1");
    EXPECT_EQ(messages[1].file + " " + messages[1].module, "src/List DisplayAPI::List");
    EXPECT_EQ(messages[1].level, 3);
    EXPECT_TRUE(messages[2].text.starts_with("oldListItemPrivate[0x")) << messages[2].text;
    EXPECT_EQ(messages[2].level, 2);
    EXPECT_EQ(messages[3].text, "setSelectedIndex() this: " + std::string(address) + " index 7\n");
    EXPECT_EQ(both(list), "[A]");
}

TEST_F(ListTest, OddTextsComeThrough)
{
    List list(0);
    const std::string longText(1 << 20, 'x');
    for (const std::string& text : {std::string("a\0b", 3), std::string("\xC3\x28"), longText, std::string()}) {
        list.append(text);
        list.setTitle(text);
        list.setSelectedIndex(list.size() - 1);
        EXPECT_EQ(list.getSelected()->getText(), UString(text).toUTF8());
    }
}

TEST_F(ListTest, AnApplicationsOwnAppendRunsOnceForEachRow)
{
    struct OwnAppend : List {
        OwnAppend()
            : List(Plain)
        {
        }
        using List::append;
        void append(ListItem* item) override
        {
            ++count;
            List::append(item);
        }
        int count = 0;
    } list;
    list.append(new CountedItem("A"));
    list.append("B");
    EXPECT_EQ(list.count, 2);
    auto* append = new GuiRequestEvent(&list, 7);
    append->ptrParam1 = static_cast<ListItem*>(new CountedItem("C"));
    UApplication::instance()->postEvent(append);
    pump();
    EXPECT_EQ(list.count, 2) << "a request runs the step alone";
    EXPECT_EQ(both(list), "[A]BC");
}

TEST_F(ListTest, RequestsPostedByHandAndUnknownNumbersAreServed)
{
    List list(0);
    auto* append = new GuiRequestEvent(&list, 5);
    append->stringParam1 = "posted";
    UApplication::instance()->postEvent(append);
    for (const int number : {10, 12, 20, 23, 37, 38, -1, 2, 90, 1000})
        UApplication::instance()->postEvent(new GuiRequestEvent(&list, number));
    ListItem row("A", true);
    for (const int number : {8, 9})
        UApplication::instance()->postEvent(new GuiRequestEvent(&row, number));
    pump();
    EXPECT_EQ(both(list), "[posted]");
    std::unique_ptr<ListItem> first(list.getItems()[0]);
    auto* remove = new GuiRequestEvent(&list, 15);
    remove->intParam1 = 0;
    UApplication::instance()->postEvent(remove);
    pump();
    EXPECT_EQ(both(list), "") << "without a slot for the row";
}

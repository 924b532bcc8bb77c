#include "ListFixture.h"
#include "StatusVolumeMEG.h"

#include <memory>
#include <random>

namespace {

using Texts = std::vector<std::string>;

std::vector<std::string> texts(const VantoListBoxMEG& list)
{
    std::vector<std::string> result;
    for (int index = 0; index < list.count(); ++index)
        result.push_back(list.item(index)->getText().toUTF8());
    return result;
}

/// A list that counts the changes of its current row.
class CountingList : public VantoListBoxMEG {
public:
    long currentHandle() const { return currentItem() ? currentItem()->getHandle() : 0; }

    int changes = 0;

protected:
    void currentChanged() override { ++changes; }
};

class ListBoxTest : public ListFixture { };

}

// Rows and the current row

TEST_F(ListBoxTest, AnInsertionIndexIsClampedAndAKnownRowStays)
{
    auto rows = addRows(list, {"b"});
    list.insertItem(new VantoListBoxItemMEG(text("a")), -5);
    list.insertItem(new VantoListBoxItemMEG(text("d")), 100);
    list.insertItem(new VantoListBoxItemMEG(text("c")), 2);
    list.insertItem(rows[0], 3);
    list.addItem(nullptr);
    EXPECT_EQ(texts(list), (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(list.currentIndex(), 1) << "the first row that came stays current";
    EXPECT_EQ(list.item(-1), nullptr);
    EXPECT_EQ(list.item(4), nullptr);
}

TEST_F(ListBoxTest, TheCurrentRowSurvivesWhatComesAndGoesAroundIt)
{
    auto rows = addRows(list, {"a", "b", "c", "d"});
    EXPECT_EQ(list.currentIndex(), 0);
    list.setCurrentIndex(2);
    std::unique_ptr<VantoListBoxItemMEG> first(rows[0]);
    list.removeItem(rows[0]);
    EXPECT_EQ(list.currentItem(), rows[2]);
    EXPECT_EQ(first->parentWidget(), nullptr);

    delete rows[2];
    EXPECT_EQ(list.currentItem(), rows[3]) << "the next row takes the place";
    delete rows[3];
    EXPECT_EQ(list.currentItem(), rows[1]) << "or the last one";
    delete rows[1];
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_TRUE(agent.entries.empty()) << "operations raise nothing";
}

TEST_F(ListBoxTest, ARowMovesToTheListThatTakesIt)
{
    VantoListBoxMEG other;
    auto rows = addRows(list, {"a", "b"});
    other.addItem(rows[0]);
    EXPECT_EQ(texts(list), Texts{"b"});
    EXPECT_EQ(rows[0]->parentWidget(), &other);
    list.removeItem(rows[0]);
    EXPECT_EQ(texts(other), Texts{"a"}) << "a list lets go of its own rows only";
    EXPECT_EQ(list.indexOf(rows[0]), -1);
}

TEST_F(ListBoxTest, IndicesAreRightAndEachChangeOfTheCurrentRowIsToldOnce)
{
    CountingList box;
    std::vector<VantoListBoxItemMEG*> expected;
    std::mt19937 random(7);
    const auto pick = [&random](std::size_t limit) { return static_cast<std::ptrdiff_t>(random() % limit); };
    for (int round = 0; round < 2000; ++round) {
        const long before = box.currentHandle();
        box.changes = 0;
        const std::ptrdiff_t place = pick(expected.size() + 1);
        const std::ptrdiff_t what = pick(100);
        const bool isRow = place < static_cast<std::ptrdiff_t>(expected.size());
        if (what < 45 || expected.size() < 3) {
            auto* row = new VantoListBoxItemMEG(UString(), round + 1);
            box.insertItem(row, static_cast<int>(place));
            expected.insert(expected.begin() + place, row);
        } else if (what < 65 && isRow) {
            auto* row = expected[static_cast<std::size_t>(place)];
            if (what < 55)
                box.removeItem(row);
            delete row;
            expected.erase(expected.begin() + place);
        } else if (what < 80) {
            box.setCurrentIndex(static_cast<int>(place) - 1);
        } else if (what < 99) {
            UKeyEvent key(what < 90 ? UGlobal::KeyDown : UGlobal::KeyUp, UGlobal::KeyPressed);
            box.keyEvent(&key);
        } else {
            box.clear();
            expected.clear();
        }
        ASSERT_EQ(box.changes, before == box.currentHandle() ? 0 : 1) << "round " << round << ", " << what;
        if (expected.empty())
            continue;
        const auto probe = static_cast<std::size_t>(pick(expected.size()));
        ASSERT_EQ(box.indexOf(expected[probe]), static_cast<int>(probe)) << "round " << round;
    }
    for (int index = 0; index < box.count(); ++index)
        ASSERT_EQ(box.indexOf(expected[static_cast<std::size_t>(index)]), index);
}

TEST_F(ListBoxTest, ClearDeletesTheRowsFromTheLastToTheFirst)
{
    struct Row : VantoListBoxItemMEG {
        Row(std::vector<int>& deaths, int number)
            : mDeaths(deaths)
            , mNumber(number)
        {
        }
        ~Row() override { mDeaths.push_back(mNumber); }
        std::vector<int>& mDeaths;
        int mNumber;
    };
    std::vector<int> deaths;
    for (int number = 0; number < 3; ++number)
        list.addItem(new Row(deaths, number));
    list.setCurrentIndex(1);
    list.clear();
    EXPECT_EQ(deaths, (std::vector<int>{2, 1, 0}));
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.numItems(), 0);
}

// Keys

TEST_F(ListBoxTest, KeysRaiseOneEventEach)
{
    auto rows = addRows(list, {"a", "b", "c"});
    struct Step {
        const char* name;
        int key;
        int type;
        int current;
        UAgent* source;
    };
    const Step steps[] = {
        {"up wraps to the last row", UGlobal::KeyUp, EventType::RowMoved, 2, rows[2]},
        {"down wraps to the first row", UGlobal::KeyDown, EventType::RowMoved, 0, rows[0]},
        {"down moves", UGlobal::KeyDown, EventType::RowMoved, 1, rows[1]},
        {"OK chooses", UGlobal::KeyOk, EventType::RowChosen, 1, rows[1]},
        {"right leads on", UGlobal::KeyRight, EventType::RightPressed, 1, rows[1]},
        {"left comes from the list", UGlobal::KeyLeft, EventType::LeftPressed, 1, &list},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.name);
        agent.entries.clear();
        EXPECT_TRUE(press(step.key));
        ASSERT_EQ(agent.entries.size(), 1u);
        EXPECT_EQ(agent.entries[0].type, step.type);
        EXPECT_EQ(agent.entries[0].source, step.source);
        EXPECT_EQ(list.currentIndex(), step.current);
    }
    EXPECT_FALSE(press(UGlobal::Key0)) << "a dial key is somebody else's";
}

TEST_F(ListBoxTest, WhatCannotHappenRaisesNothing)
{
    EXPECT_TRUE(press(UGlobal::KeyDown));
    EXPECT_TRUE(press(UGlobal::KeyOk));
    auto rows = addRows(list, {"a"});
    EXPECT_TRUE(press(UGlobal::KeyDown)) << "the only row stays where it is";
    list.setReadOnly(0, true);
    list.setReadOnly(7, true);
    EXPECT_TRUE(press(UGlobal::KeyOk));
    EXPECT_TRUE(agent.entries.empty());
}

TEST_F(ListBoxTest, AListenerThatUsesAKeyKeepsItFromTheList)
{
    addRows(list, {"a", "b"});
    agent.usesKeys = true;
    EXPECT_TRUE(press(UGlobal::KeyDown));
    EXPECT_TRUE(press(UGlobal::Key0));
    EXPECT_EQ(agent.keys, (Types{UGlobal::KeyDown, UGlobal::KeyDown, UGlobal::Key0, UGlobal::Key0})) << "releases too";
    EXPECT_EQ(list.currentIndex(), 0);
    EXPECT_TRUE(agent.entries.empty());
}

TEST_F(ListBoxTest, TheListenerOfTheWidgetHearsWhatNobodyElseDoes)
{
    KeyRecorder outer;
    widget->setListener(&outer);
    auto rows = addRows(list, {"a", "b"});
    press(UGlobal::KeyDown);
    EXPECT_TRUE(outer.entries.empty()) << "the list has a listener of its own";

    EXPECT_TRUE(outer.keys.empty());

    list.setListener(widget);
    press(UGlobal::KeyOk);
    EXPECT_EQ(outer.entries, (std::vector<Recorder::Entry>{{EventType::RowChosen, rows[1], rows[1]}}));
    EXPECT_EQ(outer.keys, (std::vector<int>{UGlobal::KeyOk, UGlobal::KeyOk})) << "asked in the place of the widget";
    outer.usesKeys = true;
    press(UGlobal::KeyOk);
    EXPECT_EQ(outer.entries.size(), 1U) << "a used key does not reach the list";
}

// Ownership

TEST_F(ListBoxTest, AnythingMayDieInsideAnEvent)
{
    struct Order {
        const char* name;
        int key;
        std::function<void(Recorder*&, VantoListBoxWithTitleMEG*)> death;
    };
    using Widget = VantoListBoxWithTitleMEG;
    const Order orders[] = {
        {"the row", UGlobal::KeyOk, [](Recorder*&, Widget* w) { delete w->list()->currentItem(); }},
        {"all rows", UGlobal::KeyDown, [](Recorder*&, Widget* w) { w->list()->clear(); }},
        {"the list", UGlobal::KeyRight, [](Recorder*&, Widget* w) { delete w; }},
        {"the list on left", UGlobal::KeyLeft, [](Recorder*&, Widget* w) { delete w; }},
        {"the listener", UGlobal::KeyOk,
            [](Recorder*& dying, Widget*) {
                // What runs now lives in the listener: keep it until it has returned.
                auto running = std::make_shared<std::function<void(UEvent&)>>(std::move(dying->onEvent));
                delete dying;
                dying = nullptr;
            }},
    };
    for (const Order& order : orders) {
        SCOPED_TRACE(order.name);
        auto* shown = new VantoListBoxWithTitleMEG;
        UPointer<VantoListBoxWithTitleMEG> life(shown);
        shown->setParent(&root);
        auto* listener = new Recorder;
        shown->list()->setListener(listener);
        addRows(*shown->list(), {"a", "b"});
        const auto death = order.death;
        listener->onEvent = [&listener, shown, death](UEvent&) { death(listener, shown); };
        EXPECT_TRUE(press(order.key));
        if (life)
            press(UGlobal::KeyUp);
        delete listener;
        delete life.get();
    }
}

TEST_F(ListBoxTest, AListMayDieWhileItsListenerLooksAtAKey)
{
    addRows(list, {"a", "b"});
    agent.onKey = [this] { delete widget; };
    EXPECT_TRUE(press(UGlobal::KeyDown));
    EXPECT_TRUE(agent.entries.empty());
}

// Screen text

TEST_F(ListBoxTest, SetTextsAreUsedUpByTheNextScreenText)
{
    addRows(list, {"Bob"});
    const std::string plain = "subitem:\nname:VantoListBoxItem\nstring0:Bob\nendsubitem:\n";
    auto setAll = [this](const std::string& notification) {
        list.setSerialisedNotificationText(notification);
        list.setSerialisedNotificationIcon("Forwarded\n");
        list.setSerialisedNotificationSecondIcon("Incoming\n");
    };
    setAll("Carol\n4713");
    EXPECT_EQ(list.screenText().toUTF8(),
        "subitem:\nname:VantoListBoxItem\nicon0:Forwarded\nicon1:Incoming\nstring0:Bob\nstring1:Carol "
        "4713\nendsubitem:\n");
    EXPECT_EQ(list.screenText().toUTF8(), plain);

    list.setSerialisedNotificationText("Bob");
    EXPECT_EQ(list.screenText().toUTF8(), plain) << "the row says it already";

    setAll("Carol");
    EXPECT_EQ(list.screenText(std::vector<URect>{}).toUTF8(), "");
    EXPECT_EQ(list.screenText(std::vector<URect>{{0, 0, 161, 30}}).toUTF8(), plain);
    EXPECT_EQ(list.screenText(std::vector<URect>{{0, 15, 161, 30}}).toUTF8(), "") << "the row stands on line 0";
}

// Geometry and painting

TEST_F(ListBoxTest, ATitleLeavesOneRowInView)
{
    auto rows = addRows(list, {"HeadSet", "Speaker", "Ringer"});
    widget->setTitle(text("Audio"));
    rows[0]->setArrow(true);
    EXPECT_EQ(line(0), "Audio                      ");
    EXPECT_EQ(line(1), "HeadSet                  >v");
    EXPECT_FALSE(isInverse(1));
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(1), "Speaker                   |");
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(1), "Ringer                    ^");
    list.setScrollArrows(false);
    EXPECT_EQ(line(1), "Ringer                     ");
}

TEST_F(ListBoxTest, WithoutATitleTheCurrentOfTwoRowsIsInverse)
{
    auto rows = addRows(list, {"Bob", "Carol", "Dave"});
    rows[1]->setArrow(true);
    EXPECT_EQ(line(0), "Bob                        ");
    EXPECT_EQ(line(1), "Carol                     v") << "the arrow shows on the current row only";
    EXPECT_TRUE(isInverse(0));
    EXPECT_FALSE(isInverse(1));

    press(UGlobal::KeyDown);
    EXPECT_EQ(line(0), "Bob                        ") << "the view moves only when it must";
    EXPECT_EQ(line(1), "Carol                    >v");
    EXPECT_TRUE(isInverse(1));
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(0), "Carol                      ");
    EXPECT_EQ(line(1), "Dave                      ^");

    list.hideHighlightBar();
    EXPECT_FALSE(isInverse(1));
    list.showHighlightBar();
    EXPECT_TRUE(isInverse(1));
    rows[2]->clearBackground();
    EXPECT_FALSE(isInverse(1));
    list.setCurrentIndex(2);
    EXPECT_TRUE(isInverse(1)) << "a row that becomes current has its bar again";
}

TEST_F(ListBoxTest, WhereTheFirstLineIsTakenTheRowHasTheSecond)
{
    addRows(list, {"a", "b"});
    list.setCurrentIndex(1);
    widget->setStatusMessageAvailable(true);
    EXPECT_EQ(line(0), whole(""));
    EXPECT_EQ(line(1), "b                         ^");
    widget->setTitle(text("title"));
    EXPECT_EQ(line(0), whole("")) << "the title gives way";
    widget->setParent(nullptr);
    root.addWidget(widget);
    EXPECT_EQ(line(0), whole("title")) << "off the glass nobody tells the screen";

    // A screen that comes later finds the line taken as well.
    auto message = std::make_unique<StatusMessageMEG>("message", 0, 0);
    root.addWidget(message.get());
    auto* later = new VantoListBoxWithTitleMEG;
    addRows(*later->list(), {"c", "d"});
    root.addWidget(later);
    EXPECT_EQ(line(0), whole("message"));
    EXPECT_EQ(line(1).front(), 'c');
    message.reset();
    EXPECT_EQ(line(0), whole("c"));
    EXPECT_EQ(line(1), whole("d"));
}

TEST_F(ListBoxTest, ARowDividesItsLine)
{
    auto rows = addRows(list, {"A name that is far too long for it"});
    EXPECT_EQ(line(0), "A name that is far too long");
    rows[0]->setRightText(text("4712"));
    EXPECT_EQ(line(0), "A name that is far too 4712");
    rows[0]->setIcon(50);
    EXPECT_EQ(line(0), "\u25A1\u25A1A name that is far t 4712");
    rows[0]->setIcon(0);
    rows[0]->setRightText(UString());
    rows[0]->setText(text("OK?                         Abc"));
    EXPECT_EQ(line(0), "OK?                     Abc");
}

// Radio buttons

TEST_F(ListBoxTest, ARadioListHasExactlyOneSelectedRow)
{
    auto* radio = new RadioButtonListMEG;
    radio->setParent(&root);
    radio->setListener(&agent);
    radio->setTitle(text("Speaker:"));
    EXPECT_EQ(radio->selectedIndex(), -1);
    auto rows = addRows(*radio->list(), {"HeadSet", "Loud", "Off"});
    EXPECT_EQ(radio->selectedIndex(), 0);
    EXPECT_EQ(line(0), "Speaker:                   ");
    EXPECT_EQ(line(1), "(o) HeadSet               v");

    press(UGlobal::KeyDown);
    EXPECT_EQ(line(1), "( ) Loud                  |");
    int selectedInside = -1;
    agent.onEvent = [&](UEvent&) { selectedInside = radio->selectedIndex(); };
    press(UGlobal::KeyOk);
    EXPECT_EQ(agent.takeTypes(), (Types{EventType::RowMoved, EventType::RowChosen}));
    EXPECT_EQ(selectedInside, 1) << "the listener finds the new selection";
    EXPECT_EQ(line(1), "(o) Loud                  |");

    radio->setSelectedIndex(2, 0);
    radio->setSelectedIndex(3, 0);
    EXPECT_EQ(radio->selectedIndex(), 2);
    EXPECT_EQ(radio->list()->currentIndex(), 2);
    radio->list()->insertItem(new VantoListBoxItemMEG, 0);
    EXPECT_EQ(radio->selectedIndex(), 3);
    delete rows[2];
    EXPECT_EQ(radio->selectedIndex(), 2) << "the current row takes over";
    radio->list()->clear();
    EXPECT_EQ(radio->selectedIndex(), -1);
}

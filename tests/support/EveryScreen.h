#pragma once

#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestScreen.h"
#include "TestTranslator.h"

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/TextField.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

/// What a family's row in EveryScreenTest or EveryRowTest works with: keys, the clock, commands, rows for lists.
///
/// Threads: the GUI thread, or another one at a time.
class Stage {
public:
    Stage() = default;
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Presses and releases a key, and returns when it has had its effect.
    void press(int key);

    /// Moves the clock on.
    void advance(std::uint64_t milliseconds);

    /// A text that follows the locale, for an operation that takes it over.
    TranslationInfo* translation(const std::string& key) { return new TranslationInfo("", key, "", &translator); }

    /// A row for a list. What no list has taken, the stage deletes at its end.
    DisplayAPI::ListItem* newRow(const std::string& text);

    /// Deletes a row that a list has given back, unless it has died since, or was not given back since there is no
    /// loop.
    void takeBack(DisplayAPI::ListItem* row);

    /// The same for forms.
    DisplayAPI::TextField* newField(const std::string& label);
    void takeBack(DisplayAPI::Item* item);

    RecordingListener listener;
    DisplayAPI::MenuCommand yes{"Yes?", 1};
    DisplayAPI::MenuCommand no{"No?", 2};
    DisplayAPI::MenuCommand maybe{"Maybe?", 3};
    DisplayAPI::MenuCommand last{"Last?", 4};
    TestTranslator translator;
    bool hasLoop = true;
};

/// A change that can be seen: it gives a notice, unless it says otherwise.
template <typename Class>
struct Change {
    const char* name;
    std::function<void(Class&, Stage&)> make;
    bool isSeen = true;
};

/// A family of screens: how to make one, its changes, and what its getters answer, as one text.
struct ScreenFamily {
    std::function<std::unique_ptr<DisplayAPI::Displayable>(Stage&)> make;
    std::vector<Change<DisplayAPI::Displayable>> changes;
    std::function<std::string(DisplayAPI::Displayable&)> tell;
};

/// A family of rows, fields or items, and a screen that holds one of them.
struct RowFamily {
    std::function<std::unique_ptr<DisplayAPI::Widget>(Stage&)> make;
    std::vector<Change<DisplayAPI::Widget>> changes;
    std::function<std::string(DisplayAPI::Widget&)> tell;
    std::function<std::unique_ptr<DisplayAPI::Displayable>()> makeHolder;
    std::function<void(DisplayAPI::Displayable&, DisplayAPI::Widget&)> put;
    std::function<void(DisplayAPI::Displayable&, DisplayAPI::Widget&)> take;
};

/// A screen that holds rows: how to make one, to hand it a row, and to take the row back; null if it never gives one.
template <typename Screen, typename Row>
struct Holder {
    std::function<std::unique_ptr<Screen>()> make;
    std::function<void(Screen&, Row&)> put;
    std::function<void(Screen&, Row&)> take;
};

/// A list as the holder of its rows.
template <typename Row>
Holder<DisplayAPI::List, Row> inList()
{
    using DisplayAPI::List;
    return {
        [] { return std::make_unique<List>(0); },
        [](List& list, Row& row) { list.append(&row); },
        [](List& list, Row& row) { list.remove(&row); },
    };
}

/// The operations of a class, for a caller who knows the base alone.
template <typename Base, typename Class>
std::vector<Change<Base>> forBase(const std::vector<Change<Class>>& changes)
{
    std::vector<Change<Base>> all;
    for (const auto& [name, make, isSeen] : changes) {
        const auto call = make;
        all.push_back(
            {name, [call](Base& object, Stage& stage) { call(dynamic_cast<Class&>(object), stage); }, isSeen});
    }
    return all;
}

/// A family without getters leaves the last argument out.
template <typename Screen>
auto screenFamily(
    std::function<std::unique_ptr<Screen>(Stage&)> make, const std::vector<Change<Screen>>& changes,
    std::function<std::string(Screen&)> tell = [](Screen&) { return std::string(); })
{
    using Base = DisplayAPI::Displayable;
    return testing::Values(ScreenFamily{
        make, forBase<Base>(changes), [tell](Base& screen) { return tell(dynamic_cast<Screen&>(screen)); }});
}

template <typename Screen, typename Row>
auto rowFamily(const Holder<Screen, Row>& holder,
    std::function<std::unique_ptr<std::type_identity_t<Row>>(Stage&)> make,
    const std::vector<Change<std::type_identity_t<Row>>>& changes,
    std::function<std::string(std::type_identity_t<Row>&)> tell)
{
    using DisplayAPI::Displayable;
    using DisplayAPI::Widget;
    using Operation = std::function<void(Displayable&, Widget&)>;
    const auto call = [](auto& operation) {
        return !operation ? Operation() : [operation](Displayable& screen, Widget& row) {
            operation(dynamic_cast<Screen&>(screen), dynamic_cast<Row&>(row));
        };
    };
    return testing::Values(
        RowFamily{make, forBase<Widget, Row>(changes), [tell](Widget& row) { return tell(dynamic_cast<Row&>(row)); },
            holder.make, call(holder.put), call(holder.take)});
}

/// A telephone that is taken through its moments.
class PromiseTest : public PhoneTest {
protected:
    enum Moment { WhileTheLoopRuns, BehindTheLoop, BehindTheDisplay, UnderTheNextDisplay };
    static constexpr Moment Moments[] = {WhileTheLoopRuns, BehindTheLoop, BehindTheDisplay, UnderTheNextDisplay};

    ~PromiseTest() override;

    /// Brings the telephone to a moment from an earlier one.
    void comeTo(Moment moment);

    /// Runs a function here, or on another thread, whether there is a loop or not.
    void run(bool isElsewhere, const std::function<void()>& function);

    /// Lets the subscriber act in one of the next notices: 1 is the first.
    void actInNotice(int number, std::function<void()> action);

    std::vector<std::string> log;
    TestScreen below{"below", log};
    Stage stage;
};

/// Tests of what every screen promises. A family adds its row with INSTANTIATE_TEST_SUITE_P, in its own test.
class EveryScreenTest : public PromiseTest, public testing::WithParamInterface<ScreenFamily> {
protected:
    using Screen = std::unique_ptr<DisplayAPI::Displayable>;

    Screen make() { return GetParam().make(stage); }

    /// A screen on the glass: a popup with another screen below it.
    Screen makeShown();
    void changeAll(DisplayAPI::Displayable& screen);

    /// The changes of the family, and the one that shows the screen.
    std::vector<Change<DisplayAPI::Displayable>> everyChange();

    /// What the screen answers, and what is on the glass, as text and painted.
    std::string story(DisplayAPI::Displayable& screen);
};

/// The same for what stands in a screen: rows of lists, fields of forms.
class EveryRowTest : public PromiseTest, public testing::WithParamInterface<RowFamily> {
protected:
    using Row = std::unique_ptr<DisplayAPI::Widget>;
    using Screen = std::unique_ptr<DisplayAPI::Displayable>;

    Row make() { return GetParam().make(stage); }
    Screen makeHolder() { return GetParam().makeHolder(); }

    /// Hands a row over; it belongs to the screen then.
    DisplayAPI::Widget& put(DisplayAPI::Displayable& holder, Row row);
    Row take(DisplayAPI::Displayable& holder, DisplayAPI::Widget& row);
    bool mayTake() const { return static_cast<bool>(GetParam().take); }
    void changeAll(DisplayAPI::Widget& row);
    std::string story(DisplayAPI::Widget& row);
};

void PrintTo(const ScreenFamily& family, std::ostream* out);
void PrintTo(const RowFamily& family, std::ostream* out);

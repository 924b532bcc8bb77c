#pragma once

#include <DisplayAPI/DisplayablePrivateIfc.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

/// The rows that a list must have, as a plain vector.
using ExpectedRows = std::vector<DisplayAPI::ListItem*>;

/// Does the same to a list and to the vector, with the row at a place: from 0 to one behind the end and one too far.
template <typename Screen>
using RowStep = std::function<void(Screen& list, ExpectedRows& rows, std::size_t place)>;

/// The row at a place, null outside; and the same for one that the list gives back.
inline DisplayAPI::ListItem* rowAt(const ExpectedRows& rows, std::size_t place)
{
    return place < rows.size() ? rows[place] : nullptr;
}
inline DisplayAPI::ListItem* takenOut(ExpectedRows& rows, std::size_t place)
{
    DisplayAPI::ListItem* row = rowAt(rows, place);
    std::erase(rows, row);
    return row;
}

/// Puts a new row at a place of the vector.
inline DisplayAPI::ListItem* newRowAt(ExpectedRows& rows, std::size_t place)
{
    const auto where = rows.begin() + static_cast<std::ptrdiff_t>(std::min(place, rows.size()));
    return *rows.insert(where, new DisplayAPI::ListItem("row", true));
}

/// What every list of rows can do.
template <typename Screen>
std::vector<RowStep<Screen>> commonRowSteps()
{
    return {
        [](auto& list, auto& rows, auto) { list.append(newRowAt(rows, rows.size())); },
        [](auto& list, auto& rows, auto place) { list.insertAt(newRowAt(rows, place), static_cast<int>(place)); },
        [](auto& list, auto& rows, auto place) { list.append(rowAt(rows, place)); },
        [](auto& list, auto& rows, auto place) {
            list.remove(rowAt(rows, place));
            delete takenOut(rows, place);
        },
        [](auto& list, auto& rows, auto place) {
            list.removeAt(static_cast<int>(place));
            delete takenOut(rows, place);
        },
        [](auto&, auto& rows, auto place) { delete takenOut(rows, place); },
        [](auto& list, auto& rows, auto place) {
            if (rows.size() > 5 && place == 0) {
                list.clear();
                rows.clear();
            }
        },
    };
}

/// Takes random steps with an empty list. Handles, rows on the glass and the vector must be the same after each.
template <typename Screen>
void changeRowsAtRandom(Screen& list, const std::vector<RowStep<Screen>>& steps, unsigned int seed)
{
    std::mt19937 dice(seed);
    const auto below = [&](std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(dice); };
    auto& widget = dynamic_cast<VantoListBoxWithTitleMEG&>(*list.getPrivateImpl()->getWidget());
    ExpectedRows rows;
    for (int count = 0; count < 100 && !testing::Test::HasFailure(); ++count) {
        const std::size_t number = below(steps.size());
        SCOPED_TRACE(
            testing::Message() << "seed " << seed << ", the step " << number << " after " << count << " others");
        steps[number](list, rows, below(rows.size() + 2));
        const auto items = list.getItems();
        EXPECT_EQ(ExpectedRows(items.begin(), items.end()), rows);
        ASSERT_EQ(widget.list()->count(), std::ssize(rows));
        for (int i = 0; i < std::ssize(rows); ++i)
            EXPECT_EQ(widget.list()->item(i),
                rows[static_cast<std::size_t>(i)]->getPrivateImplemetation()->getVantoListItem());
    }
}

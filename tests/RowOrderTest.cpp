#include "PhoneTest.h"
#include "RandomRows.h"

#include <DisplayAPI/ExclusiveList.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/QVTList.h>
#include <DisplayAPI/SearchList.h>

#include <utility>

using namespace DisplayAPI;

namespace {

class RowOrderTest : public PhoneTest {
protected:
    template <typename Kind, typename Base, typename... Arguments>
    void walk(const std::vector<RowStep<Base>>& steps, Arguments... arguments)
    {
        for (unsigned int seed = 1; seed <= 20; ++seed) {
            Kind list(arguments...);
            show(list);
            changeRowsAtRandom<Base>(list, steps, seed);
            display->setCurrent(nullptr);
        }
    }
};

void replace(List& list, ExpectedRows& rows, std::size_t place)
{
    ListItem* old = rowAt(rows, place);
    list.replace(old, newRowAt(rows, place));
    std::erase(rows, old);
    delete old;
}

void removeAll(List& list, ExpectedRows& rows, std::size_t place)
{
    if (rows.size() <= 5 || place > 0)
        return;
    list.removeAll();
    for (ListItem* row : std::exchange(rows, {}))
        delete row;
}

/// The last row in the place of the first.
void move(List& list, ExpectedRows& rows, std::size_t place)
{
    if (rows.size() < 2)
        return;
    ListItem* old = takenOut(rows, 0);
    ListItem* last = takenOut(rows, rows.size() - 1);
    list.move(old, last, static_cast<int>(place));
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(std::min(place, rows.size())), last);
    delete old;
}

}

TEST_F(RowOrderTest, HandlesAndGlassHaveTheRowsOfAPlainVector)
{
    auto steps = commonRowSteps<List>();
    steps.insert(steps.end(), {replace, removeAll});
    walk<QVTList>(steps); // which does not move its rows on the glass
    steps.emplace_back(move);
    walk<List>(steps, 0);
    walk<ExclusiveList>(steps);
    walk<SearchList>(commonRowSteps<SearchList>());
}

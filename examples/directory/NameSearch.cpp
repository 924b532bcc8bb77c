#include "NameSearch.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/TranslationInfo.h>

#include <algorithm>
#include <cctype>

using namespace DisplayAPI;

namespace {

constexpr const char* FirstNames[]
    = {"Adam", "Anna", "Ben", "Bob", "Carol", "Clara", "Dave", "Dora", "Emma", "Eric", "Fay", "Frank", "Grace", "Henry",
        "Ida", "Jack", "Jane", "Kate", "Leo", "Mary", "Nina", "Otto", "Paul", "Rosa", "Tom"};
constexpr const char* LastNames[] = {"Abel", "Baker", "Bell", "Carter", "Cook", "Dixon", "Fox", "Gray", "Hall", "Hunt",
    "King", "Lane", "Mason", "Moore", "Page", "Reed", "Stone", "Ward", "West", "Young"};
constexpr int FirstNumber = 4000;
constexpr int NoticeTime = 3000; // milliseconds

/// Whether a text stands at a place in another, in capitals or not.
bool standsAt(const std::string& text, std::size_t place, const std::string& wanted)
{
    const auto isSame = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
    return place + wanted.size() <= text.size()
        && std::equal(wanted.begin(), wanted.end(), text.begin() + static_cast<std::ptrdiff_t>(place), isSame);
}

/// Whether the first or the last name begins with the text.
bool fits(const std::string& name, const std::string& wanted)
{
    return standsAt(name, 0, wanted) || standsAt(name, name.find(' ') + 1, wanted);
}

}

NameSearch::NameSearch(Display& display, Displayable& before)
    : mDisplay(display)
    , mBefore(before)
{
    for (const char* first : FirstNames) {
        for (const char* last : LastNames) {
            const auto number = FirstNumber + static_cast<int>(mEntries.size());
            mEntries.push_back({std::string(first) + " " + last, std::to_string(number)});
        }
    }
    mNames.setTitle(new TranslationInfo("Names", nullptr)); // with the place in the list beside it
    mNames.addCommandListener(this);
    mNames.addItemStateListener(this);
    find();
    mDetails.setCommands({&mCall, &mDelete, &mBack});
    mDetails.addCommandListener(this);
    mNotice.setType(PopupNotification::INFO);
    mNotice.setTimeout(NoticeTime);
}

void NameSearch::show()
{
    mDisplay.setCurrent(&mNames);
}

void NameSearch::itemStateChanged(Item*)
{
    find();
}

/// A row for each name that fits the search text.
void NameSearch::find()
{
    const std::string wanted = mNames.getSearchText();
    mNames.clear();
    mFound.clear();
    for (std::size_t index = 0; index < mEntries.size(); ++index) {
        const Entry& entry = mEntries[index];
        if (!fits(entry.name, wanted))
            continue;
        mFound.push_back(index);
        auto* row = new ListItem(entry.name, false);
        row->setRightText(entry.number);
        mNames.append(row);
    }
    mNames.setCountIndicator(static_cast<int>(mEntries.size()));
    mNames.setSearchCountIndicator(static_cast<int>(mFound.size()));
}

void NameSearch::commandAction(Command* command, Displayable* displayable)
{
    if (command == SearchList::BACK_COMMAND())
        mDisplay.setCurrent(&mBefore);
    if (displayable == &mNames && command != SearchList::BACK_COMMAND())
        choose();
    if (command == &mBack)
        show();
    if (command == &mCall)
        callChosen();
    if (command == &mDelete)
        deleteChosen();
}

/// The details of the current row's name.
void NameSearch::choose()
{
    const int row = mNames.getSelectedIndex();
    if (row < 0 || row >= static_cast<int>(mFound.size()))
        return;
    mChosen = mFound[static_cast<std::size_t>(row)];
    mDetails.setSystemStatusText1(mEntries[mChosen].name + " " + mEntries[mChosen].number);
    mDetails.setCommands({&mCall, &mDelete, &mBack});
    mDisplay.setCurrent(&mDetails);
}

void NameSearch::callChosen()
{
    mNotice.setText("Calling");
    mNotice.setLine2Text(mEntries[mChosen].name);
    mDisplay.setCurrent(&mNotice);
}

void NameSearch::deleteChosen()
{
    mEntries.erase(mEntries.begin() + static_cast<std::ptrdiff_t>(mChosen));
    find();
    show();
}

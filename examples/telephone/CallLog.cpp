#include "CallLog.h"

#include "PartyTexts.h"

#include <DisplayAPI/CallLogMainItem.h>

#include <algorithm>
#include <utility>

using namespace DisplayAPI;

namespace {

constexpr std::size_t MostEntries = 50;

bool isSame(const CallService::Party& one, const CallService::Party& other)
{
    return one.number == other.number && one.name == other.name;
}

const char* wordOf(CallLog::Kind kind)
{
    switch (kind) {
    case CallLog::Kind::Missed: return "Missed";
    case CallLog::Kind::Taken: return "Taken";
    case CallLog::Kind::Dialled: return "Dialled";
    case CallLog::Kind::Forwarded: break;
    }
    return "Forwarded";
}

}

CallLog::CallLog(Screens& screens, Languages& languages, Clock& clock, ActionMenu& menu, Details& details,
    Question& question, Answers answers)
    : mScreens(screens)
    , mLanguages(languages)
    , mClock(clock)
    , mMenu(menu)
    , mDetails(details)
    , mQuestion(question)
    , mAnswers(std::move(answers))
    , mTabList{{{"All calls", true, {}, new List(0), {}}, {"Missed", false, Kind::Missed, new List(0), {}},
          {"Dialled", false, Kind::Dialled, new List(0), {}}, {"Forwarded", false, Kind::Forwarded, new List(0), {}}}}
{
    for (const Tab& tab : mTabList) {
        tab.list->addCommandListener(this);
        mTabs.addTab(languages.text(tab.title), tab.list, false);
    }
    mTabs.addCommandListener(this);
}

void CallLog::add(const CallService::Party& party, Kind kind)
{
    Entry entry{party, kind, Clock::now(), 1, kind == Kind::Missed};
    const auto before = std::find_if(mEntries.begin(), mEntries.end(),
        [&](const Entry& each) { return isSame(each.party, party) && each.kind == kind; });
    if (before != mEntries.end()) {
        entry.count = before->count + 1;
        mEntries.erase(before);
    }
    mEntries.insert(mEntries.begin(), entry);
    if (mEntries.size() > MostEntries)
        mEntries.pop_back();
    mMissed += kind == Kind::Missed ? 1 : 0;
    if (mScreens.isShown(mTabs))
        fill();
}

// The tabs

void CallLog::open()
{
    fill();
    for (Entry& entry : mEntries)
        entry.isNew = false;
    mMissed = 0;
    mAnswers.looked();
    mTabs.showTabList();
    mScreens.show(mTabs);
}

/// Back to the tab where the user was.
void CallLog::reopen()
{
    fill();
    mScreens.show(mTabs);
}

void CallLog::fill()
{
    for (Tab& tab : mTabList)
        fill(tab);
}

/// The user stays in his row, as far as there is one.
void CallLog::fill(Tab& tab)
{
    const int row = std::max(0, tab.list->getSelectedIndex());
    tab.rows.clear();
    tab.list->clear();
    for (std::size_t i = 0; i < mEntries.size(); ++i) {
        const Entry& entry = mEntries[i];
        if (!tab.isAll && entry.kind != tab.kind)
            continue;
        auto* party = new CallPartyIdentifier(rowOf(entry.party, mLanguages));
        tab.rows.push_back(i);
        tab.list->append(new CallLogMainItem(party, mClock.momentOf(entry.moment), entry.count, entry.isNew, true));
    }
    if (tab.rows.empty())
        tab.list->append(mLanguages.text("No calls"));
    tab.list->setSelectedIndex(std::min(row, std::max(0, static_cast<int>(tab.rows.size()) - 1)));
}

/// Brings up the tab that the user has chosen.
void CallLog::showTab()
{
    mTabs.setCurrentTabIndex(mTabs.getCurrentTabIndex());
}

CallLog::Tab* CallLog::tabOf(const Displayable* displayable)
{
    const auto found = std::find_if(
        mTabList.begin(), mTabList.end(), [displayable](const Tab& tab) { return tab.list == displayable; });
    return found == mTabList.end() ? nullptr : &*found;
}

void CallLog::commandAction(Command* command, Displayable* displayable)
{
    if (command == TabScreen::BACK_COMMAND())
        return mScreens.showIdle();
    if (command == TabScreen::OK())
        return showTab();
    Tab* tab = tabOf(displayable);
    if (!tab)
        return;
    if (command == List::BACK_COMMAND()) {
        mTabs.showTabList();
        return mScreens.show(mTabs);
    }
    const auto row = static_cast<std::size_t>(tab->list->getSelectedIndex());
    if (row >= tab->rows.size())
        return;
    if (command == List::SELECT_COMMAND())
        offer(mEntries[tab->rows[row]]);
    if (command == List::RIGHT_COMMAND())
        showDetails(mEntries[tab->rows[row]]);
}

// An entry

void CallLog::offer(const Entry& entry)
{
    mMenu.open({
        {"Call", [this, number = entry.party.number] { mAnswers.dial(number); }},
        {"Details", [this, entry] { showDetails(entry); }},
        {"To directory", [this, party = entry.party] { mAnswers.enter(party); }},
        {"Delete", [this, entry] { remove(entry); }},
        {"Delete all", [this] { removeAll(); }},
    });
}

void CallLog::showDetails(const Entry& entry)
{
    mDetails.show(shortNameOf(entry.party, mLanguages),
        {mLanguages.translate(wordOf(entry.kind)) + " " + mClock.timeOf(entry.moment), entry.party.number},
        {
            {"Call", [this, number = entry.party.number] { mAnswers.dial(number); }},
            {"To directory", [this, party = entry.party] { mAnswers.enter(party); }},
            {"Delete", [this, entry] { remove(entry); }},
        },
        [this] { reopen(); });
}

void CallLog::remove(const Entry& entry)
{
    mQuestion.ask("Delete", shortNameOf(entry.party, mLanguages), [this, entry] {
        std::erase_if(mEntries,
            [&entry](const Entry& each) { return isSame(each.party, entry.party) && each.kind == entry.kind; });
        reopen();
    });
}

void CallLog::removeAll()
{
    mQuestion.ask("Delete all", "", [this] {
        mEntries.clear();
        reopen();
    });
}

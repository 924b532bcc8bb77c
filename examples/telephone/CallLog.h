#pragma once

#include "ActionMenu.h"
#include "CallService.h"
#include "Clock.h"
#include "Details.h"
#include "Languages.h"
#include "Question.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/TabScreen.h>

#include <array>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

/// The calls that have been, the newest first, in tabs: all, the missed ones, those that the user has made, and those
/// that were forwarded. Calls of one party stand in one row, and a missed one is bold until somebody has looked.
class CallLog final : public DisplayAPI::CommandListener {
public:
    enum class Kind {
        Missed,
        Taken,
        Dialled,
        Forwarded,
    };

    /// What the log leaves to others.
    struct Answers {
        std::function<void(const std::string& number)> dial;
        std::function<void(const CallService::Party&)> enter; // into the directory
        std::function<void()> looked;                         // there are no missed calls any more
    };

    CallLog(Screens& screens, Languages& languages, Clock& clock, ActionMenu& menu, Details& details,
        Question& question, Answers answers);

    void add(const CallService::Party& party, Kind kind);

    /// How many missed calls nobody has looked at yet.
    int missed() const { return mMissed; }

    /// Shows the tabs; the missed calls have been looked at then.
    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    struct Entry {
        CallService::Party party;
        Kind kind = Kind::Taken;
        std::time_t moment = 0;
        int count = 1;
        bool isNew = false;
    };

    struct Tab {
        const char* title;
        bool isAll;
        Kind kind;
        DisplayAPI::List* list; // the tab screen's
        std::vector<std::size_t> rows;
    };

    void reopen();
    void fill();
    void fill(Tab& tab);
    void showTab();
    Tab* tabOf(const DisplayAPI::Displayable* displayable);
    void offer(const Entry& entry);
    void showDetails(const Entry& entry);
    void remove(const Entry& entry);
    void removeAll();

    Screens& mScreens;
    Languages& mLanguages;
    Clock& mClock;
    ActionMenu& mMenu;
    Details& mDetails;
    Question& mQuestion;
    Answers mAnswers;
    std::vector<Entry> mEntries;
    int mMissed = 0;
    DisplayAPI::TabScreen mTabs{{}, false};
    std::array<Tab, 4> mTabList;
};

#pragma once

#include "CallService.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/ConferenceCallItem.h>
#include <DisplayAPI/List.h>

#include <map>
#include <vector>

namespace DisplayAPI {
class CommandListener;
}

/// The list of the calls that have been connected, and their conference.
class ConnectedCalls {
public:
    /// What stands in the current row: a call, or the conference itself.
    struct Selection {
        int call = 0;
        bool isConference = false;
    };

    ConnectedCalls(Screens& screens, Languages& languages, DisplayAPI::CommandListener& listener);
    ~ConnectedCalls();

    void show();

    /// Back to the idle screen if the last call has gone under the user's eyes.
    void leaveIfEmpty();
    bool isList(const DisplayAPI::Displayable* displayable) const { return displayable == &mList; }

    // Calls

    void add(const CallService::Call& call);
    void update(const CallService::Call& call);
    void remove(int call);
    bool has(int call) const { return mCalls.count(call) > 0; }
    bool isEmpty() const { return mCalls.empty(); }
    Selection selected();

    /// Shows that the others don't hear the user.
    void setMuted(bool muted);

    // Conference

    /// Makes them members; those that are one stay it.
    void join(const std::vector<int>& calls);

    /// A call of its own again.
    void takeOut(int call);
    bool isMember(int call) const;

    /// True if the user talks to none of the members.
    bool isConferenceHeld() const;

    /// Whoever is in the conference is a call of its own again.
    void dissolve();

    /// In the order of their numbers.
    std::vector<int> members() const;

private:
    using Row = DisplayAPI::CallConnectedItem;

    struct Entry {
        Row* row = nullptr;
        CallService::State state;
        bool isMember = false;
    };

    Screens& mScreens;
    Languages& mLanguages;
    DisplayAPI::List mList{0}; // owns its rows
    DisplayAPI::ConferenceCallItem* mConference = nullptr;
    std::map<int, Entry> mCalls;
    bool mIsMuted = false;
};

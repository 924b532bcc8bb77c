#pragma once

#include "CallService.h"
#include "Languages.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/List.h>

#include <functional>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// The calls that have been, the newest first. Calls of one number stand in one row, and a missed one is bold until
/// somebody has looked.
class CallLog final : public DisplayAPI::CommandListener {
public:
    CallLog(DisplayAPI::Display& display, Languages& languages, std::function<void(const std::string&)> dial,
        std::function<void()> leave);

    void add(const CallService::Call& call, bool wasMissed);

    /// How many missed calls nobody has looked at yet.
    int missed() const { return mMissed; }

    /// Shows the calls; the missed ones have been looked at then.
    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    struct Entry {
        std::string name;
        std::string number;
        std::string moment;
        int count = 0;
        bool isMissed = false;
    };

    DisplayAPI::Display& mDisplay;
    std::function<void(const std::string&)> mDial;
    std::function<void()> mLeave;
    std::vector<Entry> mEntries; // one for each row
    int mMissed = 0;
    DisplayAPI::List mList{0}; // owns its rows
};

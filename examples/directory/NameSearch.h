#pragma once

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/DetailsWithCommands.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/SearchList.h>

#include <cstddef>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// A directory of 500 names, searched by typing, and the details of each with what can be done with it.
class NameSearch : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    /// `before` is the screen to which Left goes back from the names.
    NameSearch(DisplayAPI::Display& display, DisplayAPI::Displayable& before);

    /// Shows the names. Threads: any.
    void show();

    // What the user does. Threads: a worker thread

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// The search text has changed.
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    struct Entry {
        std::string name;
        std::string number;
    };

    void find();
    void choose();
    void callChosen();
    void deleteChosen();

    DisplayAPI::Display& mDisplay;
    DisplayAPI::Displayable& mBefore;
    std::vector<Entry> mEntries;
    std::vector<std::size_t> mFound; // of the entries, one for each row
    std::size_t mChosen = 0;         // of the entries
    DisplayAPI::SearchList mNames;
    DisplayAPI::DetailsWithCommands mDetails;
    DisplayAPI::PopupNotification mNotice;
    DisplayAPI::MenuCommand mCall{"Call?", 1};
    DisplayAPI::MenuCommand mDelete{"Delete?", 2};
    DisplayAPI::MenuCommand mBack{"Back?", 3};
};

#pragma once

#include "Exchange.h"
#include "Languages.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/DetailsWithCommands.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/SearchList.h>

#include <functional>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// Names and numbers: a list that is searched by typing, and the details of a contact, from which it is called.
class Directory final : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    struct Contact {
        std::string name;
        std::string number;
    };

    /// `dial` calls a number, `leave` goes back to where the directory was opened.
    Directory(DisplayAPI::Display& display, Languages& languages, std::function<void(const std::string&)> dial,
        std::function<void()> leave);

    /// Shows all contacts.
    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// The search text has changed.
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    void showMatches(const std::string& search);
    void showDetails();

    DisplayAPI::Display& mDisplay;
    std::function<void(const std::string&)> mDial;
    std::function<void()> mLeave;
    std::vector<Contact> mContacts; // in the order of their names
    std::vector<Contact> mMatches;  // one for each row
    Contact mShown;                 // in the details

    DisplayAPI::SearchList mList; // owns its rows
    DisplayAPI::DetailsWithCommands mDetails;
    DisplayAPI::MenuCommand mCall;
    DisplayAPI::MenuCommand mBack;
};

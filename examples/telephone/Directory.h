#pragma once

#include "CallService.h"
#include "ContactForm.h"
#include "Details.h"
#include "Languages.h"
#include "Notices.h"
#include "Question.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/SearchList.h>

#include <functional>
#include <string>
#include <vector>

/// Names and numbers: a list that is searched by typing, the details of a contact, and the form in which one is
/// written. Below the contacts stands the way to a new one.
class Directory final : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    using Contact = CallService::Party;

    /// `dial` calls a number.
    Directory(Screens& screens, Languages& languages, Details& details, Question& question, Notices& notices,
        std::function<void(const std::string&)> dial);

    /// Shows all contacts.
    void open();

    /// A new contact, to begin with what is known already; `leave` goes back to where the user comes from.
    void enter(const Contact& contact, std::function<void()> leave);

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// The search text has changed.
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    void showMatches(const std::string& search);
    void showDetails(const Contact& contact);
    void edit(const Contact& contact);
    void remove(const Contact& contact);
    void keep(const Contact& contact);
    void forget(const Contact& contact);

    Screens& mScreens;
    Languages& mLanguages;
    Details& mDetails;
    Question& mQuestion;
    Notices& mNotices;
    std::function<void(const std::string&)> mDial;
    std::vector<Contact> mContacts; // in the order of their names
    std::vector<Contact> mMatches;  // one for each row but the last
    DisplayAPI::SearchList mList;   // owns its rows
    ContactForm mForm;
};

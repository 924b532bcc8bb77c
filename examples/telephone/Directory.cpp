#include "Directory.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/ListItem.h>

#include <algorithm>
#include <cctype>

using namespace DisplayAPI;

namespace {

std::vector<Directory::Contact> allContacts()
{
    std::vector<Directory::Contact> contacts{{"Fatima Haddad", "4720"}, {"Georg Huber", "4721"}, {"Hana Sato", "4722"},
        {"Ivan Petrov", "4723"}, {"Jana Kovač", "4724"}, {"Karl Lindqvist", "4725"}, {"Lucía Gómez", "4726"},
        {"Maria Rossi", "4727"}, {"Nils Andersen", "4728"}, {"Olga Smirnova", "4729"}, {"Paul Dubois", "4730"},
        {"Reception", "4731"}, {"Security desk", "4732"}, {"Workshop", "4733"}, {"Zoë Müller", "4734"}};
    for (const Exchange::Party& party : Exchange::parties())
        contacts.push_back({party.name, party.number});
    std::sort(contacts.begin(), contacts.end(),
        [](const Directory::Contact& one, const Directory::Contact& other) { return one.name < other.name; });
    return contacts;
}

std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
        [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

/// A name is found by the beginning of any of its words.
bool isFound(const std::string& name, const std::string& search)
{
    const std::string text = " " + lowered(name);
    return text.find(" " + lowered(search)) != std::string::npos;
}

}

Directory::Directory(
    Display& display, Languages& languages, std::function<void(const std::string&)> dial, std::function<void()> leave)
    : mDisplay(display)
    , mDial(std::move(dial))
    , mLeave(std::move(leave))
    , mContacts(allContacts())
    , mCall(languages.text("Call", "?"), 1)
    , mBack(languages.text("Back", "?"), 2)
{
    mList.setTitle(languages.text("Directory"));
    mList.setCountIndicator(static_cast<int>(mContacts.size()));
    mList.addCommandListener(this);
    mList.addItemStateListener(this);
    mDetails.addCommandListener(this);
}

void Directory::open()
{
    mList.dismissSearchPopup();
    mList.setSearchText("");
    showMatches("");
    mDisplay.setCurrent(&mList);
}

void Directory::itemStateChanged(Item*)
{
    showMatches(mList.getSearchText());
}

void Directory::showMatches(const std::string& search)
{
    mMatches.clear();
    mList.clear();
    for (const Contact& contact : mContacts) {
        if (!isFound(contact.name, search))
            continue;
        mMatches.push_back(contact);
        mList.append(contact.name);
    }
    mList.setSearchCountIndicator(static_cast<int>(mMatches.size()));
    mList.setSelectedIndex(0);
}

void Directory::commandAction(Command* command, Displayable*)
{
    if (command == SearchList::BACK_COMMAND())
        mLeave();
    if (command == SearchList::SELECT_COMMAND() || command == SearchList::RIGHT_COMMAND())
        showDetails();
    if (command == &mCall)
        mDial(mShown.number);
    if (command == &mBack)
        mDisplay.setCurrent(&mList);
}

void Directory::showDetails()
{
    const int index = mList.getSelectedIndex();
    if (index < 0 || index >= static_cast<int>(mMatches.size()))
        return;
    mShown = mMatches[static_cast<std::size_t>(index)];
    mDetails.setSystemStatusText1(mShown.name + " " + mShown.number);
    mDetails.setCommands({&mCall, &mBack});
    mDisplay.setCurrent(&mDetails);
}

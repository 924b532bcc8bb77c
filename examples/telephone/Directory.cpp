#include "Directory.h"

#include "Parties.h"

#include <algorithm>
#include <cctype>
#include <tuple>
#include <utility>

using namespace DisplayAPI;

namespace {

bool isBefore(const CallService::Party& one, const CallService::Party& other)
{
    return std::tie(one.name, one.number) < std::tie(other.name, other.number);
}

bool isSame(const CallService::Party& one, const CallService::Party& other)
{
    return one.name == other.name && one.number == other.number;
}

std::vector<CallService::Party> allContacts()
{
    std::vector<CallService::Party> contacts;
    for (const Parties::Entry& party : Parties::all())
        contacts.push_back({party.name, party.number});
    std::sort(contacts.begin(), contacts.end(), isBefore);
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

Directory::Directory(Screens& screens, Languages& languages, Details& details, Question& question, Notices& notices,
    std::function<void(const std::string&)> dial)
    : mScreens(screens)
    , mLanguages(languages)
    , mDetails(details)
    , mQuestion(question)
    , mNotices(notices)
    , mDial(std::move(dial))
    , mContacts(allContacts())
    , mForm(screens, languages, notices)
{
    mList.setTitle(languages.text("Directory"));
    mList.addCommandListener(this);
    mList.addItemStateListener(this);
}

// The list

void Directory::open()
{
    mList.dismissSearchPopup();
    mList.setSearchText("");
    showMatches("");
    mScreens.show(mList);
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
    mList.append(mLanguages.text("New contact", "?"));
    mList.setCountIndicator(static_cast<int>(mContacts.size()));
    mList.setSearchCountIndicator(static_cast<int>(mMatches.size()));
    mList.setSelectedIndex(0);
}

void Directory::commandAction(Command* command, Displayable*)
{
    if (command == SearchList::BACK_COMMAND())
        return mScreens.showIdle();
    const int row = mList.getSelectedIndex();
    if (row < 0 || (command != SearchList::SELECT_COMMAND() && command != SearchList::RIGHT_COMMAND()))
        return;
    const auto index = static_cast<std::size_t>(row);
    if (index < mMatches.size())
        showDetails(mMatches[index]);
    else
        enter({}, [this] { open(); });
}

// A contact

void Directory::showDetails(const Contact& contact)
{
    mDetails.show(contact.name + " " + contact.number, {},
        {
            {"Call", [this, number = contact.number] { mDial(number); }},
            {"Edit", [this, contact] { edit(contact); }},
            {"Delete", [this, contact] { remove(contact); }},
        },
        [this] { open(); });
}

void Directory::enter(const Contact& contact, std::function<void()> leave)
{
    mForm.open(
        contact,
        [this](const Contact& written) {
            keep(written);
            showDetails(written);
            mNotices.show(PopupNotification::SUCCESS, "Saved", written.name);
        },
        std::move(leave));
}

void Directory::edit(const Contact& contact)
{
    mForm.open(
        contact,
        [this, contact](const Contact& written) {
            forget(contact);
            keep(written);
            showDetails(written);
            mNotices.show(PopupNotification::SUCCESS, "Saved", written.name);
        },
        [this, contact] { showDetails(contact); });
}

void Directory::remove(const Contact& contact)
{
    mQuestion.ask("Delete", contact.name, [this, contact] {
        forget(contact);
        open();
        mNotices.show(PopupNotification::SUCCESS, "Deleted", contact.name);
    });
}

void Directory::keep(const Contact& contact)
{
    forget(contact);
    mContacts.insert(std::upper_bound(mContacts.begin(), mContacts.end(), contact, isBefore), contact);
}

void Directory::forget(const Contact& contact)
{
    std::erase_if(mContacts, [&contact](const Contact& each) { return isSame(each, contact); });
}

#include "ContactForm.h"

#include <utility>

using namespace DisplayAPI;

namespace {

constexpr int LongestName = 20;
constexpr int LongestNumber = 12;

}

ContactForm::ContactForm(Screens& screens, Languages& languages, Notices& notices)
    : mScreens(screens)
    , mNotices(notices)
    , mSave(languages.text("Save", "?"), 1)
    , mName(new TextField(languages.text("Name"), {}, nullptr, TextField::AnyText, false))
    , mNumber(new TextField(languages.text("Number"), {}, nullptr, TextField::Number, false))
{
    mForm.setTitle(languages.text("Contact"));
    mName->setMaxFieldLength(LongestName);
    mNumber->setMaxFieldLength(LongestNumber);
    mForm.append(mName);
    mForm.append(mNumber);
    mForm.addCommandListener(this);
}

void ContactForm::open(
    const CallService::Party& contact, std::function<void(const CallService::Party&)> keep, std::function<void()> leave)
{
    mKeep = std::move(keep);
    mLeave = std::move(leave);
    mName->setString(contact.name);
    mNumber->setString(contact.number);
    // In the language of now: a form does not read the texts of its commands again.
    mForm.clearCommands();
    mForm.addCommand(&mSave);
    mForm.setSelected(mName);
    mScreens.show(mForm);
}

void ContactForm::commandAction(Command* command, Displayable*)
{
    if (command == Form::BACK_COMMAND()) {
        const auto leave = mLeave;
        return leave();
    }
    if (command != &mSave)
        return;
    const CallService::Party written{mName->getString(), mNumber->getString()};
    if (written.name.empty() || written.number.empty())
        return mNotices.show(PopupNotification::WARNING, "Name and number, please");
    const auto keep = mKeep; // it may open the form anew
    keep(written);
}

#include "Forwarding.h"

#include "Parties.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/PopupDialer.h>

#include <utility>

using namespace DisplayAPI;
using Diversion = CallService::Diversion;

Forwarding::Forwarding(Screens& screens, Languages& languages, Answers answers)
    : mScreens(screens)
    , mLanguages(languages)
    , mAnswers(std::move(answers))
    , mNumber(languages.text("Forward to"), {}, nullptr, TextField::Number, false)
    , mEntry(&mNumber, false)
    , mForward(languages.text("Forward", "?"), 1)
    , mToVoiceMail(languages.text("To voice mail", "?"), 2)
{
    mList.setTitle(languages.text("Forwarding"));
    const std::pair<Diversion, const char*> kinds[]
        = {{Diversion::Always, "All calls"}, {Diversion::Busy, "When busy"}, {Diversion::NoAnswer, "No answer"}};
    for (const auto& [diversion, name] : kinds) {
        auto* item = new CallForwardItem(CallLogMainItem::NoIcon, languages.text(name), false, false);
        mKinds.push_back({diversion, item, ""});
        mList.append(item);
    }
    mList.addCommandListener(this);
    mEntry.setTextEditMode(PopupTextFieldPrivateIfc::NumericOnly);
    mEntry.addCommand(&mForward);
    mEntry.addCommand(&mToVoiceMail);
    mEntry.addCommandListener(this);
}

void Forwarding::open()
{
    mScreens.show(mList);
}

void Forwarding::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mEntry)
        return chooseTarget(command);
    if (command->getType() == Command::Back)
        mAnswers.leave();
    if (command->getType() == Command::Select)
        choose();
}

/// A check mark is taken off at once; to set one, the user says where the calls go.
void Forwarding::choose()
{
    const int index = mList.getSelectedIndex();
    if (index < 0 || index >= static_cast<int>(mKinds.size()))
        return;
    mChosen = static_cast<std::size_t>(index);
    if (!mKinds[mChosen].number.empty())
        return forwardTo("");
    mEntry.clearText();
    mScreens.showOver(mEntry);
}

void Forwarding::chooseTarget(Command* command)
{
    const std::string number = mEntry.getText();
    const bool isBack = command == PopupDialer::BackCommand();
    // Nothing typed yet: the user may still do so.
    if (!isBack && command != &mToVoiceMail && (command != &mForward || number.empty()))
        return;
    mEntry.dismiss();
    if (!isBack)
        forwardTo(command == &mToVoiceMail ? Parties::VoiceMail : number);
}

void Forwarding::forwardTo(const std::string& number)
{
    Kind& kind = mKinds[mChosen];
    kind.number = number;
    if (number.empty())
        kind.item->uncheck();
    else
        kind.item->check();
    kind.item->setTextBranch(number, nullptr, {});
    mAnswers.changed(kind.diversion, number);
}

#include "Forwarding.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/PopupDialer.h>

using namespace DisplayAPI;

Forwarding::Forwarding(Display& display, Languages& languages, std::function<void(const std::string&)> changed,
    std::function<void()> leave)
    : mDisplay(display)
    , mLanguages(languages)
    , mChanged(std::move(changed))
    , mLeave(std::move(leave))
    , mNumber(languages.text("Forward to"), {}, nullptr, TextField::Number, false)
    , mEntry(&mNumber, false)
    , mForward(languages.text("Forward", "?"), 1)
{
    mList.setTitle(languages.text("Forwarding"));
    for (const char* kind : {"All calls", "When busy", "No answer"}) {
        auto* item = new CallForwardItem(CallLogMainItem::NoIcon, languages.text(kind), false, false);
        mKinds.push_back({item, ""});
        mList.append(item);
    }
    mList.addCommandListener(this);
    mEntry.setTextEditMode(PopupTextFieldPrivateIfc::NumericOnly);
    mEntry.addCommand(&mForward);
    mEntry.addCommandListener(this);
}

void Forwarding::open()
{
    mDisplay.setCurrent(&mList);
}

void Forwarding::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mEntry) {
        if (command == &mForward)
            forwardTo(mEntry.getText());
        if (command == &mForward || command == PopupDialer::BackCommand())
            mEntry.dismiss();
        return;
    }
    if (command->getType() == Command::Back)
        mLeave();
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
    mDisplay.setCurrent(&mEntry);
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
    if (mChosen == 0)
        mChanged(number);
}

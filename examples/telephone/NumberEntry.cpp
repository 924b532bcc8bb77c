#include "NumberEntry.h"

using namespace DisplayAPI;

NumberEntry::NumberEntry(Screens& screens, Languages& languages)
    : mScreens(screens)
    , mLanguages(languages)
    , mCall(languages.text("Call", "?"), 1)
    , mTransfer(languages.text("Transfer", "?"), 2)
    , mDeflect(languages.text("Deflect", "?"), 3)
    , mDone(languages.text("Done", "?"), 4)
{
    mDialer.addCommandListener(this);
    mDialer.addItemStateListener(this);
}

void NumberEntry::open(Purpose purpose, int call)
{
    struct Look {
        const char* prefix;
        MenuCommand* choice;
    };
    const Look look = purpose == Purpose::Call ? Look{"Dial", &mCall}
        : purpose == Purpose::Transfer         ? Look{"To", &mTransfer}
        : purpose == Purpose::Deflect          ? Look{"To", &mDeflect}
                                               : Look{"Send", &mDone};
    mPurpose = purpose;
    mCallId = call;
    mSent = 0;
    mIsOpen = true;
    mDialer.setLine1PrefixText(mLanguages.text(look.prefix));
    mDialer.setLineEditText("");
    mDialer.clearCommands();
    mDialer.addCommand(look.choice);
    mDialer.setEditMode();
    mScreens.showOver(mDialer);
}

void NumberEntry::closeIfAbout(int call)
{
    if (mIsOpen && mCallId == call && call != 0)
        close();
}

void NumberEntry::close()
{
    mIsOpen = false;
    mDialer.dismiss();
}

void NumberEntry::itemStateChanged(Item*)
{
    if (!mIsOpen || mPurpose != Purpose::Digits)
        return;
    const std::string text = mDialer.getLineEditText();
    for (; mSent < text.size(); ++mSent)
        onDigit(mCallId, text[mSent]);
    mSent = text.size();
}

void NumberEntry::commandAction(Command* command, Displayable*)
{
    if (!mIsOpen || command == PopupDialer::EditFieldShownCommand())
        return;
    const std::string number = mDialer.getLineEditText();
    // Nothing typed yet: the user may still do so.
    if (command != PopupDialer::BackCommand() && command != &mDone && number.empty())
        return;
    close();
    if (command != PopupDialer::BackCommand() && command != &mDone)
        onNumber(mPurpose, mCallId, number);
}

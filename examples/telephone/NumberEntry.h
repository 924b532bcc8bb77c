#pragma once

#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupDialer.h>

#include <functional>
#include <string>

/// Asks for a number over the calls: whom to call beside them, where a call goes, and digits to send in its voice.
class NumberEntry final : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    enum class Purpose {
        Call,
        Transfer,
        Deflect,
        Digits,
    };

    NumberEntry(Screens& screens, Languages& languages);

    /// The number, for the purpose and the call that the user was asked for.
    std::function<void(Purpose purpose, int call, const std::string& number)> onNumber;

    /// One more digit to send.
    std::function<void(int call, char digit)> onDigit;

    void open(Purpose purpose, int call);

    /// For a call that has ended.
    void closeIfAbout(int call);

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    void close();

    Screens& mScreens;
    Languages& mLanguages;
    DisplayAPI::PopupDialer mDialer{true, 3};
    DisplayAPI::MenuCommand mCall;
    DisplayAPI::MenuCommand mTransfer;
    DisplayAPI::MenuCommand mDeflect;
    DisplayAPI::MenuCommand mDone;
    Purpose mPurpose = Purpose::Call;
    int mCallId = 0;
    std::size_t mSent = 0; // how many of the digits
    bool mIsOpen = false;
};

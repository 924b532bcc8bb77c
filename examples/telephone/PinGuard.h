#pragma once

#include "Languages.h"
#include "Notices.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupTextField.h>
#include <DisplayAPI/TextField.h>

#include <ctime>
#include <functional>
#include <string>

/// The user's PIN: asked for before something that not everybody may do, and changed. Digits only, shown as asterisks.
///
/// After three wrong ones nobody is asked for half a minute.
class PinGuard final : public DisplayAPI::CommandListener {
public:
    PinGuard(Screens& screens, Languages& languages, Notices& notices);

    bool hasPin() const { return !mPin.empty(); }

    /// Does it at once while there is no PIN.
    void ask(std::function<void()> then);

    /// Asks for a new one, twice; then does what comes behind that.
    void change(std::function<void()> then);
    void clear() { mPin.clear(); }

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    enum class Step {
        Check,
        New,
        Repeat,
    };

    void open(Step step);
    void take(const std::string& digits);
    void check(const std::string& digits);
    void refuse(const char* key);

    Screens& mScreens;
    Languages& mLanguages;
    Notices& mNotices;
    std::string mPin;
    std::string mNewPin;
    Step mStep = Step::Check;
    std::function<void()> mThen;
    int mWrong = 0;
    std::time_t mWaitUntil = 0;
    DisplayAPI::TextField mField;
    DisplayAPI::PopupTextField mEntry;
    DisplayAPI::MenuCommand mOk;
};

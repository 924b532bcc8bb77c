#pragma once

#include "CallService.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupCall.h>

#include <map>
#include <memory>
#include <vector>

namespace DisplayAPI {
class CommandListener;
}

/// The popups of calls that are not connected, one for each call, and what the user can do about them.
///
/// The popup of the newest call lies on top. One that the user puts aside comes back with showAll(), and by itself
/// when its call needs an answer anew.
class CallPopups {
public:
    /// The listener is told of the choices; callOf() then tells whose they are.
    CallPopups(Screens& screens, Languages& languages, DisplayAPI::CommandListener& listener);

    /// Shows the state of a call. One that waits comes while another is talked to.
    void show(const CallService::Call& call, bool isWaiting);
    void remove(int call);

    /// Takes a popup off the screen, while its call goes on.
    void putAside(int call);

    /// Brings up those that were not put aside, or all of them.
    void raise();
    void showAll();
    bool isEmpty() const { return mPopups.empty(); }

    /// The call of a popup; 0 for another screen.
    int callOf(const DisplayAPI::Displayable* displayable) const;

    DisplayAPI::MenuCommand accept;
    DisplayAPI::MenuCommand endAndAccept;
    DisplayAPI::MenuCommand reject;
    DisplayAPI::MenuCommand deflect;
    DisplayAPI::MenuCommand pickUp;
    DisplayAPI::MenuCommand ignore;
    DisplayAPI::MenuCommand call;
    DisplayAPI::MenuCommand callBack;
    DisplayAPI::MenuCommand resume;
    DisplayAPI::MenuCommand disconnect;

private:
    struct Popup {
        std::unique_ptr<DisplayAPI::PopupCall> popup;
        CallService::State state;
        bool isAside = false;
    };

    void fill(DisplayAPI::PopupCall& popup, const CallService::Call& call, bool isWaiting);
    std::vector<DisplayAPI::MenuCommand*> choicesOf(const CallService::Call& call, bool isWaiting);

    Screens& mScreens;
    Languages& mLanguages;
    DisplayAPI::CommandListener& mListener;
    std::map<int, Popup> mPopups; // by the number of the call
};

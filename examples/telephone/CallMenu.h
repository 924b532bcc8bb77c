#pragma once

#include "CallService.h"
#include "ConnectedCalls.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/MenuCommand.h>

#include <functional>

namespace DisplayAPI {
class CommandListener;
}

/// The menu over the connected calls: what the state of the one it was opened on allows.
///
/// It keeps whom it is about. When that call changes or ends the menu goes.
class CallMenu {
public:
    /// What the menu needs to know of its call beside the state.
    struct Place {
        bool isMember = false;
        bool hasOthers = false; // that could join it
        bool isMuted = false;
    };

    CallMenu(Screens& screens, Languages& languages, DisplayAPI::CommandListener& listener);

    void openForCall(const CallService::Call& call, Place place);
    void openForConference(bool isHeld, bool isMuted);

    /// Slides the menu out. Its target stays until it opens anew.
    void close();

    /// For a call that has changed: the menu about it would be out of date.
    void closeIfAbout(int call);
    void closeIfAboutConference();

    bool isMenu(const DisplayAPI::Displayable* displayable) const { return displayable == &mMenu; }
    const ConnectedCalls::Selection& target() const { return mTarget; }

    DisplayAPI::MenuCommand hold;
    DisplayAPI::MenuCommand resume;
    DisplayAPI::MenuCommand transfer;
    DisplayAPI::MenuCommand connect;
    DisplayAPI::MenuCommand conference;
    DisplayAPI::MenuCommand takeOut;
    DisplayAPI::MenuCommand split;
    DisplayAPI::MenuCommand digits;
    DisplayAPI::MenuCommand mute;
    DisplayAPI::MenuCommand unmute;
    DisplayAPI::MenuCommand newCall;
    DisplayAPI::MenuCommand disconnect;

private:
    void open(const ConnectedCalls::Selection& target, const std::vector<DisplayAPI::MenuCommand*>& commands);

    Screens& mScreens;
    ConnectedCalls::Selection mTarget;
    DisplayAPI::ContextMenu mMenu{false};
};

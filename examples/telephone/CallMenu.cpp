#include "CallMenu.h"

#include <vector>

using namespace DisplayAPI;
using State = CallService::State;

namespace {

constexpr int MenuTime = 10; // seconds

}

CallMenu::CallMenu(Screens& screens, Languages& languages, CommandListener& listener)
    : hold(languages.text("Hold", "?"), 1)
    , resume(languages.text("Resume", "?"), 2)
    , transfer(languages.text("Transfer", "?"), 3)
    , connect(languages.text("Connect both", "?"), 4)
    , conference(languages.text("Conference", "?"), 5)
    , takeOut(languages.text("Take out", "?"), 6)
    , split(languages.text("End conference", "?"), 7)
    , digits(languages.text("Send digits", "?"), 8)
    , mute(languages.text("Mute", "?"), 9)
    , unmute(languages.text("Unmute", "?"), 10)
    , newCall(languages.text("New call", "?"), 11)
    , disconnect(languages.text("Disconnect", "?"), 12)
    , mScreens(screens)
{
    mMenu.setAutoHideTimeout(MenuTime);
    mMenu.addCommandListener(&listener);
}

void CallMenu::openForCall(const CallService::Call& call, Place place)
{
    std::vector<MenuCommand*> commands;
    if (place.isMember) {
        commands = {&takeOut, &digits};
    } else {
        commands.push_back(call.state == State::HeldHere || call.state == State::HeldTooLong ? &resume : &hold);
        if (place.hasOthers)
            commands.insert(commands.end(), {&conference, &connect});
        commands.push_back(&transfer);
        if (call.state == State::Connected)
            commands.insert(commands.end(), {&digits, place.isMuted ? &unmute : &mute});
        commands.push_back(&newCall);
    }
    if (call.state == State::HeldThere)
        std::erase(commands, &hold);
    commands.push_back(&disconnect);
    open({call.id, false}, commands);
}

void CallMenu::openForConference(bool isHeld, bool isMuted)
{
    open({0, true},
        {isHeld ? &resume : &split, isHeld ? &split : &hold, isMuted ? &unmute : &mute, &newCall, &disconnect});
}

void CallMenu::open(const ConnectedCalls::Selection& target, const std::vector<MenuCommand*>& commands)
{
    mTarget = target;
    mMenu.clearCommands();
    for (MenuCommand* command : commands)
        mMenu.addCommand(command, nullptr, false, false, "");
    mScreens.showOver(mMenu);
}

void CallMenu::close()
{
    mMenu.dismiss();
}

void CallMenu::closeIfAbout(int call)
{
    if (mTarget.call == call && call != 0) {
        mTarget = {};
        close();
    }
}

void CallMenu::closeIfAboutConference()
{
    if (mTarget.isConference) {
        mTarget = {};
        close();
    }
}

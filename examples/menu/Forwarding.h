#pragma once

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ExpandingTreeList.h>

class Words;

namespace DisplayAPI {
class Display;
}

/// Where calls are forwarded to: rows that unfold to show the number, and that OK switches on and off.
class Forwarding : public DisplayAPI::CommandListener {
public:
    /// `menu` is the screen to which Left leads.
    Forwarding(DisplayAPI::Display& display, DisplayAPI::Displayable& menu, Words& words);

    /// Threads: any.
    void show();

    /// Takes the user's actions. Threads: a worker thread.
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    DisplayAPI::Display& mDisplay;
    DisplayAPI::Displayable& mMenu;
    DisplayAPI::ExpandingTreeList mList{false}; // owns its items
};

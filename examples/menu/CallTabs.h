#pragma once

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/TabScreen.h>

class Words;

namespace DisplayAPI {
class Display;
class Form;
class List;
class Tree;
}

/// A tab screen: a list of calls that were missed, a tree of messages, and a form for the mailbox.
class CallTabs : public DisplayAPI::CommandListener {
public:
    /// `menu` is the screen to which Left leads.
    CallTabs(DisplayAPI::Display& display, DisplayAPI::Displayable& menu, Words& words);

    /// Brings the titles of the tabs up. Threads: any.
    void show();

    /// Takes the user's actions. Threads: a worker thread.
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void addMissedCalls();
    void addMessages();
    void addMailbox();

    DisplayAPI::Display& mDisplay;
    DisplayAPI::Displayable& mMenu;
    Words& mWords;
    DisplayAPI::TabScreen mTabs{DisplayAPI::TabScreen::IconType{}, false}; // owns its tabs' screens
    DisplayAPI::List* mMissed = nullptr;
    DisplayAPI::Tree* mMessages = nullptr;
    DisplayAPI::Form* mMailbox = nullptr;
};

#pragma once

#include "CallTabs.h"
#include "Forwarding.h"
#include "Words.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/Tree.h>

namespace DisplayAPI {
class Display;
class TreeNode;
}

/// The menu of a telephone: settings three levels deep, of which one branch is protected and one changes the language,
/// and from there a tab screen and a screen for call forwarding.
class Menu : public DisplayAPI::CommandListener {
public:
    explicit Menu(DisplayAPI::Display& display);

    /// Shows the menu until the display is shut down. Threads: GUI thread.
    void run();

    /// Takes the user's actions. Threads: a worker thread.
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void addSettings();
    void addAdministration();
    void choose(const DisplayAPI::TreeNode& node);
    void setLanguage(Words::Language language);
    void notify(DisplayAPI::PopupNotification::InfoType type, TranslationInfo* first, const std::string& second);

    DisplayAPI::Display& mDisplay;
    Words mWords{mDisplay}; // outlives the screens, which read it
    DisplayAPI::Tree mTree;
    DisplayAPI::TreeNode* mAdministration = nullptr;
    CallTabs mCalls{mDisplay, mTree, mWords};
    Forwarding mForwarding{mDisplay, mTree, mWords};
    DisplayAPI::PopupConfirm mQuestion{true};
    DisplayAPI::MenuCommand mEnter{mWords.question("Enter"), 1};
    DisplayAPI::MenuCommand mCancel{mWords.question("Cancel"), 2};
    DisplayAPI::PopupNotification mNotice;
};

#pragma once

#include "Choice.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>

#include <functional>
#include <memory>
#include <string>

/// Asks before something is lost. Left, "No" and a time without an answer leave everything as it is.
class Question final : public DisplayAPI::CommandListener {
public:
    Question(Screens& screens, Languages& languages);

    /// The question is translated; what it is about stands behind it as it is.
    void ask(const std::string& key, const std::string& about, std::function<void()> yes);

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    Screens& mScreens;
    Languages& mLanguages;
    DisplayAPI::MenuCommand mNo;
    DisplayAPI::MenuCommand mYes;
    std::function<void()> mAct;
    std::unique_ptr<DisplayAPI::PopupConfirm> mPopup;
};

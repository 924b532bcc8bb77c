#pragma once

#include "Choice.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/MenuCommand.h>

#include <memory>
#include <vector>

/// A menu of things to do, over the screen that they are about.
class ActionMenu final : public DisplayAPI::CommandListener {
public:
    ActionMenu(Screens& screens, Languages& languages);

    void open(std::vector<Choice> choices);

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    Screens& mScreens;
    Languages& mLanguages;
    std::vector<Choice> mChoices;
    std::vector<std::unique_ptr<DisplayAPI::MenuCommand>> mCommands; // one for each choice
    DisplayAPI::ContextMenu mMenu{false};
};

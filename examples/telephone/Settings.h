#pragma once

#include "Languages.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/TextBox.h>
#include <DisplayAPI/Tree.h>

#include <functional>
#include <string>

namespace DisplayAPI {
class Display;
}

/// The settings: a menu of menus, and the screens behind its rows.
class Settings final : public DisplayAPI::CommandListener {
public:
    Settings(DisplayAPI::Display& display, Languages& languages, std::function<void(const std::string&)> speak,
        std::function<void()> leave);

    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void choose(int id);

    DisplayAPI::Display& mDisplay;
    Languages& mLanguages;
    std::function<void(const std::string&)> mSpeak;
    std::function<void()> mLeave;
    DisplayAPI::Tree mTree; // owns its nodes
    DisplayAPI::TextBox mHelp{false};
};

#pragma once

#include "Languages.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/SelectionField.h>
#include <DisplayAPI/SliderItem.h>
#include <DisplayAPI/TextBox.h>
#include <DisplayAPI/TextField.h>
#include <DisplayAPI/Tree.h>

#include <functional>
#include <string>

namespace DisplayAPI {
class Display;
}

/// The settings: a menu of menus, and the screens behind its rows.
class Settings final : public DisplayAPI::CommandListener {
public:
    /// Where the user goes from here, and what he has changed.
    struct Answers {
        std::function<void(const std::string& code)> speak;
        std::function<void(const std::string& name)> call; // the user by another name
        std::function<void()> forward;                     // shows the forwarding
        std::function<void()> leave;
    };

    Settings(DisplayAPI::Display& display, Languages& languages, Answers answers);

    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void choose(int row);
    void openHelp();

    DisplayAPI::Display& mDisplay;
    Languages& mLanguages;
    Answers mAnswers;
    DisplayAPI::MenuCommand mClassic;
    DisplayAPI::MenuCommand mChime;
    DisplayAPI::MenuCommand mBirds;
    DisplayAPI::Tree mTree; // owns its nodes
    DisplayAPI::TextBox mHelp{false};
    DisplayAPI::Form mUser{DisplayAPI::Form::Proportion0}; // a form owns its items
    DisplayAPI::Form mRinging{DisplayAPI::Form::Proportion0};
    DisplayAPI::TextField* mName;
    DisplayAPI::TextField* mPin;
    DisplayAPI::SliderItem* mVolume;
    DisplayAPI::SelectionField* mTone;
};

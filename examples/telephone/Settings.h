#pragma once

#include "Languages.h"
#include "PinGuard.h"
#include "Screens.h"
#include "SettingsForms.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/TextBox.h>
#include <DisplayAPI/Tree.h>

#include <functional>
#include <string>

/// The settings: a menu of menus, and the screens behind its rows. What the PIN protects stands in a branch of its own.
class Settings final : public DisplayAPI::CommandListener {
public:
    /// Where the user goes from here, and what he has changed.
    struct Answers {
        std::function<void(const std::string& code)> speak;
        std::function<void(bool on)> setTwelveHours;
        std::function<void(bool on)> setDoNotDisturb;
        std::function<void()> forward; // shows the forwarding
        std::function<void()> lock;
        SettingsForms::Answers forms;
    };

    Settings(Screens& screens, Languages& languages, Notices& notices, PinGuard& pin, Answers answers);

    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void addNodes();
    void choose(const DisplayAPI::TreeNode& node);
    void chooseLanguage(int row);
    void chooseClock(bool hasTwelveHours);
    void chooseInSecurity(int row);
    void switchDoNotDisturb();
    void openHelp();

    Screens& mScreens;
    Languages& mLanguages;
    Notices& mNotices;
    PinGuard& mPin;
    Answers mAnswers;
    bool mIsDoNotDisturb = false;
    DisplayAPI::Tree mTree; // owns its nodes
    DisplayAPI::TreeNode* mSecurity = nullptr;
    DisplayAPI::TextBox mHelp{false};
    SettingsForms mForms;
};

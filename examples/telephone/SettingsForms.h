#pragma once

#include "Languages.h"
#include "Notices.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/SelectionField.h>
#include <DisplayAPI/SliderItem.h>
#include <DisplayAPI/TextField.h>

#include <functional>
#include <string>

/// The settings that are filled in: whose telephone it is, and how it rings. Each takes effect at once.
class SettingsForms final : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    struct Answers {
        std::function<void(const std::string& name)> call; // the user by another name
        std::function<void(bool shown)> showName;          // in the place of the number
        std::function<void(int volume)> setVolume;
    };

    static constexpr int LoudestVolume = 10;

    SettingsForms(
        Screens& screens, Languages& languages, Notices& notices, Answers answers, std::function<void()> leave);

    void openUser();
    void openRinging();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// The slider has been moved.
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    Screens& mScreens;
    Notices& mNotices;
    Answers mAnswers;
    std::function<void()> mLeave;
    DisplayAPI::MenuCommand mNumberShown;
    DisplayAPI::MenuCommand mNameShown;
    DisplayAPI::MenuCommand mClassic;
    DisplayAPI::MenuCommand mChime;
    DisplayAPI::MenuCommand mBirds;
    DisplayAPI::Form mUser{DisplayAPI::Form::Proportion0}; // a form owns its items
    DisplayAPI::Form mRinging{DisplayAPI::Form::Proportion0};
    DisplayAPI::TextField* mName;
    DisplayAPI::SelectionField* mShown;
    DisplayAPI::SliderItem* mVolume;
    DisplayAPI::SelectionField* mTone;
};

#pragma once

#include "CallService.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ExpandingTreeList.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupTextField.h>
#include <DisplayAPI/TextField.h>

#include <functional>
#include <string>
#include <vector>

/// Where calls go that the user doesn't take: always, when he talks, and when he doesn't answer.
class Forwarding final : public DisplayAPI::CommandListener {
public:
    struct Answers {
        std::function<void(CallService::Diversion kind, const std::string& number)> changed;
        std::function<void()> leave;
    };

    Forwarding(Screens& screens, Languages& languages, Answers answers);

    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    struct Kind {
        CallService::Diversion diversion;
        DisplayAPI::CallForwardItem* item;
        std::string number;
    };

    void choose();
    void chooseTarget(DisplayAPI::Command* command);
    void forwardTo(const std::string& number);

    Screens& mScreens;
    Languages& mLanguages;
    Answers mAnswers;
    DisplayAPI::ExpandingTreeList mList{false}; // owns its items
    std::vector<Kind> mKinds;                   // in the order of the rows
    std::size_t mChosen = 0;
    DisplayAPI::TextField mNumber;
    DisplayAPI::PopupTextField mEntry;
    DisplayAPI::MenuCommand mForward;
    DisplayAPI::MenuCommand mToVoiceMail;
};

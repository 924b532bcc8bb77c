#pragma once

#include "Languages.h"

#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ExpandingTreeList.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupTextField.h>
#include <DisplayAPI/TextField.h>

#include <functional>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// Where calls go that the user doesn't take: always, when he talks, and when he doesn't answer.
class Forwarding final : public DisplayAPI::CommandListener {
public:
    /// `changed` hears where all calls go, an empty text for nowhere; `leave` goes back.
    Forwarding(DisplayAPI::Display& display, Languages& languages, std::function<void(const std::string&)> changed,
        std::function<void()> leave);

    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    struct Kind {
        DisplayAPI::CallForwardItem* item;
        std::string number;
    };

    void choose();
    void forwardTo(const std::string& number);

    DisplayAPI::Display& mDisplay;
    Languages& mLanguages;
    std::function<void(const std::string&)> mChanged;
    std::function<void()> mLeave;
    DisplayAPI::ExpandingTreeList mList{false}; // owns its items
    std::vector<Kind> mKinds;                   // in the order of the rows
    std::size_t mChosen = 0;
    DisplayAPI::TextField mNumber;
    DisplayAPI::PopupTextField mEntry;
    DisplayAPI::MenuCommand mForward;
};

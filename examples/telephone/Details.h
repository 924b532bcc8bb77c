#pragma once

#include "Choice.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/List.h>

#include <functional>
#include <string>
#include <vector>

/// Everything about one thing: what is known of it, and below that what the user may do with it.
class Details final : public DisplayAPI::CommandListener {
public:
    Details(Screens& screens, Languages& languages);

    /// `leave` goes back to where the details were opened.
    void show(const std::string& title, const std::vector<std::string>& facts, std::vector<Choice> choices,
        std::function<void()> leave);

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    Screens& mScreens;
    Languages& mLanguages;
    DisplayAPI::List mList{0}; // owns its rows
    std::size_t mFacts = 0;
    std::vector<Choice> mChoices;
    std::function<void()> mLeave;
};

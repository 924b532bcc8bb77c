#pragma once

#include "CallService.h"
#include "Languages.h"
#include "Notices.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Form.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/TextField.h>

#include <functional>

/// A name and a number to be written. Left leaves everything as it was.
class ContactForm final : public DisplayAPI::CommandListener {
public:
    ContactForm(Screens& screens, Languages& languages, Notices& notices);

    /// `keep` gets what has been written, when it is complete.
    void open(const CallService::Party& contact, std::function<void(const CallService::Party&)> keep,
        std::function<void()> leave);

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    Screens& mScreens;
    Notices& mNotices;
    std::function<void(const CallService::Party&)> mKeep;
    std::function<void()> mLeave;
    DisplayAPI::MenuCommand mSave;
    DisplayAPI::Form mForm{DisplayAPI::Form::Proportion0}; // owns its items
    DisplayAPI::TextField* mName;
    DisplayAPI::TextField* mNumber;
};

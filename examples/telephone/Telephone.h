#pragma once

#include "CallLog.h"
#include "CallScreens.h"
#include "Directory.h"
#include "Exchange.h"
#include "Forwarding.h"
#include "Languages.h"
#include "Settings.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/MenuCommand.h>

#include <string>

namespace DisplayAPI {
class Display;
}

/// A whole telephone: the idle screen, and the ways from there to calls, call log, directory and settings.
class Telephone final : public DisplayAPI::CommandListener {
public:
    explicit Telephone(DisplayAPI::Display& display);
    ~Telephone() override;

    /// Shows the idle screen until the display is shut down. Threads: GUI thread.
    void run();

    // What comes from outside. Threads: any but the GUI thread

    /// Somebody calls: "NAME NUMBER", a number, or an empty text for whoever comes next.
    void ring(const std::string& caller) { mExchange.ring(caller); }

    /// Speaks another language, by its code, or the next one for an empty text.
    void speak(const std::string& code);

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    Settings::Answers answers();
    void forward(const std::string& number);
    void showIdle();
    void logCall(const CallScreens::EndedCall& ended);
    void greet();

    DisplayAPI::Display& mDisplay;
    Languages mLanguages;
    Exchange mExchange;
    DisplayAPI::IdleDisplay mIdle{"telephone"};
    CallScreens mCalls;
    CallLog mLog;
    Directory mDirectory;
    Forwarding mForwarding;
    Settings mSettings;
    DisplayAPI::MenuCommand mToCalls;
    DisplayAPI::MenuCommand mToLog;
    DisplayAPI::MenuCommand mToDirectory;
    DisplayAPI::MenuCommand mToSettings;
};

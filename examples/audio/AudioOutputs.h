#pragma once

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>

#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
class ListItem;
}

/// Where the sound of a call goes: a list to choose from, and a question before the choice takes effect.
class AudioOutputs : public DisplayAPI::CommandListener {
public:
    explicit AudioOutputs(DisplayAPI::Display& display);

    /// Shows the list until the display is shut down. Threads: GUI thread.
    void run();

    /// Takes the user's actions. Threads: a worker thread.
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    struct Output {
        std::string name;
        DisplayAPI::ListItem* row; // belongs to the list
    };

    void ask();
    void use(Output& output);

    DisplayAPI::Display& mDisplay;
    DisplayAPI::List mList{0};
    DisplayAPI::PopupConfirm mQuestion{true};
    DisplayAPI::MenuCommand mYes{"Yes", 1};
    DisplayAPI::MenuCommand mNo{"No", 2};

    // What stands here is used by one delivery at a time.
    std::vector<Output> mOutputs;
    Output* mUsed = nullptr;
    Output* mAskedFor = nullptr;
};

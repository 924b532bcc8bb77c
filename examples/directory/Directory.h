#pragma once

#include "NameSearch.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ExclusiveList.h>
#include <DisplayAPI/LineOverviewItem.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/TextBox.h>
#include <DisplayAPI/TranslationInfo.h>

#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// The words that the library's own screens ask for, from the beginning of one's life to its end.
class Words : public TranslatorIfc {
public:
    explicit Words(DisplayAPI::Display& display);
    ~Words() override;
    std::string translate(std::string key) override;

private:
    DisplayAPI::Display& mDisplay;
};

/// What a telephone keeps beside its calls: the names, the call log, the lines, the ring tones, and a text of help.
class Directory : public DisplayAPI::CommandListener {
public:
    explicit Directory(DisplayAPI::Display& display);

    /// Shows the menu until the display is shut down. Threads: GUI thread.
    void run();

    /// Somebody calls on a line, counted from 1, or its call has ended if nobody is named. Threads: any.
    void ring(int line, const std::string& caller);

    /// Takes the user's actions. Threads: a worker thread.
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    void open(int row);
    void holdLine();
    void setTone();

    DisplayAPI::Display& mDisplay;
    Words mWords{mDisplay}; // there before the screens that ask
    DisplayAPI::List mMenu{0};
    NameSearch mNames;
    DisplayAPI::List mCallLog{0};
    DisplayAPI::List mLines{0};
    std::vector<DisplayAPI::LineOverviewItem*> mLineRows; // which mLines owns
    DisplayAPI::ExclusiveList mTones;
    DisplayAPI::TextBox mHelp{false};
    DisplayAPI::PopupNotification mNotice;
};

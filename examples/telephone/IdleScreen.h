#pragma once

#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupDialer.h>

#include <functional>
#include <string>

/// The telephone at rest: what there is to know, the menu, and the dialer.
class IdleScreen final : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    /// Where the menu leads.
    enum class Place {
        Directory,
        CallLog,
        Messages,
        Calls,
        Settings,
        Unlocking,
    };

    /// Calls a step of the desktop, which tells the same in the strip above the glass.
    using TellDesktop = std::function<void(const std::string& step, const std::string& argument)>;

    IdleScreen(DisplayAPI::IdleDisplay& idle, Screens& screens, Languages& languages, TellDesktop tellDesktop);

    std::function<void(Place)> onOpen;
    std::function<void(const std::string& number)> onDial;

    // What it tells

    void setMissedCalls(int count);
    void setMessages(int count);

    /// Where all calls go; empty for nowhere.
    void setForwarding(const std::string& number);
    void setDoNotDisturb(bool on);
    void setRingerOff(bool off);
    void setUser(const std::string& name);

    /// Shows the name in the place of the number, on the left.
    void showName(bool shown);

    /// A locked telephone takes calls, and lets nobody in.
    void setLocked(bool locked);
    bool isLocked() const { return mIsLocked; }

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// A character has been typed in the dialer.
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    void fillMenu();
    void writeNotes();
    void writeBrand();
    void choose(DisplayAPI::Command* command);
    void call();
    void redial();
    void closeDialer();

    DisplayAPI::IdleDisplay& mIdle;
    Screens& mScreens;
    Languages& mLanguages;
    TellDesktop mTellDesktop;
    DisplayAPI::MenuCommand mToDirectory;
    DisplayAPI::MenuCommand mToLog;
    DisplayAPI::MenuCommand mToMessages;
    DisplayAPI::MenuCommand mToCalls;
    DisplayAPI::MenuCommand mRedial;
    DisplayAPI::MenuCommand mToSettings;
    DisplayAPI::MenuCommand mUnlock;
    DisplayAPI::MenuCommand mCall;
    DisplayAPI::PopupDialer mDialer{true, 3};
    std::string mLastNumber;
    std::string mUser;
    bool mIsDoNotDisturb = false;
    bool mIsRingerOff = false;
    bool mIsNameShown = false;
    bool mIsLocked = false;
};

#pragma once

#include <DisplayAPI/CallConnectedItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ConferenceCallItem.h>
#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupCall.h>
#include <DisplayAPI/PopupDialer.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// A telephone that calls and is called: idle screen, dialer, outgoing and incoming call, connected calls, conference.
class Calls : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    explicit Calls(DisplayAPI::Display& display);

    /// Shows the idle screen until the display is shut down. Threads: GUI thread.
    void run();

    // What comes from the line. Threads: any

    /// Somebody calls: "NAME NUMBER", or an empty text.
    void ring(const std::string& party);

    /// What the called telephone does: "ringing", "busy" or "answer".
    void farEnd(const std::string& state);

    // What the user does. Threads: a worker thread

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// A character has been typed in the dialer.
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    void dial();
    void connect();
    void chooseInMenu(DisplayAPI::Command* command);
    void holdAllBut(DisplayAPI::CallConnectedItem* active);
    void join();
    void clear(DisplayAPI::CallConnectedItem* row);
    void showWhatIsLeft();

    DisplayAPI::Display& mDisplay;
    std::mutex mMutex; // line and user
    DisplayAPI::CallPartyIdentifier mParty;
    std::vector<DisplayAPI::CallConnectedItem*> mMembers; // of the conference

    DisplayAPI::PopupDialer mDialer{true, 3};
    DisplayAPI::IdleDisplay mIdle{"calls"};
    DisplayAPI::PopupCall mOutgoing;
    DisplayAPI::PopupCall mIncoming;
    DisplayAPI::List mConnected{0}; // owns its rows
    DisplayAPI::ConferenceCallItem* mConference = nullptr;
    DisplayAPI::ContextMenu mMenu{false};
    DisplayAPI::MenuCommand mCall{"Call?", 1};
    DisplayAPI::MenuCommand mAccept{"Accept?", 2};
    DisplayAPI::MenuCommand mReject{"Reject?", 3};
    DisplayAPI::MenuCommand mDisconnect{"Disconnect?", 4};
    DisplayAPI::MenuCommand mHold{"Hold?", 5};
    DisplayAPI::MenuCommand mResume{"Resume?", 6};
    DisplayAPI::MenuCommand mJoin{"Conference?", 7};
    DisplayAPI::MenuCommand mConnectedCalls{"Calls?", 8};
};

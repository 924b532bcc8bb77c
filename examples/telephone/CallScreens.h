#pragma once

#include "CallService.h"
#include "Languages.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/ConferenceCallItem.h>
#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupCall.h>
#include <DisplayAPI/PopupDialer.h>

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace DisplayAPI {
class Display;
}

/// The screens of calls: dialer, outgoing and incoming call, connected calls with their menu, conference.
///
/// What the line tells comes to the worker thread, too, as a command to itself: so everything here runs on one thread
/// and needs no lock, and no worker waits for the GUI thread with one in hand.
class CallScreens final : public DisplayAPI::CommandListener,
                          public DisplayAPI::ItemStateListener,
                          public CallService::Listener {
public:
    /// What is told of a call that has ended.
    struct EndedCall {
        CallService::Call call;
        bool wasConnected = false;
    };

    /// The idle screen is where everything comes back to.
    CallScreens(
        DisplayAPI::Display& display, Languages& languages, CallService& service, DisplayAPI::IdleDisplay& idle);
    ~CallScreens() override;

    /// Told on the worker thread of each call that has ended.
    std::function<void(const EndedCall&)> onEnded;

    /// Calls a number from any screen.
    void dial(const std::string& number);

    /// Shows the connected calls, if there are any.
    void showConnected();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// A character has been typed in the dialer.
    void itemStateChanged(DisplayAPI::Item* item) override;

    /// Threads: any. The call waits for the worker.
    void callChanged(const CallService::Call& call) override;

private:
    using Row = DisplayAPI::CallConnectedItem;

    struct Entry {
        CallService::Call call;
        Row* row = nullptr; // once it has been connected
        bool isMember = false;
    };

    void hearLine();
    void follow(Entry& entry);
    void showOutgoing(const CallService::Call& call);
    void showIncoming(const CallService::Call& call);
    void connect(Entry& entry);
    void showRowState(Entry& entry);
    void end(const Entry& entry);
    void dropRow(const Entry& entry);

    void chooseOnCalls(DisplayAPI::Command* command);
    void openMenu();
    void chooseInMenu(DisplayAPI::Command* command);
    void holdAllBut(int active);
    void join();
    void dissolve();
    void showWhatIsLeft();

    Entry* selected();
    Entry* withState(CallService::State state);
    bool isConferenceSelected();
    int countConnected() const;

    DisplayAPI::Display& mDisplay;
    Languages& mLanguages;
    CallService& mService;
    DisplayAPI::IdleDisplay& mIdle;

    std::mutex mMutex; // of the news alone
    std::vector<CallService::Call> mNews;
    DisplayAPI::Command mHearLine{"", DisplayAPI::Command::Select};
    std::map<int, Entry> mCalls;

    DisplayAPI::PopupDialer mDialer{true, 3};
    DisplayAPI::PopupCall mOutgoing;
    DisplayAPI::PopupCall mIncoming;
    DisplayAPI::List mConnected{0}; // owns its rows
    DisplayAPI::ConferenceCallItem* mConference = nullptr;
    DisplayAPI::ContextMenu mMenu{false};
    DisplayAPI::MenuCommand mCall;
    DisplayAPI::MenuCommand mAccept;
    DisplayAPI::MenuCommand mReject;
    DisplayAPI::MenuCommand mDisconnect;
    DisplayAPI::MenuCommand mHold;
    DisplayAPI::MenuCommand mResume;
    DisplayAPI::MenuCommand mJoin;
    DisplayAPI::MenuCommand mSplit;
};

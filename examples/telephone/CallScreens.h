#pragma once

#include "CallMenu.h"
#include "CallPopups.h"
#include "CallService.h"
#include "ConnectedCalls.h"
#include "Languages.h"
#include "Notices.h"
#include "NumberEntry.h"
#include "Screens.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>

#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

/// The calls and their screens: what the exchange tells is shown, and what the user chooses is asked of it.
///
/// What the line tells comes to the worker thread, too, as a command to itself: so everything here runs on one thread
/// and needs no lock, and no worker waits for the GUI thread with one in hand.
class CallScreens final : public DisplayAPI::CommandListener, public CallService::Listener {
public:
    /// What is told of a call that has ended.
    struct EndedCall {
        CallService::Call call;
        bool wasConnected = false;
    };

    CallScreens(Screens& screens, Languages& languages, Notices& notices, CallService& service);
    ~CallScreens() override;

    // Told on the worker thread

    std::function<void(const EndedCall&)> onEnded;
    std::function<void(const CallService::Party& caller)> onForwarded;
    std::function<void(const CallService::Message&)> onMessage;

    /// Whether the user may send calls to numbers now.
    std::function<bool()> mayDial;

    /// Calls a number from any screen.
    void dial(const std::string& number);

    /// Shows all calls that there are, those that were put aside too. False without any.
    bool showCalls();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    // Threads: any. What is told waits for the worker

    void callChanged(const CallService::Call& call) override;
    void callForwarded(
        const CallService::Party& caller, CallService::Diversion why, const CallService::Party& target) override;
    void messageLeft(const CallService::Message& message) override;

private:
    using News = std::function<void()>;

    // The exchange tells
    void post(News news);
    void hear();
    void follow(const CallService::Call& call);
    void connect(const CallService::Call& call);
    void end(const CallService::Call& call);
    void explain(const CallService::Call& call);

    // The user chooses
    void chooseInPopup(DisplayAPI::Command* command, int call);
    void chooseInList(DisplayAPI::Command* command);
    void chooseForCall(DisplayAPI::Command* command, const CallService::Call& call);
    void chooseForConference(DisplayAPI::Command* command);
    void openMenu();
    void takeNumber(NumberEntry::Purpose purpose, int call, const std::string& number);
    void holdAllBut(int active);
    void resume(int call);
    void join(int call);
    void takeOut(int call);
    void split();
    void setMuted(bool muted);

    std::vector<int> talks() const;
    int partnerOf(int call) const;

    Screens& mScreens;
    Languages& mLanguages;
    Notices& mNotices;
    CallService& mService;

    std::mutex mMutex; // of the news alone
    std::deque<News> mNews;
    DisplayAPI::Command mHear{"", DisplayAPI::Command::Select};

    std::map<int, CallService::Call> mCalls; // those that have not ended
    CallPopups mPopups;
    ConnectedCalls mConnected;
    CallMenu mMenu;
    NumberEntry mEntry;
    bool mIsMuted = false;
};

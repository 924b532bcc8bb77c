#pragma once

#include "ControlCommands.h"
#include "ControlWorker.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>

namespace Simulator {

/// A page that is open: the commands that it has sent, which are carried out one after the other, and what it is to be
/// told. A command of one page that takes its time holds up no other page. Threads: one user.
class WebClient {
public:
    /// The numbers of what a page can ask for: screens, deliveries, and the desktop's screens.
    using Moment = std::array<std::uint64_t, 3>;

    /// `onAnswer` is called on a thread of this object's own when there is something to proceed() with.
    WebClient(Phone& phone, const ControlCommands::Settings& settings, std::function<void()> onAnswer);

    /// Takes a part of a message.
    void receive(const char* data, std::size_t size, bool isLast);

    /// Takes the answer of the command in hand, if it is there, and begins with the next.
    void proceed();

    /// The next message for the page; empty for none. It tells that something has changed when the moment is another.
    std::string nextMessage(const Moment& moment);
    bool hasMessage(const Moment& moment) const { return !mUnread.empty() || mTold != moment; }

    /// True when it does not read its answers: more of them wait than anybody has use for.
    bool isTooFarBehind() const { return mUnread.size() > 1 && mUnreadBytes > MostUnread; }

    /// The page has gone, or is to go: what it still wanted is left, and the command in hand gives up.
    void leave();

    /// Lets a key go that the page has held, behind leave().
    void release(int key);
    const std::set<int>& heldKeys() const { return mHeldKeys; }

    /// True while a command is in hand, or waits.
    bool isBusy() const { return mWorker.isBusy() || !mWaiting.empty(); }

    /// Waits for the command in hand; false if it does not end.
    bool waitUntilDone(std::chrono::milliseconds limit) { return mWorker.waitUntilDone(limit); }
    bool hasQuit() const { return mCommands.hasQuit(); }

private:
    static constexpr std::size_t MostUnread = 4 << 20;

    void answer(std::string line);
    void noteKeys(const std::string& line);

    ControlCommands mCommands;
    std::string mIncoming; // a message of which parts have come
    std::deque<std::string> mWaiting;
    std::deque<std::string> mUnread;
    std::size_t mUnreadBytes = 0;
    std::set<int> mHeldKeys;
    Moment mTold{};
    ControlWorker mWorker; // the last: it ends before what it works on
};

}

#pragma once

#include "KeyRepeat.h"
#include "TerminalKey.h"
#include "TerminalPages.h"
#include "TerminalPicture.h"
#include "WakeSignal.h"

#include <string>
#include <vector>

namespace Simulator {

class Phone;
class SignalWatch;
class TerminalSession;

/// The telephone in a terminal: the glass and its keys, the screen text beside or below it, and what it answers to.
class TerminalView {
public:
    /// Make it, like the signals and the terminal that it takes, before the telephone runs: it watches the screen from
    /// then on. `wake` wakes it too.
    TerminalView(Phone& phone, SignalWatch& signals, TerminalSession& session, WakeSignal& wake);
    ~TerminalView();
    TerminalView(const TerminalView&) = delete;
    TerminalView& operator=(const TerminalView&) = delete;

    /// Shows the telephone until the user leaves or the phonelet ends. Answers the signal that ended it, or 0; the key
    /// Ctrl-C counts as one. Threads: not the GUI thread.
    int run();

private:
    enum class Command { None, Leave };

    void waitForSomething();
    void leave();
    void suspend();
    Command handleSignals();
    Command handleKeys();
    Command handle(const TerminalKey& key);
    bool handleForPage(const TerminalKey& key);
    void handleForTelephone(const TerminalKey& key);
    void post(const std::vector<KeyRepeat::Stroke>& strokes);

    void draw();
    TerminalState state();
    std::string statusLine(const TerminalLayout& layout, const Snapshot& screen) const;
    std::string missingGlass() const;
    bool isWaitingForScreen() const;
    bool isPageInFront() const;

    Phone& mPhone;
    SignalWatch& mSignals;
    TerminalSession& mSession;
    WakeSignal& mWake;
    KeyRepeat mRepeat;
    TerminalPages mPages;
    std::string mMessage; // about the last key
    int mInput;
    bool mIsHungUp = false; // the terminal has gone
    bool mIsLeaving = false;
    int mSignal = 0; // that has ended it
    KeyRepeat::Clock::time_point mStart = KeyRepeat::Clock::now();
};

}

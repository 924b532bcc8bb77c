#pragma once

#include "KeyRepeat.h"

#include <string>
#include <vector>

namespace Simulator {

class Phone;
class SignalWatch;
class TerminalSession;
struct Snapshot;

/// The telephone in a terminal: the glass, the screen text beside or below it, and the keys.
class TerminalView {
public:
    /// Make it, like the signals that it takes, before the telephone runs: it watches the screen from then on.
    TerminalView(Phone& phone, SignalWatch& signals);
    ~TerminalView();
    TerminalView(const TerminalView&) = delete;
    TerminalView& operator=(const TerminalView&) = delete;

    /// Shows the telephone until the user leaves or the phonelet ends. Answers the signal that ended it, or 0; the key
    /// Ctrl-C counts as one. Threads: not the GUI thread.
    int run();

private:
    enum class Command { None, Leave };

    void suspend(TerminalSession& session);

    void waitForSomething();
    Command handleSignals(TerminalSession& session);
    Command handleKeys(TerminalSession& session);
    void post(const std::vector<KeyRepeat::Stroke>& strokes);
    void draw() const;
    void drawTooSmall() const;
    std::string statusLine() const;
    bool isWaitingForScreen() const;
    void drawGlass(const Snapshot& snapshot) const;
    void drawText(const std::string& text, int lineBelow) const;
    int glassHeight(const Snapshot& snapshot) const;

    Phone& mPhone;
    SignalWatch& mSignals;
    KeyRepeat mRepeat;
    int mInput;
    int mWakeDescriptor;
    bool mIsHungUp = false; // the terminal has gone
    bool mIsLeaving = false;
    int mSignal = 0; // that has ended it
    KeyRepeat::Clock::time_point mStart = KeyRepeat::Clock::now();
};

}

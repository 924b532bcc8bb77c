#pragma once

namespace Simulator {

/// The terminal in the state for a full-screen program, from construction to destruction. However the process
/// ends meanwhile, by exit() or by a signal, the terminal gets back the state that it had.
class TerminalSession {
public:
    /// Throws UsageError for a terminal whose kind is not known.
    TerminalSession();
    ~TerminalSession();
    TerminalSession(const TerminalSession&) = delete;
    TerminalSession& operator=(const TerminalSession&) = delete;

    /// Fits the drawing to the terminal's size of now.
    void resize();

    /// Gives the terminal back until resume(), for a program that is stopped.
    void suspend();
    void resume();

    /// Gives the terminal back at once, from any thread, for a program that can't wait for the destructor.
    static void restore();
};

}

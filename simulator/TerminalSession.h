#pragma once

#include "OutputKeeper.h"
#include "TerminalPicture.h"

#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Simulator {

/// The terminal in the state for a full-screen program, from construction to destruction. However the process
/// ends meanwhile, by exit() or by a signal, the terminal gets back the state that it had, and then what the process
/// has written to its standard output and error.
///
/// Threads: make it on the GUI thread, and give it back there; a crash for want of stack is told on that thread alone.
class TerminalSession {
public:
    /// The observer is called when something has been written to standard output or error, on a thread of its own.
    /// Throws UsageError for a terminal whose kind is not known.
    explicit TerminalSession(std::function<void()> outputObserver);
    ~TerminalSession();
    TerminalSession(const TerminalSession&) = delete;
    TerminalSession& operator=(const TerminalSession&) = delete;

    /// With which characters this terminal can draw the glass.
    GlassCharacters characters() const { return mCharacters; }

    /// What has been written meanwhile.
    const OutputKeeper& output() const { return *mOutput; }

    /// Fits the drawing to the terminal's size of now.
    void resize();

    /// Gives the terminal back until resume(), for a program that is stopped. Who was stopped without it calls
    /// resume() too.
    void suspend();
    void resume();

    /// Gives the terminal back at once, from any thread, for a program that can't wait for the destructor.
    static void restore();

private:
    void open();
    void catchCrashes();
    void releaseCrashes();

    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    GlassCharacters mCharacters;
    std::optional<OutputKeeper> mOutput;
    std::unique_ptr<std::FILE, CloseFile> mDevice; // on which the terminal is drawn
    std::vector<char> mCrashStack;
    stack_t mOldStack{};
};

}

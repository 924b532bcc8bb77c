#pragma once

#include "Descriptor.h"
#include "LineBuffer.h"

#include <chrono>
#include <string>

namespace Simulator {

/// Somebody at the other end of the control channel: lines come from one descriptor and go to another, which may be
/// the same. It never blocks; wait with poll() for what wantsToRead() and isSending() say.
class ControlClient {
public:
    using Clock = std::chrono::steady_clock;

    /// A client on a socket.
    explicit ControlClient(Descriptor socket);

    /// A client on two pipes, files or terminals.
    ControlClient(Descriptor input, Descriptor output);

    int input() const { return mInput.number(); }
    int output() const { return mOutput ? mOutput.number() : mInput.number(); }

    /// Nothing more will come from it. Lines that came before may still be there.
    bool hasEnded() const { return mHasEnded; }

    /// It takes no answers any more; what it sent before may still be read.
    bool isGone() const { return mIsGone; }
    void hangUp() { mIsGone = true; }

    /// True while it is worth listening: commands come from it, or may come.
    bool isWorthListening() const;

    LineBuffer& lines() { return mLines; }

    /// Takes what has come. Call it when the input is readable.
    void read();

    /// Queues a line and begins to write it.
    void send(const std::string& line);

    /// Goes on writing. Call it when the output is writable, or has gone.
    void write();
    bool isSending() const { return !mUnsent.empty() && !mIsGone; }

    /// When the other end last took something, or was first asked to.
    Clock::time_point lastProgress() const { return mLastProgress; }

private:
    Descriptor mInput;
    Descriptor mOutput; // none for a socket
    LineBuffer mLines;
    std::string mUnsent;
    Clock::time_point mLastProgress;
    bool mHasEnded = false;
    bool mIsGone = false;
};

}

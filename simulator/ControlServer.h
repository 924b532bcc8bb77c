#pragma once

#include "ControlClient.h"
#include "ControlCommands.h"
#include "ControlSocket.h"
#include "ControlWorker.h"
#include "WakeSignal.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace Simulator {

class Phone;
class SignalWatch;

/// The control channel for robots: takes one command a line from its client, and sends one answer a line. Commands of
/// a client run one after the other.
///
/// On standard input and output it ends with its client. On a socket it takes one client after the other, and tells
/// others that it is busy; it ends with the command `quit`, or when standard input is a pipe and that is closed: so
/// who starts it through a pipe leaves nothing behind, however it ends.
class ControlServer {
public:
    /// Make it before the telephone runs. An empty path means standard input and output: these are then the channel's
    /// alone, and what the phonelet prints goes to standard error. Throws UsageError for a path that can't be used.
    ControlServer(Phone& phone, SignalWatch& signals, const std::string& path, ControlCommands::Settings settings);
    ~ControlServer();
    ControlServer(const ControlServer&) = delete;
    ControlServer& operator=(const ControlServer&) = delete;

    /// Serves until the end, and closes the channel. Answers the signal that ended it, or 0. Threads: not the GUI
    /// thread.
    int run();

    /// True when a command has not ended behind run(), so that only the end of the process will end it.
    bool isStuck() const { return mWorker != nullptr; }

private:
    void serve();
    void waitForSomething();
    void handleAnswer();
    void tellChanges();
    void handleClient();
    void begin(std::string line);
    void acceptClient();
    void watchStarter();
    void dropClient();

    Phone& mPhone;
    SignalWatch& mSignals;
    std::chrono::milliseconds mPatience;
    ControlCommands mCommands;
    WakeSignal mPhoneChanged;             // something of it that somebody here wants to know
    bool mIsWatched = false;              // the client is told of changes
    std::array<std::uint64_t, 3> mTold{}; // what it knows of: the numbers of screen, desktop and deliveries
    std::optional<ControlSocket> mSocket;
    std::unique_ptr<ControlClient> mClient; // the one that is served
    std::unique_ptr<ControlWorker> mWorker; // while run() lasts
    int mStarter = -1;                      // the pipe whose end is this telephone's end
    bool mIsAnswerUnwanted = false;         // who gave the command in hand has gone
    bool mMustEnd = false;
};

}

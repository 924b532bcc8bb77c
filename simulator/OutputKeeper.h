#pragma once

#include "Descriptor.h"
#include "WakeSignal.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <thread>

namespace Simulator {

/// Keeps what the process writes to standard output and error while something else has the terminal, and writes it
/// there when the terminal is free again, each piece to the stream that it was written to. A stream that goes
/// elsewhere, to a file for instance, is left alone.
///
/// It takes what is written on the file descriptors, so that of any library and child process too. The last
/// `Capacity` bytes are kept, and who prints them says how many there were before.
///
/// There is one in a process at a time.
class OutputKeeper {
public:
    static constexpr std::size_t Capacity = std::size_t{1} << 20;

    /// The observer is called when something has been written, on a thread of the keeper's own.
    explicit OutputKeeper(std::function<void()> observer);

    /// Gives the streams back, and prints what was kept.
    ~OutputKeeper();
    OutputKeeper(const OutputKeeper&) = delete;
    OutputKeeper& operator=(const OutputKeeper&) = delete;

    /// Standard output as it was. It closes with this object.
    int terminal() const { return mTerminal.number(); }

    /// How many line feeds have been written. Threads: any.
    std::uint64_t lineCount() const;

    /// How many bytes have been written. Threads: any.
    std::uint64_t byteCount() const;

    /// What is kept, from the beginning of a line on. Threads: any.
    std::string text() const;

    /// Does at once what the destructor does, but for what waits in the buffers of the C library, if there is a
    /// keeper. Threads: any; a signal handler may call it. A child process that was forked has nothing to give back.
    static void giveBack();

private:
    void run();

    std::function<void()> mObserver;
    Descriptor mTerminal;
    WakeSignal mEnd;
    std::thread mThread;
};

}

#include "OutputKeeper.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace Simulator {

namespace {

constexpr std::size_t Streams = 2;
constexpr std::array<int, Streams> streamNumbers{STDOUT_FILENO, STDERR_FILENO};

struct Stream {
    int original = -1; // while the stream is kept
    int readEnd = -1;  // made once: a thread that writes while the stream is given back must not lose its reader
    int writeEnd = -1;
};

// What a signal handler needs, ready before any signal can come. The bytes are those of a ring: byte n of all that was
// written stands at n modulo its size, and beside it the stream to which it belongs.
std::array<Stream, Streams> gStreams;
char gBytes[OutputKeeper::Capacity];
unsigned char gStreamOf[OutputKeeper::Capacity];
std::atomic<std::uint64_t> gByteCount = 0;
std::atomic<std::uint64_t> gLineCount = 0;
std::atomic<pid_t> gOwner = 0;       // the process whose output is kept; 0 for none
std::atomic<bool> gMustEnd = false;  // the thread takes no more
std::atomic<bool> gIsTaking = false; // and has not seen it yet
std::mutex gMutex;                   // of the ring, for those who are no signal handlers

void append(unsigned char stream, const char* bytes, std::size_t count)
{
    std::uint64_t place = gByteCount;
    for (std::size_t index = 0; index < count; ++index, ++place) {
        gBytes[place % OutputKeeper::Capacity] = bytes[index];
        gStreamOf[place % OutputKeeper::Capacity] = stream;
    }
    gByteCount = place;
    gLineCount += static_cast<std::uint64_t>(std::count(bytes, bytes + count, '\n'));
}

/// Takes what waits in a stream; false if there is nothing.
bool take(unsigned char stream)
{
    char buffer[4096];
    const ssize_t count = read(gStreams[stream].readEnd, buffer, sizeof buffer);
    if (count > 0)
        append(stream, buffer, static_cast<std::size_t>(count));
    return count > 0;
}

/// Takes what has been written; not for ever, since a child process may go on writing.
void drain(unsigned char stream)
{
    for (std::size_t times = 0; times < OutputKeeper::Capacity / 4096 && take(stream); ++times) { }
}

/// Where what is kept begins: behind a line feed, if bytes were left out.
std::uint64_t firstByte(std::uint64_t end)
{
    if (end <= OutputKeeper::Capacity)
        return 0;
    std::uint64_t place = end - OutputKeeper::Capacity;
    while (place < end && gBytes[place % OutputKeeper::Capacity] != '\n')
        ++place;
    return place < end ? place + 1 : end - OutputKeeper::Capacity;
}

// From here on what a signal handler may call.

void writeAll(int descriptor, const char* bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t written = write(descriptor, bytes, count);
        if (written < 0 && errno == EAGAIN) {
            pollfd target{descriptor, POLLOUT, 0};
            poll(&target, 1, -1);
        } else if (written < 0 && errno != EINTR) {
            return;
        } else if (written > 0) {
            bytes += written;
            count -= static_cast<std::size_t>(written);
        }
    }
}

void writeLeftOut(std::uint64_t count)
{
    char digits[24];
    char* start = std::end(digits);
    for (; count > 0; count /= 10)
        *--start = static_cast<char>('0' + count % 10);
    constexpr std::string_view before = "(";
    constexpr std::string_view behind = " bytes of output before this were left out)\n";
    writeAll(STDERR_FILENO, before.data(), before.size());
    writeAll(STDERR_FILENO, start, static_cast<std::size_t>(std::end(digits) - start));
    writeAll(STDERR_FILENO, behind.data(), behind.size());
}

void printAll()
{
    const std::uint64_t end = gByteCount;
    std::uint64_t place = firstByte(end);
    if (place > 0)
        writeLeftOut(place);
    while (place < end) {
        const std::size_t start = place % OutputKeeper::Capacity;
        const std::size_t most = std::min<std::uint64_t>(end - place, OutputKeeper::Capacity - start);
        std::size_t count = 1;
        while (count < most && gStreamOf[start + count] == gStreamOf[start])
            ++count;
        writeAll(streamNumbers[gStreamOf[start]], gBytes + start, count);
        place += count;
    }
}

/// Waits until the thread takes no more, but not for ever: it may be the one that has crashed.
void endTaking()
{
    gMustEnd = true;
    constexpr timespec pause{0, 1000000};
    for (int tries = 100; gIsTaking && tries > 0; --tries)
        nanosleep(&pause, nullptr);
}

void keepStream(std::size_t index)
{
    const int number = streamNumbers[index];
    Stream& stream = gStreams[index];
    if (isatty(number) == 0)
        return;
    int ends[2];
    if (stream.readEnd < 0 && pipe2(ends, O_CLOEXEC) == 0) {
        stream.readEnd = ends[0];
        stream.writeEnd = ends[1];
        fcntl(stream.readEnd, F_SETFL, O_NONBLOCK);
    }
    if (stream.readEnd < 0)
        return;
    stream.original = fcntl(number, F_DUPFD_CLOEXEC, 3);
    dup2(stream.writeEnd, number);
}

}

OutputKeeper::OutputKeeper(std::function<void()> observer)
    : mObserver(std::move(observer))
    , mTerminal(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3))
{
    // As in a terminal; the library would take the pipe for a file.
    std::fflush(nullptr);
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    gByteCount = 0;
    gLineCount = 0;
    gMustEnd = false;
    for (std::size_t index = 0; index < Streams; ++index)
        keepStream(index);
    gOwner = getpid();
    mThread = std::thread([this] { run(); });
}

OutputKeeper::~OutputKeeper()
{
    std::fflush(stdout);
    gMustEnd = true;
    mEnd.set();
    mThread.join();
    giveBack();
}

void OutputKeeper::run()
{
    std::array<pollfd, Streams + 1> sources{};
    for (std::size_t index = 0; index < Streams; ++index)
        sources[index] = {gStreams[index].readEnd, POLLIN, 0};
    sources[Streams] = {mEnd.descriptor(), POLLIN, 0};
    for (;;) {
        poll(sources.data(), sources.size(), -1);
        gIsTaking = true;
        const bool mustEnd = gMustEnd;
        for (std::size_t index = 0; !mustEnd && index < Streams; ++index) {
            if ((sources[index].revents & POLLIN) != 0) {
                const std::lock_guard lock(gMutex);
                take(static_cast<unsigned char>(index));
            }
        }
        gIsTaking = false;
        if (mustEnd)
            return;
        mObserver();
    }
}

std::uint64_t OutputKeeper::lineCount() const
{
    return gLineCount;
}

std::uint64_t OutputKeeper::byteCount() const
{
    return gByteCount;
}

std::string OutputKeeper::text() const
{
    const std::lock_guard lock(gMutex);
    const std::uint64_t end = gByteCount;
    std::string text;
    for (std::uint64_t place = firstByte(end); place < end; ++place)
        text += gBytes[place % Capacity];
    return text;
}

void OutputKeeper::giveBack()
{
    pid_t owner = getpid();
    if (!gOwner.compare_exchange_strong(owner, 0))
        return;
    endTaking();
    for (std::size_t index = 0; index < Streams; ++index) {
        Stream& stream = gStreams[index];
        if (stream.original < 0)
            continue;
        dup2(stream.original, streamNumbers[index]);
        close(std::exchange(stream.original, -1));
        drain(static_cast<unsigned char>(index));
    }
    printAll();
}

}

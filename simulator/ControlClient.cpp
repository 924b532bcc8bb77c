#include "ControlClient.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>
#include <utility>

namespace Simulator {

namespace {

bool isForLater(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

/// True if a few bytes can be written at once. A pipe then takes PIPE_BUF of them without blocking.
bool canWrite(int descriptor)
{
    pollfd output{descriptor, POLLOUT, 0};
    return poll(&output, 1, 0) > 0;
}

}

ControlClient::ControlClient(Descriptor socket)
    : mInput(std::move(socket))
{
}

ControlClient::ControlClient(Descriptor input, Descriptor output)
    : mInput(std::move(input))
    , mOutput(std::move(output))
{
}

void ControlClient::read()
{
    std::array<char, 65536> bytes;
    const ssize_t count = ::read(mInput.number(), bytes.data(), bytes.size());
    if (count > 0) {
        mLines.add(std::string_view(bytes.data(), static_cast<std::size_t>(count)));
        return;
    }
    if (count < 0 && isForLater(errno))
        return;
    mHasEnded = true;
    mLines.finish();
}

bool ControlClient::isWorthListening() const
{
    // One that has left a socket may have said "quit" as its last word. A pipe that nobody reads is the end.
    return !(mIsGone && mOutput) && (!mHasEnded || mLines.hasLine());
}

void ControlClient::send(const std::string& line)
{
    if (mIsGone)
        return;
    if (mUnsent.empty())
        mLastProgress = Clock::now();
    mUnsent += line + "\n";
    write();
}

void ControlClient::write()
{
    while (isSending()) {
        ssize_t count = 0;
        if (!mOutput) {
            count = ::send(mInput.number(), mUnsent.data(), mUnsent.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        } else {
            if (!canWrite(mOutput.number()))
                return;
            count = ::write(mOutput.number(), mUnsent.data(), std::min<std::size_t>(mUnsent.size(), PIPE_BUF));
        }
        if (count > 0) {
            mUnsent.erase(0, static_cast<std::size_t>(count));
            mLastProgress = Clock::now();
        } else if (isForLater(errno)) {
            return;
        } else {
            mIsGone = true;
        }
    }
}

}

#include "ControlSocket.h"

#include "UsageError.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <utility>

namespace Simulator {

namespace {

sockaddr_un addressOf(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        throw UsageError("the path of the socket is too long: at most " + std::to_string(sizeof address.sun_path - 1)
            + " bytes, this has " + std::to_string(path.size()));
    std::memcpy(address.sun_path, path.data(), path.size());
    return address;
}

Descriptor newSocket()
{
    return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

template <typename Call>
bool withAddress(Call call, int descriptor, const sockaddr_un& address)
{
    return call(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// Makes room where a telephone that was killed has left its socket.
void clearPath(const std::string& path, const sockaddr_un& address)
{
    struct stat status { };
    if (lstat(path.c_str(), &status) != 0)
        return;
    if (!S_ISSOCK(status.st_mode))
        throw UsageError(path + " exists, and is no socket");
    const Descriptor probe = newSocket();
    if (withAddress(connect, probe.number(), address) || errno != ECONNREFUSED)
        throw UsageError("another telephone listens at " + path);
    unlink(path.c_str());
}

}

ControlSocket::ControlSocket(std::string path)
    : mPath(std::move(path))
    , mSocket(newSocket())
{
    const sockaddr_un address = addressOf(mPath);
    clearPath(mPath, address);
    // Its rights pass to the file that bind() makes.
    constexpr mode_t forItsUserAlone = 0600;
    fchmod(mSocket.number(), forItsUserAlone);
    constexpr int mostWaiting = 64;
    if (!withAddress(bind, mSocket.number(), address) || listen(mSocket.number(), mostWaiting) != 0)
        throw UsageError("cannot listen at " + mPath + ": " + std::strerror(errno));
}

ControlSocket::~ControlSocket()
{
    unlink(mPath.c_str());
}

Descriptor ControlSocket::accept() const
{
    return Descriptor(accept4(mSocket.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
}

}

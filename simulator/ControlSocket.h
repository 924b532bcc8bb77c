#pragma once

#include "Descriptor.h"

#include <string>

namespace Simulator {

/// A Unix socket that waits for clients, open to its user alone. It removes its file at the end.
class ControlSocket {
public:
    /// A file that a telephone has left behind is replaced. Throws UsageError for a path at which another one listens
    /// or something else lies, and for one that can't be used.
    explicit ControlSocket(std::string path);
    ~ControlSocket();
    ControlSocket(const ControlSocket&) = delete;
    ControlSocket& operator=(const ControlSocket&) = delete;

    /// Readable when a client waits.
    int descriptor() const { return mSocket.number(); }
    const std::string& path() const { return mPath; }

    /// The client that waits; none if it has gone.
    Descriptor accept() const;

private:
    std::string mPath;
    Descriptor mSocket;
};

}

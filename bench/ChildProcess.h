#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// A program that is talked with by lines. Threads: one.
class ChildProcess {
public:
    /// Starts it: a program and its arguments; its standard error stays that of this process. Throws
    /// std::system_error when it can't be started.
    explicit ChildProcess(const std::vector<std::string>& command);

    /// Ends its standard input, and waits for its end.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Writes a line; the line feed is added.
    void write(const std::string& line);

    /// The next line of its standard output, without its line feed. Throws std::runtime_error at the end of it.
    std::string read();

    /// The memory that it has for itself, in bytes: what its end would give back.
    double privateMemory() const;

private:
    pid_t mId = 0;
    int mInput = -1;  // its standard input
    int mOutput = -1; // its standard output
    std::string mRead;
};

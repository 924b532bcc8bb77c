#pragma once

#include <string>
#include <vector>

namespace Simulator {

/// Lets this process begin anew as the same program with other arguments: its number, terminal, pipes and folder stay.
class Restart {
public:
    /// The arguments with which the process was started, with the name of the program in front.
    static std::vector<std::string> ownArguments();

    /// Begins anew when main() has returned, so that whatever the program cleans up there is cleaned up.
    static void atExit(std::vector<std::string> arguments);

    /// What atExit() was told is not to happen.
    static void cancel();

    /// Begins anew at once, whatever the other threads do. Where the system refuses, one line says so, and the process
    /// ends with exit code 1.
    [[noreturn]] static void now(const std::vector<std::string>& arguments);
};

}

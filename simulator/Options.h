#pragma once

#include <HardwareVersion.h>

#include <chrono>
#include <string>

namespace Simulator {

/// What the command line asks for.
struct Options {
    enum class Mode {
        Terminal, ///< The telephone is worked by the keys of the terminal.
        Script,
        Tour,
        Once, ///< The first screen is written as text, picture, or both.
        Help, ///< `help` is printed, and that is all.
    };

    Mode mode = Mode::Terminal;
    std::string help;
    std::string script;
    bool text = false;
    std::string shot; ///< The file of the picture; empty for none.
    int scale = 4;
    std::string font; ///< Empty for the system's.
    std::chrono::milliseconds patience{5000};
    HardwareVersion::Set hardware;
};

/// Reads the command line. Without a wish for a mode it is the terminal. Throws UsageError for an option that
/// can't be used.
Options parseOptions(int argc, const char* const* argv);

}

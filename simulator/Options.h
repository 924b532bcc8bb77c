#pragma once

#include "Variant.h"

#include <HardwareVersion.h>

#include <chrono>
#include <string>
#include <vector>

namespace Simulator {

/// What the command line asks for.
struct Options {
    enum class Mode {
        Terminal, ///< The telephone is worked by the keys of the terminal.
        Script,
        Serve,   ///< A browser shows and works the telephone.
        Control, ///< Programs work the telephone by the control channel.
        Tour,
        Once, ///< The first screen is written as text, picture, or both.
        Help, ///< `help` is printed, and that is all.
    };

    Mode mode = Mode::Terminal;
    std::string help;
    std::string program; ///< The name under which it was started.
    std::string programAndVersion;
    std::string command; ///< As it was started.
    std::string script;
    std::string control; ///< The path of the socket; empty for standard input and output.
    std::string golden;  ///< The folder with which the pictures of the script are compared; empty for none.
    bool updatesGoldens = false;
    std::string record;       ///< The file to which the session is written; empty for none.
    int port = 0;             ///< Of the page; 0 for any that is free.
    bool reportsCuts = false; ///< Of texts that have no room on the glass.
    bool text = false;
    std::string shot; ///< The file of the picture; empty for none.
    int scale = 4;
    std::string font; ///< Empty for the system's.
    std::chrono::milliseconds patience{5000};
    Variant variant;
    HardwareVersion::Set hardware;             ///< As the variant says.
    std::string application;                   ///< As which application the phonelet runs; empty for its own name.
    std::string softwareType;                  ///< The same, in the words of the display.
    bool isClockReal = false;                  ///< Of the control channel: it runs by itself.
    bool endsWithStarter = false;              ///< The process is killed when the thread that has started it ends.
    bool hasDesktop = true;                    ///< False where it is left out.
    std::vector<std::string> desktopArguments; ///< What the desktop shares with the telephone.

    /// True where the telephone is worked, and is no desktop itself.
    bool wantsDesktop() const;
};

/// The name of the program, without its folder.
std::string programName(int argc, const char* const* argv);

/// Reads the command line. `version` is what --version prints behind the name; empty for the simulator's. Without a
/// wish for a mode it is the terminal. Throws UsageError for an option that can't be used.
Options parseOptions(int argc, const char* const* argv, const std::string& version);

}

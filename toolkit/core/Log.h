#pragma once

#include "Export.h"

#include <string>

/// True when a message of this module and level would be written. Ask first, so that no argument is
/// computed while logging is off. Level 5 traces; 2 and 3 tell of bad arguments. Threads: any.
TOOLKIT_EXPORT bool loggingOnAppUni(const char* module, int level);

/// Writes a message with printf placeholders. Threads: any.
TOOLKIT_EXPORT void logAppUni(const char* module, const char* file, int level, int line, const char* format, ...)
    __attribute__((format(printf, 5, 6)));

/// Where log messages go and which are written. Everything is off until setLevel().
class TOOLKIT_EXPORT LogControl {
public:
    struct Message {
        std::string module;
        std::string file;
        int level = 0;
        int line = 0;
        std::string text;
    };
    using Sink = void (*)(const Message& message);

    /// Writes messages of `module` up to `level`; the module "*" stands for all that have no level of their own.
    static void setLevel(const std::string& module, int level);

    /// Replaces the sink; null restores the one that writes to standard error.
    static void setSink(Sink sink);

    /// Switches every module off again and restores the sink.
    static void reset();
};

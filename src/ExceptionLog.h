#pragma once

#include <Log.h>

#include <exception>
#include <string>

namespace DisplayAPI {

/// Runs code of the application. An exception that leaves it passes, behind a line in the log that tells its what();
/// `describe` then says what was run. Threads: any.
template <typename Run, typename Describe>
void runAndLogExceptions(const char* file, int line, Run run, Describe describe)
{
    const auto log = [&](const char* what) {
        constexpr const char* module = "DisplayAPI";
        constexpr int level = 2;
        if (loggingOnAppUni(module, level))
            logAppUni(module, file, level, line, "%s was left by an exception: %s.",
                static_cast<std::string>(describe()).c_str(), what);
    };
    try {
        run();
    } catch (const std::exception& exception) {
        log(exception.what());
        throw;
    } catch (...) {
        log("no std::exception");
        throw;
    }
}

}

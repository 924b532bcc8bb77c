#pragma once

#include <Log.h>

/// Writes a message of the family List. The arguments are computed only while such messages are written.
#define LOG_LIST(level, ...)                                                                                           \
    do {                                                                                                               \
        if (loggingOnAppUni("DisplayAPI::List", level))                                                                \
            logAppUni("DisplayAPI::List", "src/List", level, __LINE__, __VA_ARGS__);                                   \
    } while (false)

#define TRACE_LIST(...) LOG_LIST(5, __VA_ARGS__)

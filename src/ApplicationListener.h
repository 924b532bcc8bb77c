#pragma once

#include <UApplication.h>

namespace DisplayAPI {

/// Lets an agent hear of changes that concern the whole application, such as the locale. Before a display
/// exists privates run without an application; then there is nothing to hear.
inline void joinApplication(UAgent* agent)
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->addListener(agent);
}

inline void leaveApplication(UAgent* agent)
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->removeListener(agent);
}

}

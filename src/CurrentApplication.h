#pragma once

#include <UApplication.h>

#include <string>

namespace DisplayAPI {

/// The software types by their number; any text but two makes the third.
namespace SoftwareType {
inline constexpr int Sip = 0;
inline constexpr int Qvt = 1;
inline constexpr int Other = 2;
}

inline int softwareTypeNumber(const std::string& name)
{
    if (name == "Zelmark SIP")
        return SoftwareType::Sip;
    return name == "Zelmark QVT" ? SoftwareType::Qvt : SoftwareType::Other;
}

// What is asked of the current application; without one there are answers too.

inline std::string currentApplicationName()
{
    const auto* application = VantoUApplication::getCurrentApplication();
    return application ? application->getAppName() : std::string();
}

inline bool isSoftwareQvt()
{
    const auto* application = VantoUApplication::getCurrentApplication();
    return application && application->getSoftwareType() == SoftwareType::Qvt;
}

inline int currentHardwareVariant()
{
    const auto* application = VantoUApplication::getCurrentApplication();
    return application ? application->getHardwareVariant() : 0;
}

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

#include "VantoUApplicationFactory.h"

#include <HardwareVersion.h>

#include <memory>

namespace DisplayAPI {

namespace {

int screenHeight(const UString& applicationName)
{
    constexpr int oneLine = 16;
    constexpr int twoLines = 31;
    constexpr int threeLines = 47;
    if (HardwareVersion::getDisplayLines() == 3)
        return threeLines;
    return applicationName.toUTF8() == "DesktopPhonelet" ? oneLine : twoLines;
}

}

VantoUApplication* VantoUApplicationFactory::createVantoUApplication(const UString& name, UApplication::UIMode uiMode,
    VantoUApplication::HardwareVariant hardwareVariant, VantoUApplication::SoftwareType softwareType,
    PhysDefs::hardwareSubVariant hardwareSubVariant)
{
    auto screen = std::make_unique<UScreenWE1>(screenHeight(name));
    // The toolkit keeps its applications until the process ends.
    return new VantoUApplication(name, screen.release(), uiMode, hardwareVariant, softwareType, hardwareSubVariant);
}

}

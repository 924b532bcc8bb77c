#pragma once

#include <UApplication.h>

namespace DisplayAPI {

/// Makes the toolkit's application, with a screen of the height that this telephone gives the process.
class VantoUApplicationFactory {
public:
    /// The new application; the toolkit holds it as the current one.
    static VantoUApplication* createVantoUApplication(const UString& name, UApplication::UIMode uiMode,
        VantoUApplication::HardwareVariant hardwareVariant, VantoUApplication::SoftwareType softwareType,
        PhysDefs::hardwareSubVariant hardwareSubVariant);
};

}

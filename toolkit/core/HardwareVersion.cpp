#include "HardwareVersion.h"

namespace {

HardwareVersion::Set gHardware;

}

int HardwareVersion::getDisplayLines()
{
    return gHardware.displayLines;
}

int HardwareVersion::getHWSubVariant()
{
    return gHardware.subVariant;
}

int HardwareVersion::getHWSubPlatformVariant()
{
    return gHardware.subPlatformVariant;
}

bool HardwareVersion::is_RX40_any()
{
    return gHardware.isRX40;
}

bool HardwareVersion::is_RX70()
{
    return gHardware.isRX70;
}

void HardwareVersion::setAll(const Set& values)
{
    gHardware = values;
}

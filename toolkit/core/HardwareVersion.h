#pragma once

#include "Export.h"

/// Which telephone this is. The values are the process's; the simulator and the tests set them before
/// they make a display.
class TOOLKIT_EXPORT HardwareVersion {
public:
    struct Set {
        int displayLines = 2;
        int subVariant = 0;
        int subPlatformVariant = 0;
        bool isRX40 = false;
        bool isRX70 = false;
    };

    static int getDisplayLines();
    static int getHWSubVariant();
    static int getHWSubPlatformVariant();
    static bool is_RX40_any();
    static bool is_RX70();

    /// Replaces all values at once. Call it before other threads use the toolkit.
    static void setAll(const Set& values);
};

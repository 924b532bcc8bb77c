#pragma once

#include <DisplayAPI/Displayable.h>

namespace DisplayAPI {

/// The base of the popups.
class DISPLAYAPI_EXPORT Dialog : public Displayable { };

}

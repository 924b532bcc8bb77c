#pragma once

#include <DisplayAPI/Numbered.h>

namespace DisplayAPI {

/// Declared for applications that have one. A tab screen keeps its tab listeners and never calls them.
class DISPLAYAPI_EXPORT TabListener : public Numbered<TabListener> {
public:
    virtual ~TabListener() = default;
};

}

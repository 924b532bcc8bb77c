#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The row of the call log on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT CallLogMainItemPrivateIfc : public ListItemPrivateIfc, public UAgent {
public:
    virtual void setBold(bool bold) = 0;
};

}

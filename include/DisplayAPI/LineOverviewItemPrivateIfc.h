#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/LineOverviewItem.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include <UAgent.h>

#include <string>

namespace DisplayAPI {

/// The row of a line on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT LineOverviewItemPrivateIfc : public ListItemPrivateIfc, public UAgent {
public:
    virtual void setLineState(LineOverviewItem::LineState state) = 0;
    virtual void setLineName(const std::string& name) = 0;
    virtual void setLineIdentity(const std::string& identity) = 0;
    virtual void setDisplayHDIconStatus(bool shown) = 0;
    virtual void holdItem(int milliseconds) = 0;
};

}

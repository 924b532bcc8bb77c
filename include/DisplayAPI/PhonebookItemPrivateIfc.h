#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

namespace DisplayAPI {

/// The row of a directory on the GUI thread, as its handle sees it: it can do no more than any row.
class DISPLAYAPI_EXPORT PhonebookItemPrivateIfc : public ListItemPrivateIfc { };

}

#pragma once

#include <string>

class FormItemIfc;

namespace DisplayAPI {

/// The half of a form's field that lives on the GUI thread.
class ItemPrivateIfc {
public:
    virtual ~ItemPrivateIfc() = default;
    virtual FormItemIfc* getWidget() = 0;
    virtual void releaseOwnership() = 0;
    virtual void localeChanged(std::string locale) = 0;
};

}

#pragma once

namespace DisplayAPI {

class ContentWidgetIfc;

/// Makes the content of a display, so that another kind can be put in.
class ContentWidgetFactoryIfc {
public:
    virtual ~ContentWidgetFactoryIfc() = default;

    /// A new content; it belongs to the caller.
    virtual ContentWidgetIfc* createContentWidget() = 0;
};

}

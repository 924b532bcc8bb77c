#pragma once

#include "ContentWidgetFactoryIfc.h"

namespace DisplayAPI {

/// Makes the ordinary ContentWidget.
class ContentWidgetFactory : public ContentWidgetFactoryIfc {
public:
    ContentWidgetIfc* createContentWidget() override;
};

}

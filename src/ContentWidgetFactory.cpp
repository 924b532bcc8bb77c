#include "ContentWidgetFactory.h"

#include "ContentWidget.h"

namespace DisplayAPI {

ContentWidgetIfc* ContentWidgetFactory::createContentWidget()
{
    return new ContentWidget;
}

}

#include "WidgetTree.h"

#include "GlassReader.h"

#include <UScreenWE1.h>
#include <UWidget.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <typeinfo>

namespace Simulator {

namespace {

std::string classOf(const UWidget& widget)
{
    int status = 0;
    const char* name = typeid(widget).name();
    const std::unique_ptr<char, decltype(&std::free)> readable(
        abi::__cxa_demangle(name, nullptr, nullptr, &status), &std::free);
    return status == 0 ? readable.get() : name;
}

bool isPopup(const UWidget& widget)
{
    return widget.layer() == UWidget::Layer::Popup;
}

bool isOnGlass(const URect& rect)
{
    const UScreenWE1* screen = UWindowManager::instance().screen();
    return rect.isEmpty() || !screen || rect.Overlap(URect(0, 0, UScreenWE1::Width - 1, screen->height() - 1));
}

WidgetInfo infoOf(UWidget& widget);

/// Those of a list are many: it gives the rows in view alone.
std::vector<UWidget*> childrenInView(const UWidget& widget)
{
    std::vector<UWidget*> children;
    const auto* list = dynamic_cast<const VantoListBoxMEG*>(&widget);
    for (UWidget* child = widget.firstChild(); child; child = child->nextSibling()) {
        if (child->isVisible() && !isPopup(*child) && (!list || isOnGlass(child->getRect())))
            children.push_back(child);
    }
    return children;
}

void addListInfo(WidgetInfo& info, const UListWidget& list)
{
    info.rows = list.count();
    info.currentRow = list.currentIndex();
}

WidgetInfo infoOf(UWidget& widget)
{
    WidgetInfo info;
    info.kind = classOf(widget);
    info.rect = widget.getRect();
    info.hasFocus = UWindowManager::instance().focusWidget() == &widget;
    if (const auto* list = dynamic_cast<const UListWidget*>(&widget))
        addListInfo(info, *list);
    if (const auto* row = dynamic_cast<const VantoListBoxItemMEG*>(&widget)) {
        info.text = {row->getDisplayedText().toUTF8()};
        const auto* list = dynamic_cast<const VantoListBoxMEG*>(widget.parentWidget());
        info.isCurrent = list && list->currentItem() == row;
    } else {
        info.text = paintedText(widget);
    }
    for (UWidget* child : childrenInView(widget))
        info.children.push_back(infoOf(*child));
    return info;
}

const WidgetInfo* childAt(const std::vector<WidgetInfo>& children, const URect& pixel)
{
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        if (child->rect.contains(pixel))
            return &*child;
    }
    return nullptr;
}

}

std::vector<WidgetInfo> readWidgetTree()
{
    std::vector<WidgetInfo> tree;
    if (!UWindowManager::instance().isEnabled())
        return tree;
    for (UWidget* widget : UWindowManager::instance().paintOrder()) {
        if (widget->isVisible())
            tree.push_back(infoOf(*widget));
    }
    return tree;
}

std::vector<WidgetInfo> widgetsAt(const std::vector<WidgetInfo>& tree, int x, int y)
{
    const URect pixel(x, y, x, y);
    std::vector<WidgetInfo> path;
    const std::vector<WidgetInfo>* children = &tree;
    while (const WidgetInfo* found = childAt(*children, pixel)) {
        path.push_back(*found);
        path.back().children.clear();
        children = &found->children;
    }
    return path;
}

}

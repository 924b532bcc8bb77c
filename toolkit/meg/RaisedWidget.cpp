#include "RaisedWidget.h"

#include "UWindowManager.h"

RaisedWidget::RaisedWidget(WhileDown whileDown, UWidget* parent)
    : UWidget(parent)
    , mWhileDown(whileDown)
{
    if (mWhileDown == WhileDown::Invisible)
        UWidget::setVisible(false);
}

bool RaisedWidget::isUp() const
{
    return UWindowManager::instance().isUp(this);
}

void RaisedWidget::raise()
{
    UWindowManager::instance().raisePopup(this);
    show();
    upChanged();
}

void RaisedWidget::lower()
{
    if (!isUp())
        return;
    UWindowManager::instance().lowerPopup(this);
    if (mWhileDown == WhileDown::Invisible)
        hide();
    upChanged();
}

void RaisedWidget::setVisible(bool visible)
{
    UWidget::setVisible(visible && (mWhileDown == WhileDown::KeepsFlag || isUp()));
}

void RaisedWidget::parentChanged()
{
    // Who takes a widget out of the tree walks the display's stack: an event would come in the middle of it.
    if (!parentWidget())
        lower();
}

#include "UWidget.h"

#include "UWindowManager.h"

#include <cassert>

UWidget::UWidget(UWidget* parent)
{
    if (!parent)
        return;
    link(parent);
    UWindowManager::instance().repaint();
}

UWidget::~UWidget()
{
    if (UWidget* parent = mParent) {
        unlinkFrom(*parent);
        parent->childLeft(this);
    }
    while (UWidget* child = mLastChild) {
        child->unlinkFrom(*this);
        assert(child != mLastChild);
        delete child;
    }
    UWindowManager::instance().widgetDies(this);
}

void UWidget::setParent(UWidget* parent)
{
    if (parent == mParent)
        return;
    for (UWidget* ancestor = parent; ancestor; ancestor = ancestor->mParent) {
        if (ancestor == this)
            return;
    }
    if (UWidget* old = mParent) {
        unlinkFrom(*old);
        old->childLeft(this);
    }
    if (parent)
        link(parent);
    else
        mIsStatusMessageAvailable = false;
    UWindowManager::instance().repaint();
    parentChanged();
}

void UWidget::addWidget(UWidget* child)
{
    if (child)
        child->setParent(this);
}

void UWidget::removeWidget(UWidget* child)
{
    if (child && child->mParent == this)
        child->setParent(nullptr);
}

void UWidget::childLeft(UWidget*) { }

void UWidget::setVisible(bool visible)
{
    mIsVisible = visible;
    refresh();
}

bool UWidget::isShown() const
{
    const UWidget* widget = this;
    while (widget->mIsVisible && widget->mParent)
        widget = widget->mParent;
    return widget->mIsVisible && widget == UWindowManager::instance().root();
}

void UWidget::setEnabled(bool enabled)
{
    mIsEnabled = enabled;
    refresh();
}

void UWidget::setStatusMessageAvailable(bool available)
{
    mIsStatusMessageAvailable = available;
    refresh();
}

void UWidget::refresh()
{
    UWindowManager::instance().repaint();
}

void UWidget::paint(UPainter&) { }

void UWidget::unlinkFrom(UWidget& parent)
{
    (mPreviousSibling ? mPreviousSibling->mNextSibling : parent.mFirstChild) = mNextSibling;
    (mNextSibling ? mNextSibling->mPreviousSibling : parent.mLastChild) = mPreviousSibling;
    mParent = mNextSibling = mPreviousSibling = nullptr;
}

void UWidget::link(UWidget* parent)
{
    mParent = parent;
    mPreviousSibling = parent->mLastChild;
    (mPreviousSibling ? mPreviousSibling->mNextSibling : parent->mFirstChild) = this;
    parent->mLastChild = this;
}

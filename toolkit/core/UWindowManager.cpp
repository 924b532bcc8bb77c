#include "UWindowManager.h"

#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "UScreenWE1.h"
#include "UWidget.h"

#include <algorithm>
#include <iterator>

UWindowManager& UWindowManager::instance()
{
    static UWindowManager& manager = *new UWindowManager;
    return manager;
}

void UWindowManager::setRoot(UWidget* root)
{
    mRoot = root;
    repaint();
}

UWidget* UWindowManager::root() const
{
    return mRoot.get();
}

void UWindowManager::setScreen(UScreenWE1* screen)
{
    mScreen = screen;
    repaint();
}

void UWindowManager::setFont(const UFont* font)
{
    mFont = font;
    repaint();
}

void UWindowManager::setEnabled(bool enabled)
{
    mIsEnabled = enabled;
    repaint();
}

// Popups

void UWindowManager::raisePopup(UWidget* popup)
{
    lowerPopup(popup);
    mPopups.push_back({popup, topScreen()});
    repaint();
}

void UWindowManager::lowerPopup(UWidget* popup)
{
    std::erase_if(mPopups, [popup](const Popup& entry) { return entry.widget == popup; });
    repaint();
}

void UWindowManager::pushBackPopup(UWidget* popup)
{
    std::stable_partition(
        mPopups.begin(), mPopups.end(), [popup](const Popup& entry) { return entry.widget == popup; });
    repaint();
}

bool UWindowManager::isUp(const UWidget* popup) const
{
    return std::any_of(mPopups.begin(), mPopups.end(), [popup](const Popup& entry) { return entry.widget == popup; });
}

bool UWindowManager::isInRootTree(const UWidget* widget) const
{
    const UWidget* root = mRoot.get();
    while (widget && widget != root)
        widget = widget->parentWidget();
    return widget;
}

bool UWindowManager::isShown(const Popup& popup) const
{
    const UWidget* root = mRoot.get();
    if (isInRootTree(popup.widget)) {
        // A menu inside a screen is covered together with it.
        const UWidget* outermost = popup.widget;
        while (outermost->parentWidget() != root)
            outermost = outermost->parentWidget();
        const bool isOnTop = outermost->layer() != UWidget::Layer::Screen || outermost == topScreen();
        return isOnTop && popup.widget->isShown();
    }
    return popup.widget->isVisible() && (!root || root->isVisible()) && popup.boundTo == topScreen();
}

UWidget* UWindowManager::topScreen() const
{
    UWidget* screen = mRoot ? mRoot->lastChild() : nullptr;
    while (screen && (!screen->isVisible() || screen->layer() != UWidget::Layer::Screen))
        screen = screen->previousSibling();
    return screen;
}

void UWindowManager::addOverlay(UWidget* overlay)
{
    if (std::find(mOverlays.begin(), mOverlays.end(), overlay) == mOverlays.end())
        mOverlays.push_back(overlay);
    repaint();
}

// Focus and keys

void UWindowManager::requestFocus(UWidget* widget)
{
    mFocusRequest = widget;
}

void UWindowManager::releaseFocus()
{
    mFocusRequest = nullptr;
}

bool UWindowManager::hasFocusRequest(const UWidget* widget) const
{
    return widget && mFocusRequest.get() == widget;
}

std::vector<UWidget*> UWindowManager::focusCandidates() const
{
    std::vector<UWidget*> candidates;
    auto addTarget = [&candidates](UWidget* widget) {
        UWidget* target = widget->focusTarget();
        if (target && std::find(candidates.begin(), candidates.end(), target) == candidates.end())
            candidates.push_back(target);
    };
    for (auto popup = mPopups.rbegin(); popup != mPopups.rend(); ++popup) {
        if (isShown(*popup))
            addTarget(popup->widget);
    }
    const UWidget* root = mRoot.get();
    if (!root || !root->isVisible())
        return candidates;
    for (UWidget* child = root->lastChild(); child; child = child->previousSibling()) {
        if (child->isVisible())
            addTarget(child);
    }
    return candidates;
}

UWidget* UWindowManager::focusWidget() const
{
    const std::vector<UWidget*> candidates = focusCandidates();
    return candidates.empty() ? nullptr : candidates.front();
}

bool UWindowManager::dispatchKey(UKeyEvent& key)
{
    const std::vector<UWidget*> candidates = focusCandidates();
    // A handler may delete any widget, also the one that comes next.
    UPointer<UWidget> first = candidates.empty() ? nullptr : candidates.front();
    UPointer<UWidget> next = first && first->isPassive() && candidates.size() > 1 ? candidates[1] : nullptr;
    if (key.state() == UGlobal::KeyPressed)
        return press(first.get(), key) || press(next.get(), key);

    UWidget* owner = takePress(key);
    if (!owner || (owner != first.get() && owner != next.get()))
        return false;
    return owner->keyEvent(&key);
}

bool UWindowManager::press(UWidget* widget, UKeyEvent& key)
{
    constexpr std::size_t mostFingers = 16;
    const int code = key.key();
    auto isThisKey = [code](const Press& press) { return press.key == code; };
    std::erase_if(mPresses, isThisKey);
    if (!widget)
        return false;
    // A telephone that loses releases must not fill the memory.
    if (mPresses.size() == mostFingers)
        mPresses.erase(mPresses.begin());
    mPresses.push_back({code, widget});
    if (widget->keyEvent(&key))
        return true;
    std::erase_if(mPresses, isThisKey);
    return false;
}

UWidget* UWindowManager::takePress(const UKeyEvent& key)
{
    const auto found
        = std::find_if(mPresses.begin(), mPresses.end(), [&key](const Press& press) { return press.key == key.key(); });
    if (found == mPresses.end())
        return nullptr;
    UWidget* owner = found->owner.get();
    if (key.state() == UGlobal::KeyReleased)
        mPresses.erase(found);
    return owner;
}

const UWidget* UWindowManager::shownWidget(int role) const
{
    const UWidget* root = mRoot.get();
    if (!root || !root->isVisible())
        return nullptr;
    // Depth first, from the screen on top to the one at the bottom.
    std::vector<const UWidget*> open;
    for (const UWidget* child = root->firstChild(); child; child = child->nextSibling())
        open.push_back(child);
    while (!open.empty()) {
        const UWidget* widget = open.back();
        open.pop_back();
        if (!widget->isVisible())
            continue;
        if (static_cast<int>(widget->role()) == role)
            return widget;
        for (const UWidget* child = widget->firstChild(); child; child = child->nextSibling())
            open.push_back(child);
    }
    return nullptr;
}

// Painting

void UWindowManager::clearScreen()
{
    if (mScreen)
        mScreen->clear();
    repaint();
}

bool UWindowManager::paintIfNeeded()
{
    if (!mIsPaintNeeded)
        return false;
    mIsPaintNeeded = false;
    if (mScreen)
        compose();
    if (mPaintObserver)
        mPaintObserver();
    return true;
}

void UWindowManager::compose()
{
    mScreen->clear();
    if (!mIsEnabled)
        return;
    UPainter painter(*mScreen, mFont);
    for (UWidget* widget : paintOrder())
        paintTree(*widget, painter);
}

std::vector<UWidget*> UWindowManager::paintOrder() const
{
    std::vector<UWidget*> order;
    const UWidget* root = mRoot.get();
    for (int layer = 0; layer <= static_cast<int>(UWidget::Layer::KeyBar); ++layer) {
        if (layer == static_cast<int>(UWidget::Layer::Popup)) {
            for (const Popup& popup : mPopups) {
                if (isShown(popup))
                    order.push_back(popup.widget);
            }
            continue;
        }
        const auto isOfLayer = [layer](const UWidget* widget) { return static_cast<int>(widget->layer()) == layer; };
        for (UWidget* child = root && root->isVisible() ? root->firstChild() : nullptr; child;
             child = child->nextSibling()) {
            if (isOfLayer(child))
                order.push_back(child);
        }
        std::ranges::copy_if(mOverlays, std::back_inserter(order), isOfLayer);
    }
    return order;
}

void UWindowManager::paintTree(UWidget& widget, UPainter& painter) const
{
    if (!widget.isVisible())
        return;
    widget.paint(painter);
    if (widget.paintsChildren())
        return;
    for (UWidget* child = widget.firstChild(); child; child = child->nextSibling()) {
        // A popup is painted where it stands among those that are up, and not at all while it is down.
        if (child->layer() != UWidget::Layer::Popup)
            paintTree(*child, painter);
    }
}

void UWindowManager::widgetDies(UWidget* widget)
{
    std::erase_if(mPopups, [widget](const Popup& entry) { return entry.widget == widget; });
    std::erase(mOverlays, widget);
    for (Popup& popup : mPopups) {
        // Another widget may get this address; the popup itself stands for a screen that never comes back.
        if (popup.boundTo == widget)
            popup.boundTo = popup.widget;
    }
    repaint();
}

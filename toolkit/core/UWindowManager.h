#pragma once

#include "Export.h"
#include "UAgent.h"

#include <functional>
#include <utility>
#include <vector>

class UFont;
class UKeyEvent;
class UPainter;
class UScreenWE1;
class UWidget;

/// What is on the glass: the root of the screens, the popups that are up, the focus, the keys and the
/// painting. There is one for the process, and it is never destroyed. Threads: GUI thread only.
///
/// The focus is computed from what is shown: the popup that came up last, then the root's last visible child,
/// each if it wants keys. An explicit request only lets a passive popup join in.
class TOOLKIT_EXPORT UWindowManager {
public:
    static UWindowManager& instance();

    // Screen

    /// Names the widget whose children are the screens; null for none.
    void setRoot(UWidget* root);
    UWidget* root() const;

    /// The frame to paint on, not owned; null for none.
    void setScreen(UScreenWE1* screen);
    const UScreenWE1* screen() const { return mScreen; }

    /// The font, not owned; null for none.
    void setFont(const UFont* font);

    /// While disabled the screen paints blank.
    void setEnabled(bool enabled);
    bool isEnabled() const { return mIsEnabled; }

    // Popups and overlays

    /// Brings a popup up, on top of those that are up already. Outside the root's tree it is shown only while
    /// the screen that is on top now stays there.
    void raisePopup(UWidget* popup);
    void lowerPopup(UWidget* popup);

    /// Puts a popup that is up behind all others that are up.
    void pushBackPopup(UWidget* popup);
    bool isUp(const UWidget* popup) const;

    /// A widget outside the root's tree that is painted by its layer, such as the system window.
    void addOverlay(UWidget* overlay);

    // Focus and keys

    void requestFocus(UWidget* widget);
    void releaseFocus();
    bool hasFocusRequest(const UWidget* widget) const;

    /// The widget that gets the next key, or null.
    UWidget* focusWidget() const;

    /// Hands a key to the focus widget; a key that a passive popup does not take goes to the next one. A hold or
    /// a release goes only to the widget that took the press of that key, while it would get a press too.
    /// Returns whether the key was used.
    bool dispatchKey(UKeyEvent& key);

    /// A shown widget of a UWidget::Role, or null.
    const UWidget* shownWidget(int role) const;

    // Painting

    /// Asks for a new painting at the end of the pass.
    void repaint() { mIsPaintNeeded = true; }

    /// Wipes the frame and asks for a new painting; without effect on focus and popups.
    void clearScreen();

    /// Paints if something asked for it. Returns whether it did.
    bool paintIfNeeded();

    /// What is painted, each with its children, in the order of painting.
    std::vector<UWidget*> paintOrder() const;

    /// Called after each painting, for a simulator; empty for none.
    void setPaintObserver(std::function<void()> observer) { mPaintObserver = std::move(observer); }

    // For the widget tree

    /// Forgets a widget in every place; called by its destructor.
    void widgetDies(UWidget* widget);

private:
    struct Popup {
        UWidget* widget = nullptr;
        const UWidget* boundTo = nullptr; // the screen that was on top when it came up
    };

    /// A key that is down.
    struct Press {
        int key = 0;
        UPointer<UWidget> owner; // who took the press
    };

    UWindowManager() = default;
    bool press(UWidget* widget, UKeyEvent& key);
    UWidget* takePress(const UKeyEvent& key);
    bool isShown(const Popup& popup) const;
    UWidget* topScreen() const;
    std::vector<UWidget*> focusCandidates() const;
    void compose();
    void paintTree(UWidget& widget, UPainter& painter) const;
    bool isInRootTree(const UWidget* widget) const;

    UPointer<UWidget> mRoot;
    UPointer<UWidget> mFocusRequest;
    std::vector<Press> mPresses;
    std::vector<Popup> mPopups;
    std::vector<UWidget*> mOverlays;
    UScreenWE1* mScreen = nullptr;
    const UFont* mFont = nullptr;
    bool mIsEnabled = false;
    bool mIsPaintNeeded = true;
    std::function<void()> mPaintObserver;
};

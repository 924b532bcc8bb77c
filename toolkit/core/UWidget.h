#pragma once

#include "Export.h"
#include "Rect.h"
#include "UAgent.h"

class UPainter;

/// A node of the widget tree.
///
/// A parent deletes its children; a widget that gets a new parent leaves the old one, and a dying widget
/// leaves its parent first, so no order of destruction is fatal. Hiding, showing and moving in the tree raise
/// no event. Threads: GUI thread only.
class TOOLKIT_EXPORT UWidget : public UObject {
public:
    /// What the window manager must know of a widget without knowing its class.
    enum class Role {
        None,
        IdleDisplay,
        SearchableList,
    };

    /// The order of painting: screens, what is up over them in the order of coming up, and so on.
    enum class Layer {
        Screen,
        Popup,
        SystemWindow,
        StatusMessage,
        Volume,
        KeyBar,
    };

    explicit UWidget(UWidget* parent = nullptr);
    ~UWidget() override;

    // Tree

    UWidget* parentWidget() const { return mParent; }

    /// Moves the widget to the end of the children of `parent`; null takes it out of the tree. The present
    /// parent changes nothing.
    void setParent(UWidget* parent);
    void addWidget(UWidget* child);

    /// Takes a child out; a widget that is no child is ignored.
    void removeWidget(UWidget* child);

    UWidget* firstChild() const { return mFirstChild; }
    UWidget* lastChild() const { return mLastChild; }
    UWidget* nextSibling() const { return mNextSibling; }
    UWidget* previousSibling() const { return mPreviousSibling; }

    /// Told after a child has left, on its own account or by its death. Only its address may be used then.
    virtual void childLeft(UWidget* child);

    /// Told after this widget has got another parent, or none.
    virtual void parentChanged() { }

    // State

    void show() { setVisible(true); }
    void hide() { setVisible(false); }
    virtual void setVisible(bool visible);

    /// The widget's own flag, whatever its parents have.
    bool isVisible() const { return mIsVisible; }

    /// True while this widget and all its parents are visible and the topmost is the root of the screen.
    bool isShown() const;

    void setEnabled(bool enabled);
    bool isWidgetEnabled() const { return mIsEnabled; }

    void setRect(const URect& rect) { mRect = rect; }
    virtual URect getRect() const { return mRect; }
    void setCoordinates(int left, int top, int right, int bottom) { setRect(URect(left, top, right, bottom)); }

    // The first line of the glass

    /// Told when a status message comes or goes over the first line. Leaving the tree forgets it.
    void setStatusMessageAvailable(bool available);
    bool isStatusMessageAvailable() const { return mIsStatusMessageAvailable; }

    /// True while the widget around this one keeps the first line: what stands there was painted before.
    bool isFirstLineKept() const { return mParent && mParent->keepsFirstLine(); }

    /// True while the first line is not this widget's to use: a status message lies over it, or the widget
    /// around this one keeps it. Whoever places lines asks each time.
    bool isFirstLineTaken() const { return mIsStatusMessageAvailable || isFirstLineKept(); }

    /// True for a widget that has the first line for itself, so that its children begin on the second. It is
    /// asked by isFirstLineTaken() of the children; a widget that does not have the line passes that on.
    virtual bool keepsFirstLine() const { return isFirstLineTaken(); }

    // Painting and keys

    /// Asks for a new painting of the screen.
    void refresh();

    /// Draws this widget alone; the window manager walks the tree.
    virtual void paint(UPainter& painter);

    /// True if paint() draws the children too, so that the walk stops here.
    virtual bool paintsChildren() const { return false; }

    /// The widget that takes the keys when this one is the topmost shown; null if none does.
    virtual UWidget* focusTarget() { return nullptr; }

    /// True for a widget that only tells something: it joins in the focus by an explicit request alone, and
    /// the keys that it does not take go on to the next one.
    virtual bool isPassive() const { return false; }

    virtual Role role() const { return Role::None; }
    virtual Layer layer() const { return Layer::Screen; }

private:
    void unlinkFrom(UWidget& parent);
    void link(UWidget* parent);

    UWidget* mParent = nullptr;
    UWidget* mFirstChild = nullptr;
    UWidget* mLastChild = nullptr;
    UWidget* mNextSibling = nullptr;
    UWidget* mPreviousSibling = nullptr;
    URect mRect;
    bool mIsVisible = true;
    bool mIsEnabled = true;
    bool mIsStatusMessageAvailable = false;
};

/// A widget with rows, one of which is current.
class TOOLKIT_EXPORT UListWidget : public UWidget {
public:
    using UWidget::UWidget;

    virtual int count() const = 0;

    /// The index of the current row, -1 without one.
    virtual int currentIndex() const = 0;
    virtual void setCurrentIndex(int index) = 0;
};

#pragma once

#include "StackScreen.h"

#include <cstddef>
#include <vector>

class UWidget;

namespace DisplayAPI {

class DisplayPrivateIfc;

/// The screens on a display, bottom first, and the way of their widgets into the content widget and out of it.
///
/// A screen whose private or widget is missing is ignored, and one that has been deleted is forgotten. What it calls
/// may run code of the application, which may change the stack again or delete any screen.
/// Threads: GUI thread only.
/// Ownership: while a screen's widget is in the content widget it belongs to the toolkit's tree, else to the screen's
/// private.
class DisplayStack {
public:
    /// `display` is what its screens are told to stand on.
    explicit DisplayStack(DisplayPrivateIfc& display)
        : mDisplay(display)
    {
    }
    DisplayStack(const DisplayStack&) = delete;
    DisplayStack& operator=(const DisplayStack&) = delete;

    /// The widget whose children are seen.
    void setContent(UWidget* content) { mContent = content; }

    /// While it is hidden the stack is only built: widgets come into the content widget with the next showAll().
    void setVisible(bool visible) { mIsVisible = visible; }
    bool isVisible() const { return mIsVisible; }

    // Questions

    /// The top, but for a display that does not stack.
    Displayable* current();
    bool isEmpty() { return !top(); }
    std::size_t size() const { return mItemList.size(); }

    /// Calls `visit` for each screen, from the bottom. The one way over the stack: it drops the dead, and looks each
    /// screen up once, when its turn comes.
    template <typename Visit>
    void forEach(Visit visit);

    // Changes

    /// Puts a screen on top. An ordinary one takes off all that is there.
    void put(const StackScreen& screen);

    /// Makes a screen current without a stack; with `isStacked` also puts it on top, whatever it is, and whether the
    /// display is visible or not.
    void putServer(const StackScreen& screen, bool isStacked);

    /// Empties the stack, and tells every screen that it has lost the focus.
    void darken();

    /// Takes off the screen of a private. False if it is not here.
    bool takeOff(DisplayablePrivateIfc& half);

    /// Makes the top current, and shows it again.
    void returnToTop();

    /// Brings every widget into the content widget, and shows the top.
    void showAll();

    /// Takes the focus and the widget from the current screen; the stack stays.
    void removeOldCurrent();

    /// Takes off a screen that is being deleted: it has left the registry by then, and its private still lives.
    void forget(Displayable* displayable);

    /// Gives every screen its widget back, for the end of the display.
    void giveBack();

    // The screen that was current when markCurrent() was last called; null if it has gone

    Displayable* previousCurrent();
    void markCurrent() { mPreviousCurrent = current(); }

private:
    void clear();
    void addNewCurrent(const StackScreen& screen);
    void showWidget(const StackScreen& screen);
    Displayable* top();
    bool holds(const Displayable* displayable) const;
    bool isInContent(const UWidget& widget) const;

    DisplayPrivateIfc& mDisplay;
    UWidget* mContent = nullptr;
    bool mIsVisible = false;
    std::vector<Displayable*> mItemList; // a screen stands in it once
    Displayable* mCurrent = nullptr;
    Displayable* mPreviousCurrent = nullptr;
};

template <typename Visit>
void DisplayStack::forEach(Visit visit)
{
    // By index, since a visit may change the stack.
    for (std::size_t i = 0; i < mItemList.size();) {
        Displayable* displayable = mItemList[i];
        if (const StackScreen screen{displayable}) {
            visit(screen);
        } else if (!displayableExists(displayable)) {
            mItemList.erase(mItemList.begin() + static_cast<std::ptrdiff_t>(i));
            continue;
        }
        ++i;
    }
}

}

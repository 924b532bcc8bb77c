#pragma once

#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>

#include <memory>
#include <utility>
#include <vector>

/// What stands on the display, and all that belongs to it. Threads: any but the GUI thread, one at a time.
class Stage {
public:
    /// Shows an empty list.
    explicit Stage(DisplayAPI::Display& display);

    /// Makes a part of the screen that comes next.
    template <typename Part, typename... Arguments>
    Part& make(Arguments&&... arguments)
    {
        auto part = std::make_shared<Part>(std::forward<Arguments>(arguments)...);
        mParts.push_back(part);
        return *part;
    }

    /// Shows a screen in the place of what was there.
    void show(DisplayAPI::Displayable& screen);

    /// Shows a popup over the list.
    void showOver(DisplayAPI::Displayable& popup);

    /// The list, for what comes over it without being a screen.
    void showBelow();

    DisplayAPI::Display& display() { return mDisplay; }

private:
    void clear();

    DisplayAPI::Display& mDisplay;
    DisplayAPI::List mBelow{0};
    std::vector<std::shared_ptr<void>> mParts; // of the screen that is shown, and then of the next one
    std::size_t mShown = 0;                    // how many of them belong to the former
};

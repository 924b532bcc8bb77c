#pragma once

#include "RaisedWidget.h"
#include "ULoop.h"
#include "UString.h"

#include <array>
#include <cstddef>
#include <vector>

/// What all popups share: coming up and going down, the time-out, and the icons of the two lines.
///
/// A popup is on the glass only while it is up, whatever its visible flag and its place in the tree. Coming up
/// raises PopupUp, also when it is up already. Going down raises PopupDown on dismiss() and on the time-out;
/// hiding, leaving the tree and dying are silent. Leaving the tree takes an up popup down.
///
/// Icons are the telephone's icon numbers, 0 for none.
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's. Its listener may delete it
/// inside any event.
class TOOLKIT_EXPORT PopupBaseMEG : public RaisedWidget {
public:
    PopupBaseMEG();
    ~PopupBaseMEG() override;

    // Up and down

    /// The time in milliseconds after which the popup goes down by itself; 0 or less for none. An up popup
    /// starts its time anew.
    virtual void setTimeout(int milliseconds);

    /// Makes the popup visible and brings it up, on top of those that are up; the time-out starts. On a popup
    /// that is up already it does the same once more.
    virtual void popupAsCall();
    virtual void popupAsNotification();

    /// Takes the popup down; without effect and without event while it is not up.
    virtual void dismiss();

    // Icons and marks

    virtual void setLine1Icon1(unsigned short icon);
    virtual void setLine2Icon1(unsigned short icon);
    virtual void setLine1Icon2(unsigned short icon);
    virtual void setLine2Icon2(unsigned short icon);

    /// Whether the list may run past the popup: only then are there marks for further rows, and moves.
    virtual void setListScrollable(bool scrollable);

    /// Sets the icon that stands at the head of a line (0 or 1), in place of the line's first one. It ends an
    /// animation.
    virtual void setStateIcon(unsigned short icon, int line);

    /// Runs through the icons in turn at the head of line 1, each for `period` milliseconds, while the popup is
    /// up. A period of 0 or less shows the first icon; no icons clear the state icon.
    virtual void setStateIconAnimation(const std::vector<unsigned short>& icons, int period);

    /// Allows the marks for further rows in the last column.
    virtual void setDownArrowDisplayable(bool displayable);

    int getTimeout() const { return mTimeout; }

    // Overrides

    void timerEvent(UTimerEvent* event) override;

protected:
    /// Starts or stops time-out and animation. Told before the popup's event.
    void upChanged() override;

    // Lines

    /// What a line says: its prefixes, each with ": " behind it where it is not empty, and its text.
    struct Line {
        UString prePrefix;
        UString prefix;
        UString text;
        UString number; // the end of the text, which is never cut

        bool isEmpty() const { return prePrefix.isEmpty() && prefix.isEmpty() && text.isEmpty(); }

        /// The line as it is painted.
        UString shownText() const;
    };

    /// A prefix with its colon and blank; empty without a prefix.
    static UString withColon(const UString& prefix);

    /// The icons at the head of line 0 or 1, as they are painted now; other lines have none.
    std::array<unsigned short, 2> iconsOfLine(int line) const;

    /// The columns that the icons of a line take.
    int iconColumns(int iconLine) const;

    /// Draws the icons of line `iconLine` on a line of the glass, and a content behind them, in `columns` cells.
    /// Where there are no icons the content is indented. Where a line is too long, its number stays and what is
    /// in front of it is cut. Returns the columns up to the end of the content.
    int paintLine(
        UPainter& painter, int glassLine, int iconLine, const Line& content, int columns, int indent = 0) const;

    /// Blanks the glass and draws two lines, the second with icons of line `secondIcons`; its text stands under
    /// that of the first.
    void paintLines(UPainter& painter, const Line& first, const Line& second, int secondIcons = 1) const;

    unsigned short line2Icon1() const { return mLineIcons[1][0]; }
    unsigned short line2Icon2() const { return mLineIcons[1][1]; }
    bool isListScrollable() const { return mIsListScrollable; }
    bool isDownArrowDisplayable() const { return mIsDownArrowDisplayable; }

private:
    void comeUp();
    void setLineIcon(std::size_t line, std::size_t place, unsigned short icon);
    void restartTimeout();
    void restartAnimation();

    std::array<std::array<unsigned short, 2>, 2> mLineIcons = {};
    std::vector<unsigned short> mStateIcons; // more than one is an animation
    std::size_t mStateIconIndex = 0;
    int mStateIconLine = 0;
    int mAnimationPeriod = 0;
    int mTimeout = 0;
    bool mIsListScrollable = false;
    bool mIsDownArrowDisplayable = false;
    UTimer mTimeoutTimer;
    UTimer mAnimationTimer;
};

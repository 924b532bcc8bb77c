#pragma once

#include "Types.h"
#include "UString.h"
#include "UWidget.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

/// A bare surface of two lines, on which its user puts texts and icons from left to right.
///
/// It knows no rows and raises no events: the keys go to the event handler, which draws anew. OK, Left and Right go
/// there when they are pressed, Up and Down when they are pressed, held and released. A key is used if the
/// handler says so. A disabled display gets no keys.
///
/// The lower line is a row: what stands there begins behind the place of an icon, so that rows with and without one
/// stand below each other. What does not fit into a line is cut.
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's; the handler stays its own.
/// Errors: lines other than 0 and 1 are ignored.
class TOOLKIT_EXPORT TwoLineDisplay : public UWidget {
public:
    enum ArrowMode : int {
        NoArrow = 0,
        ArrowUp = 1,
        ArrowDown = 2,
        ArrowBoth = 3,
    };

    TwoLineDisplay();

    /// Replaces the handler; null takes it away. Whoever dies first, handler or display, leaves the other.
    /// Returns true.
    bool setEventHandler(GUIEventIfc* handler);

    // Content

    /// Blanks both lines; scroll indication and arrows stay.
    virtual void clear();

    /// Adds a text behind what stands on the line.
    virtual void addText(int line, const UString& text);

    /// Adds an icon behind what stands on the line. The number 0 shows nothing.
    virtual void addIcon(int line, std::uint16_t icon);

    /// Whether the arrows are shown, at the end of the lower line.
    virtual void setScrollIndication(bool shown);

    /// One of ArrowMode; another number shows no arrow.
    virtual void setArrowMode(int mode);
    virtual int arrowMode() const { return mArrowMode; }

    // Overrides

    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override;
    void paint(UPainter& painter) override;

private:
    /// A piece of a line: an icon, or a text.
    struct Piece {
        std::uint16_t icon = 0;
        UString text;
    };

    void add(int line, Piece piece);
    void paintPieces(UPainter& painter, int line, int column, int columns) const;

    std::array<std::vector<Piece>, 2> mLines;
    GUIEventLink mLink;
    int mArrowMode = NoArrow;
    bool mHasScrollIndication = false;
};

#pragma once

#include "Export.h"

#include <array>
#include <cstdint>

/// The pictures of the telephone's icons and of the marks in the last column.
namespace Icons {

/// An icon of 10 x 10 pixels, drawn in two cells; bit 9 of a row is its leftmost pixel.
using Picture = std::array<std::uint16_t, 10>;

/// Icons that the widgets show by themselves; the library hands over numbers below these.
enum Number : std::uint16_t {
    ConnectedCall = 200,
    HeldCall,
    KeyLock,
    Maintenance,
    Usb,
    RingerOff,
    Person,
    Emergency,
    RingerA,
    RingerB,
    MobileTelephone,
    ConnectedCallHD,
    ClearedCall,
    SecureCall,
    InsecureCall,
    Recording,
    NoSignal,
    Signal25,
    Signal50,
    Signal75,
    Signal100,
};

/// The picture of an icon number, or null for 0 and for numbers without a picture.
TOOLKIT_EXPORT const Picture* picture(std::uint16_t number);

/// What stands in the last column of a line.
enum class Mark : std::uint8_t {
    None,
    MoreBelow,
    MoreAbove,
    MoreBoth,
    ContextArrow,
};

/// The mark of a view that has more above it, below it, or both.
constexpr Mark scrollMark(bool hasMoreAbove, bool hasMoreBelow)
{
    if (hasMoreAbove)
        return hasMoreBelow ? Mark::MoreBoth : Mark::MoreAbove;
    return hasMoreBelow ? Mark::MoreBelow : Mark::None;
}

/// The rows of a mark, in the layout of UFont::Glyph; null for None.
TOOLKIT_EXPORT const std::array<std::uint8_t, 13>* markGlyph(Mark mark);

/// The up-and-down arrow that stands for U+E000 in texts.
TOOLKIT_EXPORT const std::array<std::uint8_t, 13>* upDownArrowGlyph();

}

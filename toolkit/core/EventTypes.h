#pragma once

#include <cstdint>

/// The numbers by which events are told apart: one vocabulary for all senders. What a number does is
/// decided by the table of the class that receives it.
namespace EventType {

enum : std::uint16_t {
    Key = 0x0001,
    Timer = 0x0002,

    DisplayRequest = 0xF000, ///< A request of the library's display handle.
    GuiRequest = 0xF001,     ///< A request of any other handle of the library.

    PopupUp = 0xF002,           ///< Every popup, on each popupAsCall() and popupAsNotification().
    PopupDown = 0xF003,         ///< Every popup, on dismiss() while it is up and on its time-out.
    EmptyLineLeft = 0xF004,     ///< Dialer: Left on an empty edit line.
    SearchTextChanged = 0xF005, ///< Dialer: first character; search list: every change of its text.
    EditTextChanged = 0xF006,   ///< Dialer: every change of the edit text by keys.
    EditLineShown = 0xF007,     ///< Dialer: typing has switched the fixed text to the edit line.
    RowMoved = 0xF008,          ///< List box: the user moved the current row; form: a selection was chosen.
    PopupRowMoved = 0xF009,     ///< Row moved in a dialog or call popup; search field opened or closed.
    RowChosen = 0xF00A,         ///< List box: OK, or Right where Right equals OK.
    LeftPressed = 0xF00B,
    RightPressed = 0xF00C,
    DialerHint = 0xF00E,     ///< Never raised here; idle screen and dialer react if somebody sends it.
    MenuMoved = 0xF00F,      ///< A context menu's private to the agent outside it.
    ContentChanged = 0xF011, ///< The content changed by itself: a duration, the minute, the idle menu.
    BranchesFolded = 0xF012,
    ValueCommitted = 0xF013,
    SpellerConfirmed = 0xF014,
    FormRowChosen = 0xF015,
    DisplayModeChanged = 0xF016,
    HighlightMoved = 0xF017,
    SelectionListMoved = 0xF018,
    SpellerCopied = 0xF019,
    LocaleChanged = 0xF01A, ///< The listener hub, on every setLocale() of the application.
};

}

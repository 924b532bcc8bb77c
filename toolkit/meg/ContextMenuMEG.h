#pragma once

#include "RaisedWidget.h"

#include <cstdint>
#include <string>

class VantoListBoxItemMEG;
class VantoListBoxMEG;

/// A menu that slides in over a screen: over its lower line, so that the first one stays readable, or over both.
///
/// While it is in it has the focus, and every key goes to its list box. What the list box raises goes to the list
/// box's own listener; without one the menu passes it on to its own, with source and payload kept. Sliding raises
/// no event, and the menu stays in until somebody slides it out: how long that is, is not the menu's matter.
///
/// A menu with a Back row ends in a row that leads back, as soon as there is a text for it and a command above it.
/// Threads: GUI thread only.
/// Ownership: the parent's, without a parent the maker's. Whoever listens may delete it inside any event.
/// Errors: indices outside the list are ignored.
class TOOLKIT_EXPORT ContextMenuMEG : public RaisedWidget {
public:
    /// `backHandle` and `backText` are those of the Back row; an empty text leaves it to the list box's
    /// translateBack(). Without a Back row the handle is only kept.
    ContextMenuMEG(UWidget* parent, bool hasBackRow, long backHandle, const std::string& backText);
    ~ContextMenuMEG() override;

    /// Null once somebody has deleted the list box.
    VantoListBoxMEG* listBox;

    // Rows

    /// Adds a row at the end, in front of the Back row. The bools are settings of the maker's that change nothing
    /// here; `icon` is an icon number, 0 for none.
    void addCommand(const std::string& text, unsigned long handle, bool reserved, bool variant, std::uint16_t icon);

    /// Replaces the text of a row; the Back row keeps its own.
    void setItemText(int index, const std::string& text, bool reserved);

    /// The row that leads back, or null.
    VantoListBoxItemMEG* backRow() const;
    long getBackHandle() const { return mBackHandle; }

    /// Replaces the handle of the Back row, for a maker that takes away what the handle stood for.
    void setBackHandle(long handle);

    // In and out

    /// Brings the menu in, on top of all that is up, also when it is in already.
    void slideIn();
    void slideOut();

    /// Puts a menu that is in behind everything else that is up.
    void pushBack();

    // Look

    /// The lines of the menu, 1 or 2, to which other numbers are cut; 1 at first.
    void setHeight(int lines);

    /// The line on which the menu begins, counted from 1; 0 while it is out.
    int getStartLinePosition() const;

    /// Whether a rule parts the menu from a line above it; true at first.
    void setDrawLineAtTop(bool drawn);

    /// Where the voice of the call is: a mark at the right end of the first line, unless the row there carries it
    /// as its icon. Mute shows before speaker, speaker before headset.
    void setHeadSetStatus(bool on);
    void setLoudSpeakerStatus(bool on);
    void setMuteStatus(bool on);

    // Overrides

    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override;
    void childLeft(UWidget* child) override;
    void paint(UPainter& painter) override;
    bool paintsChildren() const override { return true; }

private:
    class Row;

    void setFlag(bool& flag, bool on);
    int firstLine() const;
    std::uint16_t statusMark() const;

    long mBackHandle;
    bool mIsLineDrawn = true;
    bool mIsHeadset = false;
    bool mIsSpeaker = false;
    bool mIsMute = false;
};

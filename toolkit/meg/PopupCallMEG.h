#pragma once

#include "PopupNotificationMEG.h"

#include <memory>

class VantoListBoxMEG;

/// A notification with a list of rows on its second line, and the keys for it.
///
/// What the list box raises goes to the list box's own listener; without one the popup passes it on to its
/// own, with source and payload kept. Keys that nobody uses are taken and dropped.
/// Threads, Ownership: as PopupBaseMEG; the list box is the popup's child.
class TOOLKIT_EXPORT PopupWithListMEG : public PopupNotificationMEG {
public:
    ~PopupWithListMEG() override;

    /// Null once somebody has deleted the list box.
    VantoListBoxMEG* listBox;

    // Overrides

    bool keyEvent(UKeyEvent* key) override;
    void paint(UPainter& painter) override;
    bool paintsChildren() const override { return true; }
    UWidget* focusTarget() override;
    bool isPassive() const override { return false; }
    void childLeft(UWidget* child) override;

protected:
    PopupWithListMEG();

    bool coversGlass() const override { return true; }

    /// Whether a move of the user is told as PopupRowMoved instead of RowMoved.
    virtual bool raisesPopupRowMoved() const = 0;

    /// Whether the second line shows line 2 and not the current row.
    virtual bool isLine2Shown() const = 0;

private:
    class ListRelay;

    bool moveRow(UKeyEvent* key);
    bool isMoveAllowed() const;
    void paintLine2(UPainter& painter) const;
    void paintRow(UPainter& painter) const;

    std::unique_ptr<ListRelay> mRelay;
};

/// The popup of a call that is not connected yet: its state, one or two parties, and the choices.
///
/// While line 2 has a text that no row repeats, it holds the second line, and the first move is told as
/// PopupRowMoved, upon which the application empties line 2 and so gives the line to the rows. Every other move
/// is RowMoved.
class TOOLKIT_EXPORT PopupCallMEG : public PopupWithListMEG {
public:
    PopupCallMEG();
    ~PopupCallMEG() override;

protected:
    bool raisesPopupRowMoved() const override;
    bool isLine2Shown() const override;
};

/// A question with a list of choices, told as PopupRowMoved, RowChosen and LeftPressed.
///
/// While there are rows, line 2 stands behind the question.
class TOOLKIT_EXPORT PopupDialogMEG : public PopupWithListMEG {
public:
    PopupDialogMEG();
    ~PopupDialogMEG() override;

protected:
    bool raisesPopupRowMoved() const override { return true; }
    bool isLine2Shown() const override;
};

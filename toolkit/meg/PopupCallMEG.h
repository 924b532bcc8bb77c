#pragma once

#include "PopupNotificationMEG.h"

class VantoListBoxMEG;

/// A notification with a list of rows on its second line, and the keys for it.
///
/// What the list box raises goes to the list box's own listener; without one the popup passes it on to its
/// own, with source and payload kept. While the popup has the focus it takes every key, also those that
/// nobody uses.
/// Threads, Ownership: as PopupBaseMEG; the list box is the popup's child.
class TOOLKIT_EXPORT PopupWithListMEG : public PopupNotificationMEG {
public:
    ~PopupWithListMEG() override;

    /// Null once somebody has deleted the list box.
    VantoListBoxMEG* listBox;

    // Overrides

    void setListScrollable(bool scrollable) override;
    void setDownArrowDisplayable(bool displayable) override;
    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    void paint(UPainter& painter) override;
    bool paintsChildren() const override { return true; }
    UWidget* focusTarget() override;
    bool isPassive() const override { return false; }
    void childLeft(UWidget* child) override;

protected:
    PopupWithListMEG();

    bool coversGlass() const override { return true; }

    /// What stands on the first line.
    virtual Line headLine() const { return line1(); }

    /// Whether the second line shows line 2 and not the current row.
    virtual bool isLine2Shown() const = 0;

    bool hasRows() const;

private:
    void updateArrows();
};

/// The popup of a call that is not connected yet: its state, one or two parties, and the choices.
///
/// A line 2 that no row repeats holds the second line until the first move, which gives the line to the
/// current row. While line 2 is set, moves are PopupRowMoved, else RowMoved.
class TOOLKIT_EXPORT PopupCallMEG : public PopupWithListMEG {
public:
    PopupCallMEG();
    ~PopupCallMEG() override;

    bool keyEvent(UKeyEvent* key) override;

protected:
    void upChanged() override;
    bool isLine2Shown() const override;

private:
    bool hasLine2Row() const;

    UString mLine2GivenWay; // the line 2 whose place the rows have taken
};

/// A question with a list of choices, told as PopupRowMoved, RowChosen and LeftPressed.
///
/// While there are rows, line 2 stands behind the question.
class TOOLKIT_EXPORT PopupDialogMEG : public PopupWithListMEG {
public:
    PopupDialogMEG();
    ~PopupDialogMEG() override;

protected:
    Line headLine() const override;
    bool isLine2Shown() const override;
};

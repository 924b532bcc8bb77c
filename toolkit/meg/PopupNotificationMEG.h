#pragma once

#include "PopupBaseMEG.h"

/// A notice of one to three lines, which takes no keys unless it holds the focus request.
///
/// A line is shown as its prefixes, each with ": " behind it, and its text. With one line the notice takes the
/// lower line of the glass and leaves the upper one to the screen below; otherwise it takes the whole glass.
/// Where both the second and the third line have a text they take turns.
///
/// Texts are set and read silently; the geometry follows them.
/// Threads, Ownership: as PopupBaseMEG.
class TOOLKIT_EXPORT PopupNotificationMEG : public PopupBaseMEG {
public:
    PopupNotificationMEG();
    ~PopupNotificationMEG() override;

    // Texts

    void setText(const UString& text);
    UString getText() const { return mLine1.text; }

    /// The same as setText().
    void setLine1Text(const UString& text) { setText(text); }

    /// Sets a party: getText() then gives name, blank and number, or the one that is not empty. Where they don't
    /// fit into the line, the number is kept and the name is cut.
    void setLine1TextNN(const UString& name, const UString& number);
    void setLine2TextNN(const UString& name, const UString& number);

    void setLine1PrefixText(const UString& text);
    UString getLine1PrefixText() const { return mLine1.prefix; }

    /// What stands before the prefix of line 1.
    void setLine1PrePrefixText(const UString& text);
    UString getLine1PrePrefixText() const { return mLine1.prePrefix; }

    /// An empty text also ends the split.
    void setLine2Text(const UString& text);
    UString getLine2Text() const { return mLine2.text; }
    void setLine2PrefixText(const UString& text);
    UString getLine2PrefixText() const { return mLine2.prefix; }
    void setLine3Text(const UString& text);
    UString getLine3Text() const { return mLine3.text; }

    // Icons and layout

    /// False takes both icons of line 2 away; true shows an arrow there if it has none.
    void setLine2Icon(bool shown);
    unsigned short getLine2Icon1() const { return line2Icon1(); }

    /// How many of the three lines have a text or a prefix.
    int countLines() const;

    /// True for the whole glass: with a second line, or split.
    bool isTwoLine() const { return mIsSplit || countLines() >= 2; }

    /// Gives the notice both lines also where the second is empty.
    void setIsSplit(bool split);

    /// Sets the rectangle by the number of lines.
    void updatePopupNotificationCoordinates();

    /// Whether a press of any key takes the notice down while it has the focus; false at first.
    void setDismissible(bool dismissible) { mIsDismissible = dismissible; }
    bool isDismissible() const { return mIsDismissible; }

    // Overrides

    bool keyEvent(UKeyEvent* key) override;
    void timerEvent(UTimerEvent* event) override;
    void paint(UPainter& painter) override;
    UWidget* focusTarget() override;
    bool isPassive() const override { return true; }

protected:
    void upChanged() override;

    /// Whether the popup covers the glass whatever its lines.
    virtual bool coversGlass() const { return isTwoLine(); }

    const Line& line1() const { return mLine1; }
    const Line& line2() const { return mLine2; }

private:
    void setField(UString& field, const UString& text);
    void setParty(Line& line, const UString& name, const UString& number);
    void restartTurns();
    void contentChanged();
    void place(bool coversGlass);

    Line mLine1;
    Line mLine2;
    Line mLine3;
    UTimer mTurnTimer;
    bool mIsThirdLineShown = false;
    bool mIsSplit = false;
    bool mIsDismissible = false;
};

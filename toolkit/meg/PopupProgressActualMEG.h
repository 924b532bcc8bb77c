#pragma once

#include "PopupBaseMEG.h"
#include "UString.h"

/// A popup that shows work under way: icon and text on the first line, status and bar on the second.
///
/// Where both status texts are set they take turns. There is no bar until the first setProgress(). While the popup
/// is up it takes every key, and no key does anything: what is under way can't be hurried.
/// Threads, Ownership: as PopupBaseMEG.
class TOOLKIT_EXPORT PopupProgressActualMEG : public PopupBaseMEG {
public:
    /// The kind of work, 0 to 4; it changes nothing in what is shown.
    enum ProgressType : int {};

    explicit PopupProgressActualMEG(ProgressType type);
    ~PopupProgressActualMEG() override;

    ProgressType progressType() const { return mType; }

    // Texts

    void setText(const UString& text);
    UString getText() const { return mText; }
    void setStatusText1(const UString& text);
    UString getStatusText1() const { return mStatusText1; }
    void setStatusText2(const UString& text);
    UString getStatusText2() const { return mStatusText2; }

    // Icon and bar

    /// The icon at the head of the first line, 0 for none.
    void setIcon(unsigned short icon);

    /// How much of the work is done, in per cent; other numbers are cut to 0 and 100.
    void setProgress(int percent);
    int progress() const { return mProgress; }

    /// Which widget is the popup: 1 says that it is this one, so that getWidget() need not be asked.
    const int kind = 1;

    /// The popup itself.
    UWidget* getWidget() { return this; }

    // Overrides

    bool keyEvent(UKeyEvent* key) override;
    void timerEvent(UTimerEvent* event) override;
    void paint(UPainter& painter) override;
    UWidget* focusTarget() override;

protected:
    void upChanged() override;

private:
    void setStatus(UString& field, const UString& text);
    void restartTurns();
    const UString& shownStatus() const;

    ProgressType mType;
    UString mText;
    UString mStatusText1;
    UString mStatusText2;
    int mProgress = -1; // no bar
    UTimer mTurnTimer;
    bool mIsSecondShown = false;
};

#pragma once

#include "UString.h"
#include "UWidget.h"

/// A screen around one other widget, its content, with a title on the first line.
///
/// While there is a title the content has the second line alone, whatever the content is. Keys go to the content's
/// own focus target; the tab screen takes none and raises nothing.
/// Threads: GUI thread only.
/// Ownership: the content is a child while it is in; taken out, it is the caller's again. A content that dies or
/// moves away leaves by itself.
class TOOLKIT_EXPORT TabScreenMEG : public UWidget {
public:
    TabScreenMEG();
    ~TabScreenMEG() override;

    /// Puts a widget in, in the place of the one that is in; null only takes that one out. A widget around this
    /// one is refused.
    void setCurrent(UWidget* content);

    /// Takes the content out, alive.
    void removeCurrent();
    UWidget* current() const { return mCurrent; }

    /// An empty title gives its line to the content.
    void setTitle(const UString& title);
    UString getTitle() const { return mTitle; }

    // Overrides

    bool keepsFirstLine() const override;
    UWidget* focusTarget() override;
    void childLeft(UWidget* child) override;
    void paint(UPainter& painter) override;

private:
    class TitleLine;

    TitleLine* mTitleLine;
    UWidget* mCurrent = nullptr;
    UString mTitle;
};

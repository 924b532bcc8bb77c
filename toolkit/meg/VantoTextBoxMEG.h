#pragma once

#include "UString.h"
#include "UWidget.h"

#include <vector>

/// A text that the user reads: wrapped at words and scrolled line by line with Up and Down.
///
/// Left and Right raise LeftPressed and RightPressed; scrolling is silent. Keys act when they are pressed.
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's.
class TOOLKIT_EXPORT VantoTextBoxMEG : public UWidget {
public:
    explicit VantoTextBoxMEG(UWidget* parent = nullptr);
    ~VantoTextBoxMEG() override;

    /// Shows another text from its first line on; with `keepPosition` the lines in view stay where they are, as
    /// far as the new text reaches.
    void setText(const UString& text, bool keepPosition);
    UString getText() const { return mText; }

    /// While set, the first paragraph stays on the first line, cut at the edge, and the rest scrolls below it. Where
    /// the first line is taken, only the rest is shown.
    void setTopLineSlidableOffAndTruncationOn(bool fixed);

    // Overrides

    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override { return isVisible() ? this : nullptr; }
    void paint(UPainter& painter) override;

private:
    int firstGlassLine() const;
    bool isTopLineShown() const;
    int furthestTop() const;
    int topInView() const;
    void wrap();
    void scrollTo(int line);

    UString mText;
    UString mTopLine;            // while it is fixed
    std::vector<UString> mLines; // what scrolls
    int mTop = 0;
    bool mIsTopLineFixed = false;
};

/// A text below a title line. An empty title gives its line to the text.
class TOOLKIT_EXPORT VantoTextBoxWithTitleMEG : public UWidget {
public:
    VantoTextBoxWithTitleMEG();
    ~VantoTextBoxWithTitleMEG() override;

    void setTitle(const UString& title);
    UString getTitle() const { return mTitle; }

    /// The box inside, which raises the events.
    VantoTextBoxMEG* textBox() const { return mTextBox; }

    UWidget* focusTarget() override { return isVisible() ? mTextBox->focusTarget() : nullptr; }
    bool keepsFirstLine() const override { return !mTitle.isEmpty() || isFirstLineTaken(); }
    void paint(UPainter& painter) override;

private:
    UString mTitle;
    VantoTextBoxMEG* mTextBox; // a child
};

/// A text of two lines, without a title.
class TOOLKIT_EXPORT VantoTextBox2LineMEG : public VantoTextBoxMEG { };

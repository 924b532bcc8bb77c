#pragma once

#include "TextBoxHalf.h"

#include <string>

namespace DisplayAPI {

/// The text box of two lines, on the GUI thread. Its titles are kept and not shown.
class TextBoxPrivate2Line final : public TextBoxHalf {
public:
    explicit TextBoxPrivate2Line(TextBox* parent);

    /// A box without a handle, with its text. The title and the numbers have no effect.
    TextBoxPrivate2Line(std::string title, std::string text, int maxSize, TextBox::TextBoxType type);

    void setTitle(const std::string&) override { }

    /// Taken over all the same, since the application can't know which box it has.
    void setTitle(TranslationInfo* title) override { mTitleInfo.take(title); }

    /// Empty.
    std::string getTitle() const override { return {}; }
    void setTopLineSlidableOffAndTruncationOn(bool on) override;

private:
    TextBoxPrivate2Line(TextBox* parent, VantoTextBoxMEG* widget);
};

}

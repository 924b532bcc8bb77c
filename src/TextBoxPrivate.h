#pragma once

#include "TextBoxHalf.h"

#include <string>

class VantoTextBoxWithTitleMEG;

namespace DisplayAPI {

/// The text box with a title line, on the GUI thread.
class TextBoxPrivate final : public TextBoxHalf {
public:
    explicit TextBoxPrivate(TextBox* parent);

    /// A box without a handle, with its title and its text. The numbers have no effect.
    TextBoxPrivate(std::string title, std::string text, int maxSize, TextBox::TextBoxType type);

    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    std::string getTitle() const override;
    void setTopLineSlidableOffAndTruncationOn(bool) override { }

private:
    explicit TextBoxPrivate(TextBox* parent, VantoTextBoxWithTitleMEG* widget);

    void localeChanged(std::string locale) override;
    void showTitle(const std::string& title);
    VantoTextBoxWithTitleMEG* titled() const;
};

}

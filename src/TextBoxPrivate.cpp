#include "TextBoxPrivate.h"

#include <VantoTextBoxMEG.h>

namespace DisplayAPI {

TextBoxPrivate::TextBoxPrivate(TextBox* parent, VantoTextBoxWithTitleMEG* widget)
    : TextBoxHalf(parent, widget, widget->textBox())
{
}

TextBoxPrivate::TextBoxPrivate(TextBox* parent)
    : TextBoxPrivate(parent, new VantoTextBoxWithTitleMEG)
{
    textBox()->setListener(this);
    initialise();
}

TextBoxPrivate::TextBoxPrivate(std::string title, std::string text, int, TextBox::TextBoxType)
    : TextBoxPrivate(nullptr, new VantoTextBoxWithTitleMEG)
{
    setText(text, false);
    setTitle(title);
    textBox()->show();
    textBox()->setListener(this);
    initialise();
}

VantoTextBoxWithTitleMEG* TextBoxPrivate::titled() const
{
    return textBox() ? static_cast<VantoTextBoxWithTitleMEG*>(textBox()->parentWidget()) : nullptr;
}

void TextBoxPrivate::setTitle(const std::string& title)
{
    showTitle(mTitleInfo.show(title));
    generateDisplayChangedEvent();
}

void TextBoxPrivate::setTitle(TranslationInfo* title)
{
    showTitle(mTitleInfo.showBare(title));
    generateDisplayChangedEvent();
}

std::string TextBoxPrivate::getTitle() const
{
    return titled() ? titled()->getTitle().toUTF8() : std::string();
}

void TextBoxPrivate::localeChanged(std::string)
{
    if (mTitleInfo)
        showTitle(mTitleInfo.string());
}

void TextBoxPrivate::showTitle(const std::string& title)
{
    if (titled())
        titled()->setTitle(UString(title));
}

}

#include "TextBoxPrivate2Line.h"

#include <UApplication.h>
#include <VantoTextBoxMEG.h>

namespace DisplayAPI {

TextBoxPrivate2Line::TextBoxPrivate2Line(TextBox* parent, VantoTextBoxMEG* widget)
    : TextBoxHalf(parent, widget, widget)
{
    if (VantoUApplication::getCurrentApplication())
        widget->setListener(this);
    initialise();
}

TextBoxPrivate2Line::TextBoxPrivate2Line(TextBox* parent)
    : TextBoxPrivate2Line(parent, new VantoTextBox2LineMEG)
{
}

TextBoxPrivate2Line::TextBoxPrivate2Line(std::string, std::string text, int, TextBox::TextBoxType)
    : TextBoxPrivate2Line(nullptr, new VantoTextBox2LineMEG)
{
    setText(text, false);
}

void TextBoxPrivate2Line::setTopLineSlidableOffAndTruncationOn(bool on)
{
    if (textBox())
        textBox()->setTopLineSlidableOffAndTruncationOn(on);
    generateDisplayChangedEvent();
}

}

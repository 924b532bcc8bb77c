#include "TextBoxHalf.h"

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "TellAndShow.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <VantoTextBoxMEG.h>

namespace DisplayAPI {

TextBoxHalf::TextBoxHalf(TextBox* parent, UWidget* widget, VantoTextBoxMEG* box)
    : mParent(parent)
    , mWidget(widget)
    , mBox(box)
{
    assertGuiThread();
}

TextBoxHalf::~TextBoxHalf()
{
    assertGuiThread();
    cleanup();
}

void TextBoxHalf::initialise()
{
    joinApplication(this);
}

void TextBoxHalf::cleanup()
{
    leaveApplication(this);
}

// Text

std::string TextBoxHalf::getText() const
{
    return textBox() ? textBox()->getText().toUTF8() : std::string();
}

void TextBoxHalf::setText(const std::string& text, bool keepPosition)
{
    if (textBox())
        textBox()->setText(UString(text), keepPosition);
    generateDisplayChangedEvent();
}

int TextBoxHalf::getSize()
{
    return static_cast<int>(getText().size());
}

// Life on the screen

void TextBoxHalf::show()
{
    if (mWidget)
        mWidget->show();
}

void TextBoxHalf::hide()
{
    if (mWidget)
        mWidget->hide();
    generateDisplayChangedEvent();
}

// What the user does

void TextBoxHalf::event(UEvent* event)
{
    switch (event->type) {
    case EventType::LeftPressed: leftEvent(); break;
    case EventType::RightPressed: rightEvent(); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

void TextBoxHalf::leftEvent()
{
    tellAndShow(*this, TextBox::BACK_COMMAND(), mParent);
}

// Screen text

std::string TextBoxHalf::serialise()
{
    return mWidget ? DisplayablePrivate::serialise() : std::string();
}

std::string TextBoxHalf::serialise(const std::vector<Rect>&)
{
    return {};
}

}

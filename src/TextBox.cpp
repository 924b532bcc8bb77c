#include <DisplayAPI/Command.h>
#include <DisplayAPI/TextBox.h>
#include <DisplayAPI/TextBoxPrivateIfc.h>

#include "CurrentApplication.h"
#include "LastingCommand.h"
#include "Road.h"
#include "TextBoxPrivate.h"
#include "TextBoxPrivate2Line.h"

namespace DisplayAPI {

enum class TextBox::Request : int {
    Create = 0,
    Destroy = 1,
    GetText = 2,
    SetText = 3,
    SetTranslation = 4,
    GetSize = 5,
    SetMaxSize = 6,
    GetMaxSize = 7,
    Clear = 8,
    Hide = 9,
    SetTitleText = 10,
    SetTitleTranslation = 11,
    SetTopLineSlidableOffAndTruncationOn = 12,
};

namespace {

constexpr int TitleOnlyVariant = 1; // of the hardware
constexpr int MaxSize = 100;

}

TextBox::TextBox(bool twoLines)
{
    if (Road::wait(this, Request::Create, twoLines))
        create(twoLines);
}

TextBox::~TextBox()
{
    destroy();
}

void TextBox::create(bool twoLines)
{
    mName = "TextBox";
    if (twoLines)
        mPrivate = std::make_unique<TextBoxPrivate2Line>(this);
    else
        mPrivate = std::make_unique<TextBoxPrivate>(this);
}

void TextBox::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* TextBox::getPrivateImpl()
{
    return mPrivate.get();
}

// Text

std::string TextBox::getText() const
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::GetText, result(text)))
        text = half->getText();
    return text;
}

void TextBox::setText(const std::string& text, bool keepPosition)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetText, text, keepPosition))
        half->setText(text, keepPosition);
}

void TextBox::setText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTranslation, text))
        half->setText(text);
}

int TextBox::getSize() const
{
    int bytes = -1;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSize, result(bytes)))
        bytes = half->getSize();
    return bytes;
}

void TextBox::setMaxSize(int bytes)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetMaxSize, bytes))
        half->setMaxSize(bytes);
}

int TextBox::getMaxSize() const
{
    int bytes = MaxSize;
    if (auto* half = Road::wait(this, mPrivate, Request::GetMaxSize, result(bytes)))
        bytes = half->getMaxSize();
    return bytes;
}

void TextBox::clear()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Clear))
        half->clear();
}

void TextBox::setTopLineSlidableOffAndTruncationOn(bool on)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTopLineSlidableOffAndTruncationOn, on))
        half->setTopLineSlidableOffAndTruncationOn(on);
}

// Title

void TextBox::setTitle(const std::string& title)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTitleText, title))
        half->setTitle(title);
}

void TextBox::setTitle(TranslationInfo* title)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTitleTranslation, given(title)))
        half->setTitle(title);
}

// Life on the screen

void TextBox::hide()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Hide))
        half->hide();
}

// Listeners: a list of the half that any thread may change

void TextBox::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

void TextBox::removeCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->removeCommandListener(listener);
}

Command* TextBox::BACK_COMMAND()
{
    static Command* command = lastingCommand(Command::Back);
    return command;
}

Command* TextBox::RIGHT_COMMAND()
{
    static Command* command = lastingCommand(Command::Right);
    return command;
}

Command* TextBox::SELECT_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

// Without effect on this telephone

void TextBox::insert(std::string&, int) { }

void TextBox::setReadOnlyMode(bool) { }

void TextBox::setTextBoxType(TextBoxType) { }

void TextBox::hideOptionsItem() { }

void TextBox::addCommand(Command*) { }

bool TextBox::getReadOnlyMode() const
{
    return false;
}

int TextBox::getCaretPosition() const
{
    return 0;
}

TextBox::TextBoxType TextBox::getTextBoxType() const
{
    return mType;
}

void TextBox::setTicker(Ticker* ticker)
{
    mTicker = ticker;
}

Ticker* TextBox::getTicker() const
{
    return mTicker;
}

// Road across threads

void TextBox::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    // The hardware has its say on this road only.
    case Request::Create: create(event.boolParam1 && currentHardwareVariant() != TitleOnlyVariant); break;
    case Request::Destroy: destroy(); break;
    case Request::GetText: answer(event.stringResult, getText()); break;
    case Request::SetText: setText(text, event.boolParam1); break;
    case Request::SetTranslation: setText(translation); break;
    case Request::GetSize: answer(event.intResult, getSize()); break;
    case Request::SetMaxSize: setMaxSize(event.intParam1); break;
    case Request::GetMaxSize: answer(event.intResult, getMaxSize()); break;
    case Request::Clear: clear(); break;
    case Request::Hide: hide(); break;
    case Request::SetTitleText: setTitle(text); break;
    case Request::SetTitleTranslation: setTitle(translation); break;
    case Request::SetTopLineSlidableOffAndTruncationOn: setTopLineSlidableOffAndTruncationOn(event.boolParam1); break;
    }
    signalComplete(event);
}

}

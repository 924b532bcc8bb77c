#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupTextField.h>
#include <DisplayAPI/PopupTextFieldPrivateIfc.h>

#include "LastingCommand.h"
#include "PopupTextFieldPrivate.h"
#include "Road.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class PopupTextField::Request : int {
    Create = 0,
    Destroy = 1,
    GetText = 2,
    ClearText = 3,
    AddCommand = 4,
    ClearCommands = 5,
    SetDefaultCommand = 6,
    Dismiss = 7,
    SetLabel = 8,
    SetFieldType = 9,
    SetTimeout = 10,
    SetTextEditMode = 11,
    GetTextEditMode = 12,
};

/// Not a request: the notice of a listener that another thread has taken out.
class PopupTextField::ListenerLeft final : public GuiRequestEvent {
public:
    explicit ListenerLeft(PopupTextField* popup)
        : GuiRequestEvent(popup, -1)
    {
    }
};

PopupTextField::PopupTextField(TextField* field, bool flag)
{
    create(field, flag);
}

PopupTextField::~PopupTextField()
{
    destroy();
}

void PopupTextField::create(TextField* field, bool flag)
{
    if (!Road::wait(this, Request::Create, field, flag))
        return;
    mName = "PopupTextField";
    mPrivate = std::make_unique<PopupTextFieldPrivate>(this, field);
}

void PopupTextField::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* PopupTextField::getPrivateImpl()
{
    return mPrivate.get();
}

// Text

std::string PopupTextField::getText()
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::GetText, result(text)))
        text = half->getText();
    return text;
}

void PopupTextField::clearText()
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearText))
        half->clearText();
}

void PopupTextField::setLabel(TranslationInfo* label)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLabel, given(label)))
        half->setLabel(label);
}

void PopupTextField::setFieldType(const TextField::FieldType& type)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetFieldType, type))
        half->setFieldType(type);
}

void PopupTextField::setTextEditMode(PopupTextFieldPrivateIfc::editMode mode)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTextEditMode, mode))
        half->setTextEditMode(mode);
}

PopupTextFieldPrivateIfc::editMode PopupTextField::getTextEditMode()
{
    int mode = PopupTextFieldPrivateIfc::Capitalised;
    if (auto* half = Road::wait(this, mPrivate, Request::GetTextEditMode, result(mode)))
        mode = half->getTextEditMode();
    return static_cast<PopupTextFieldPrivateIfc::editMode>(mode);
}

// Choices

void PopupTextField::addCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AddCommand, command))
        half->addCommand(command);
}

void PopupTextField::clearCommands()
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearCommands))
        half->clearCommands();
}

void PopupTextField::setDefaultCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetDefaultCommand, command))
        half->setDefaultCommand(command);
}

// Life on the screen

void PopupTextField::dismiss()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Dismiss))
        half->dismiss();
}

void PopupTextField::setTimeout(int milliseconds)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTimeout, milliseconds))
        half->setTimeout(milliseconds);
}

// Listeners: no requests. Any thread may join or leave.

void PopupTextField::addItemStateListener(ItemStateListener* listener)
{
    if (mPrivate)
        mPrivate->addItemStateListener(listener);
}

void PopupTextField::removeItemStateListener(ItemStateListener*) { }

void PopupTextField::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

void PopupTextField::removeCommandListener(CommandListener* listener)
{
    if (!mPrivate || !listener)
        return;
    // Its notice is the GUI thread's to give.
    const bool isElsewhere = !isGuiThread();
    mPrivate->removeCommandListener(listener);
    if (isElsewhere)
        postEventAsync(new ListenerLeft(this));
}

MenuCommand* PopupTextField::HIDDEN_COMMAND()
{
    static MenuCommand* command = lastingHiddenCommand();
    return command;
}

// Road across threads

void PopupTextField::processGuiRequest(GuiRequestEvent& event)
{
    auto* command = static_cast<MenuCommand*>(event.ptrParam1);

    if (dynamic_cast<ListenerLeft*>(&event)) {
        if (mPrivate)
            mPrivate->generateDisplayChangedEvent();
        return;
    }
    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(static_cast<TextField*>(event.ptrParam1), event.boolParam1); break;
    case Request::Destroy: destroy(); break;
    case Request::GetText: answer(event.stringResult, getText()); break;
    case Request::ClearText: clearText(); break;
    case Request::AddCommand: addCommand(command); break;
    case Request::ClearCommands: clearCommands(); break;
    case Request::SetDefaultCommand: setDefaultCommand(command); break;
    case Request::Dismiss: dismiss(); break;
    case Request::SetLabel: setLabel(static_cast<TranslationInfo*>(event.ptrParam1)); break;
    case Request::SetFieldType: setFieldType(static_cast<TextField::FieldType>(event.intParam1)); break;
    case Request::SetTimeout: setTimeout(event.intParam1); break;
    case Request::SetTextEditMode:
        setTextEditMode(static_cast<PopupTextFieldPrivateIfc::editMode>(event.intParam1));
        break;
    case Request::GetTextEditMode: answer(event.intResult, getTextEditMode()); break;
    }
    signalComplete(event);
}

}

#include <DisplayAPI/Form.h>
#include <DisplayAPI/TextField.h>
#include <DisplayAPI/TextFieldPrivateIfc.h>

#include "Road.h"
#include "TextFieldPrivate.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class TextField::Request : int {
    Create = 0,
    Destroy = 1,
    Size = 2,
    GetString = 3,
    SetString = 4,
    SetLabel = 5,
    GetLabel = 6,
    SetIcon = 7,
    SetFieldType = 8,
    SetMaxFieldLength = 9,
    SetInformAppOnOk = 10,
    SetReadOnlyMode = 11,
    GetReadOnlyMode = 12,
    LocaleChanged = 13,
};

std::atomic<unsigned int> TextField::itemCount = 0;

TextField::TextField(TranslationInfo* label, IconImage icon, TranslationInfo* value, FieldType type, bool flag)
    : mID(++itemCount)
    , mIcon(icon)
    , mFieldType(type)
{
    mName = "TextField";
    create(label, icon, value, type, flag);
}

TextField::~TextField()
{
    destroy();
}

void TextField::create(TranslationInfo* label, IconImage icon, TranslationInfo* value, FieldType type, bool flag)
{
    if (Road::wait(this, Request::Create, given(label), icon, given(value), type, flag))
        mPrivate = std::make_unique<TextFieldPrivate>(this, label, icon, value, type, flag);
}

void TextField::destroy()
{
    // On the GUI thread alone: a popup that has found the field alive goes on with it until its step ends.
    if (isGuiThread())
        Numbered<TextField>::leave();
    Road::end(this, mPrivate, Request::Destroy);
}

ItemPrivateIfc* TextField::getPrivateImpl()
{
    return static_cast<TextFieldPrivate*>(mPrivate.get());
}

// Value

int TextField::size()
{
    int units = 0;
    if (auto* half = Road::wait(this, mPrivate, Request::Size, result(units)))
        units = half->size();
    return units;
}

std::string TextField::getString()
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::GetString, result(text)))
        text = half->getString();
    return text;
}

void TextField::setString(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetString, text))
        half->setString(text);
}

void TextField::setString(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetString, given(text)))
        half->setString(text);
}

// Label

void TextField::setLabel(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLabel, text))
        half->setLabel(text);
}

void TextField::setLabel(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLabel, given(text)))
        half->setLabel(text);
}

std::string TextField::getLabel()
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::GetLabel, result(text)))
        text = half->getLabel();
    return text;
}

void TextField::setIcon(IconImage icon)
{
    mIcon = icon;
    if (auto* half = Road::wait(this, mPrivate, Request::SetIcon, icon))
        half->setIcon(icon);
}

// What the user may do

void TextField::setFieldType(FieldType type)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetFieldType, type))
        half->setFieldType(type);
}

void TextField::setMaxFieldLength(int characters)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetMaxFieldLength, characters))
        half->setMaxFieldLength(characters);
}

void TextField::setInformAppOnOk(Command* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetInformAppOnOk, command))
        half->setInformAppOnOk(command);
}

void TextField::setInformAppOnOk(bool inform)
{
    setInformAppOnOk(inform ? OK_COMMAND() : nullptr);
}

void TextField::setReadOnlyMode(bool readOnly)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetReadOnlyMode, readOnly))
        half->setReadOnlyMode(readOnly);
}

bool TextField::getReadOnlyMode()
{
    bool isReadOnly = false;
    if (auto* half = Road::wait(this, mPrivate, Request::GetReadOnlyMode, result(isReadOnly)))
        isReadOnly = half->getReadOnlyMode();
    return isReadOnly;
}

void TextField::localeChanged(std::string locale)
{
    if (auto* half = Road::wait(this, mPrivate, Request::LocaleChanged, locale))
        half->localeChanged(locale);
}

// Road across threads

void TextField::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    const int number = event.intParam1;

    switch (static_cast<Request>(event.getType())) {
    case Request::Create:
        create(translation, static_cast<IconImage>(number), static_cast<TranslationInfo*>(event.ptrParam2),
            static_cast<FieldType>(event.intParam2), event.boolParam1);
        break;
    case Request::Destroy: destroy(); break;
    case Request::Size: answer(event.intResult, size()); break;
    case Request::GetString: answer(event.stringResult, getString()); break;
    case Request::SetString: translation ? setString(translation) : setString(text); break;
    case Request::SetLabel: translation ? setLabel(translation) : setLabel(text); break;
    case Request::GetLabel: answer(event.stringResult, getLabel()); break;
    case Request::SetIcon: setIcon(static_cast<IconImage>(number)); break;
    case Request::SetFieldType: setFieldType(static_cast<FieldType>(number)); break;
    case Request::SetMaxFieldLength: setMaxFieldLength(number); break;
    case Request::SetInformAppOnOk: setInformAppOnOk(static_cast<Command*>(event.ptrParam1)); break;
    case Request::SetReadOnlyMode: setReadOnlyMode(event.boolParam1); break;
    case Request::GetReadOnlyMode: answer(event.boolResult, getReadOnlyMode()); break;
    case Request::LocaleChanged: localeChanged(text); break;
    }
    signalComplete(event);
}

}

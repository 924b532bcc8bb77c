#include "TextFieldPrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "ItemHolder.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <cstddef>
#include <iterator>

namespace DisplayAPI {

namespace {

/// What a type means to the toolkit's row.
struct Kind {
    int number;
    bool leavesPassword = true; // makes an ordinary row of a password row
};

constexpr Kind Kinds[] = {{0}, {1}, {2}, {3}, {1, false}, {1, false}, {FormItemIfc::PasswordField, false}, {5, false},
    {6}, {1, false}, {12}, {11}};
constexpr Kind OtherKind = {1, false};

/// Types whose row is made without the flag.
constexpr int TypeWithoutFlag = 10;

Kind kindOf(TextField::FieldType type)
{
    const auto index = static_cast<std::size_t>(type);
    return index < std::size(Kinds) ? Kinds[index] : OtherKind;
}

FormItemMEG* makeRow(const std::string& label, const std::string& value, TextField::FieldType type, bool flag)
{
    if (type == TextField::Password)
        return new PasswordFormItemMEG(UString(label), UString(value));
    const auto kind = static_cast<FormItemIfc::FieldType>(kindOf(type).number);
    return new FormItemMEG(UString(label), UString(value), kind, flag && type != TypeWithoutFlag);
}

std::string complete(const TranslationInfo* text)
{
    return text ? text->getCompleteString() : std::string();
}

}

TextFieldPrivate::TextFieldPrivate(Item* owner, TranslationInfo* label, TextField::IconImage icon,
    TranslationInfo* value, TextField::FieldType type, bool flag)
    : mOwner(owner)
    , mRow(makeRow(complete(label), complete(value), type, flag))
    , mIcon(icon)
    , mIsPassword(type == TextField::Password)
{
    assertGuiThread();
    mLabelInfo.take(label);
    mValueInfo.take(value);
    joinApplication(this);
}

TextFieldPrivate::~TextFieldPrivate()
{
    assertGuiThread();
    leaveApplication(this);
}

// Value and label

UString TextFieldPrivate::valueText() const
{
    const FormValueMEG* value = mRow ? mRow->getValue() : nullptr;
    return value ? value->getText() : UString();
}

void TextFieldPrivate::showValue(const std::string& text)
{
    if (mRow)
        mRow->setValueText(UString(text));
}

std::string TextFieldPrivate::getLabel()
{
    return mRow ? mRow->getLabel().toUTF8() : std::string();
}

void TextFieldPrivate::showLabel(const std::string& text)
{
    if (mRow)
        mRow->setLabel(UString(text));
}

void TextFieldPrivate::localeChanged(std::string)
{
    if (mValueInfo)
        showValue(mValueInfo.completeString());
    if (mLabelInfo)
        showLabel(mLabelInfo.completeString());
}

void TextFieldPrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged({});
}

// What the user may do

void TextFieldPrivate::setFieldType(TextField::FieldType type)
{
    if (!mRow)
        return;
    const Kind kind = kindOf(type);
    const auto number = static_cast<FormItemIfc::FieldType>(kind.number);
    if (type == TextField::Password) {
        if (!mIsPassword)
            switchToPassword();
    } else if (mIsPassword && kind.leavesPassword) {
        switchFromPassword(number);
    } else {
        mRow->setFieldType(number);
    }
}

void TextFieldPrivate::switchToPassword()
{
    mIsPassword = true;
    exchangeRow(std::make_unique<PasswordFormItemMEG>(mRow->getLabel(), valueText()));
}

void TextFieldPrivate::switchFromPassword(FormItemIfc::FieldType kind)
{
    mIsPassword = false;
    exchangeRow(std::make_unique<FormItemMEG>(mRow->getLabel(), valueText(), kind, false));
}

/// Whoever owned the old row owns the new one.
void TextFieldPrivate::exchangeRow(std::unique_ptr<FormItemMEG> row)
{
    if (ItemHolder* holder = mOwner ? mOwner->holder() : nullptr)
        holder->exchangeRow(*mRow, *row);
    const std::unique_ptr<FormItemMEG> before(mRow);
    mRow = row.release();
    if (mOwnership.hasOwnership())
        mOwnership.gainOwnership();
    else
        mOwnership.releaseOwnership();
}

void TextFieldPrivate::setMaxFieldLength(int characters)
{
    if (mRow)
        mRow->setMaxFieldLength(characters);
}

void TextFieldPrivate::setInformAppOnOk(Command* command)
{
    if (mRow)
        mRow->setInformAppOnOk(command != nullptr);
}

void TextFieldPrivate::setReadOnlyMode(bool readOnly)
{
    if (mRow)
        mRow->setReadOnlyMode(readOnly);
}

bool TextFieldPrivate::getReadOnlyMode()
{
    return mRow && mRow->getReadOnlyMode();
}

}

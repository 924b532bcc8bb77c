#pragma once

#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/TextFieldPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <FormItemMEG.h>

#include <memory>
#include <string>

namespace DisplayAPI {

/// A text field on the GUI thread: a FormItemMEG, or a PasswordFormItemMEG while its type is a password's.
///
/// The tree of a form that holds the row may delete it; then everything here is without effect.
class TextFieldPrivate final : public TextFieldPrivateIfc, public ItemPrivateIfc {
public:
    /// Takes both translations over. `owner` tells which form has the row; null for one that no handle stands for.
    TextFieldPrivate(Item* owner, TranslationInfo* label, TextField::IconImage icon, TranslationInfo* value,
        TextField::FieldType type, bool flag);
    ~TextFieldPrivate() override;

    // Value and label

    void setString(const std::string& text) override { showValue(mValueInfo.show(text)); }
    void setString(TranslationInfo* text) override { showValue(mValueInfo.show(text)); }
    std::string getString() override { return valueText().toUTF8(); }
    int size() override { return static_cast<int>(valueText().length()); }
    void setLabel(const std::string& text) override { showLabel(mLabelInfo.show(text)); }
    void setLabel(TranslationInfo* text) override { showLabel(mLabelInfo.show(text)); }
    std::string getLabel() override;
    void setIcon(TextField::IconImage icon) override { mIcon = icon; }
    TextField::IconImage getIcon() const { return mIcon; }

    // What the user may do

    void setFieldType(TextField::FieldType type) override;
    void setMaxFieldLength(int characters) override;
    void setInformAppOnOk(Command* command) override;
    void setReadOnlyMode(bool readOnly) override;
    bool getReadOnlyMode() override;

    void localeChanged(std::string locale) override;
    void event(UEvent* event) override;

    // Ownership

    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    FormItemIfc* getWidget() override { return mRow; }
    FormItemMEG* getFormItem() const { return mRow; }

private:
    UString valueText() const;
    void showValue(const std::string& text);
    void showLabel(const std::string& text);
    void switchToPassword();
    void switchFromPassword(FormItemIfc::FieldType kind);
    void exchangeRow(std::unique_ptr<FormItemMEG> row);

    Item* mOwner;
    FormItemMEG* mRow; // null once a form that owned it has deleted it
    TextField::IconImage mIcon;
    TranslationHolder mLabelInfo;
    TranslationHolder mValueInfo;
    bool mIsPassword = false;
    OwnershipDelegate<FormItemMEG> mOwnership{&mRow};
};

}

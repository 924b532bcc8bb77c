#pragma once

#include "Export.h"
#include "UString.h"

class ContextMenuMEG;

/// A row of a form, as the library hands it about: what it asks of a row without knowing its class.
///
/// Every row of a form is a FormItemMEG; whoever must have that casts with static_cast, and only while the row
/// lives. Threads: GUI thread only. Nobody deletes through this interface.
class TOOLKIT_EXPORT FormItemIfc {
public:
    /// The kind of a row, which decides what the user may type. Kinds without a name take any text.
    enum FieldType : int {
        AnyText = 0,
        NumberField = 2,    ///< Digits only.
        DialField = 3,      ///< Digits only.
        PasswordField = 4,  ///< What a password row answers, whatever was set.
        SelectionField = 7, ///< A choice from a list.
        CommandField = 10,  ///< A label alone.
    };

    /// The text of the value. Setting it is silent.
    virtual void setValueText(const UString& text) = 0;
    virtual UString valueText() const = 0;

    virtual void setFieldType(FieldType type) = 0;
    virtual FieldType getFieldType() const = 0;

    /// The attached list of choices, or null.
    virtual ContextMenuMEG* selectionList() const = 0;

protected:
    FormItemIfc() = default;
    FormItemIfc(const FormItemIfc&) = delete;
    FormItemIfc& operator=(const FormItemIfc&) = delete;
    ~FormItemIfc() = default;
};

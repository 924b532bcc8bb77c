#pragma once

#include <DisplayAPI/TextField.h>

#include <UAgent.h>

class FormItemIfc;

namespace DisplayAPI {

/// The half of a text field on the GUI thread, as its handle sees it: an operation for each request.
///
/// Threads: GUI thread only.
/// Ownership: the handle owns it. It owns the toolkit's row while no form does, and the translations that it is given.
/// Errors: when the row has been deleted by a form that owned it, every operation is without effect.
class DISPLAYAPI_EXPORT TextFieldPrivateIfc : public UAgent {
public:
    // Value and label. Null is an empty text; the same translation again is read again.

    virtual void setString(const std::string& text) = 0;
    virtual void setString(TranslationInfo* text) = 0;
    virtual std::string getString() = 0;
    virtual int size() = 0;
    virtual void setLabel(const std::string& text) = 0;
    virtual void setLabel(TranslationInfo* text) = 0;
    virtual std::string getLabel() = 0;
    virtual void setIcon(TextField::IconImage icon) = 0;

    // What the user may do

    /// A change to or from a password makes another row, which takes the place of the old one in its form.
    virtual void setFieldType(TextField::FieldType type) = 0;
    virtual void setMaxFieldLength(int characters) = 0;
    virtual void setInformAppOnOk(Command* command) = 0;
    virtual void setReadOnlyMode(bool readOnly) = 0;
    virtual bool getReadOnlyMode() = 0;

    virtual void localeChanged(std::string locale) = 0;

    // Ownership

    /// A form's widget has taken the row.
    virtual void releaseOwnership() = 0;

    /// The row stands in no form any more.
    virtual void gainOwnership() = 0;

    /// The toolkit's row; null once it has gone.
    virtual FormItemIfc* getWidget() = 0;
};

}

#pragma once

#include <DisplayAPI/Item.h>

#include <atomic>
#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class TextFieldPrivateIfc;

/// A row of a form in which the user writes a text: a label above a value.
///
/// Its type decides what the keys write and whether the value is shown. It may change at any time, also while the field
/// stands in a form: label and value stay, and at a change to or from a password read-only mode, maximum length and
/// setInformAppOnOk() begin anew.
///
/// Threads: any. Each call returns after it has run on the GUI thread.
/// Ownership: a field belongs to the application until a form takes it; then to the form, until the form gives it back.
/// A field that is deleted while it stands in a form leaves that form first. Translations handed in become the field's.
/// Errors: a field that was made after the event loop had ended ignores every call, and no form takes it.
/// Screen text: a subitem FormItem of its form, while it is highlighted. A password is written as asterisks.
class DISPLAYAPI_EXPORT TextField : public Item, public Numbered<TextField> {
public:
    /// A picture beside the label, by number. It is kept and given back; this telephone shows none.
    enum IconImage : int {};

    /// What the user may write. The numbers from 0 to 11 all make a field; those without a name, and any other number,
    /// take every text.
    enum FieldType : int {
        AnyText = 0,
        Number = 2,     ///< Digits only.
        DialNumber = 3, ///< Digits, and the steps of a number that the telephone dials by itself.
        Password = 6,   ///< Hidden on the glass and in the screen text.
    };

    /// Label and value follow the locale; null is an empty text. The flag goes to the toolkit's row, which keeps it.
    TextField(TranslationInfo* label, IconImage icon, TranslationInfo* value, FieldType type, bool flag);

    /// Waits until the field has gone from the GUI thread.
    ~TextField() override;

    /// True while the field lives; false for null. The pointer is not followed. Threads: any.
    using Numbered<TextField>::exists;
    using Numbered<TextField>::numberOf;
    using Numbered<TextField>::all;

    // Value

    /// The length of the value in 16-bit units; a character above U+FFFF has two.
    int size();

    /// The value in UTF-8, a password in clear.
    std::string getString();

    /// A plain text stays as it is at a change of locale.
    void setString(const std::string& text);

    /// A text that follows the locale; null is an empty one.
    void setString(TranslationInfo* text);

    // Label

    void setLabel(const std::string& text);
    void setLabel(TranslationInfo* text);
    std::string getLabel();

    /// Kept, and not shown. getIcon() answers it at once.
    void setIcon(IconImage icon);

    /// Threads: any, without waiting.
    IconImage getIcon() const { return mIcon; }

    // What the user may do

    void setFieldType(FieldType type);

    /// The type of the constructor, whatever has been set since. Threads: any, without waiting.
    FieldType getFieldType() const { return mFieldType; }

    /// The most characters that the user can write; 0 or less for no limit. A longer text stays.
    void setMaxFieldLength(int characters);

    /// With a command, OK on the field tells the application (Form::OK_COMMAND()) and opens nothing; with null it
    /// opens the text. The command is not kept.
    void setInformAppOnOk(Command* command);
    void setInformAppOnOk(bool inform);

    /// A read-only field stands in brackets and can't be edited. setReadOnly() of the base is without effect here.
    void setReadOnlyMode(bool readOnly);
    bool getReadOnlyMode();

    // Item

    /// "Textfield".
    const char* getType() override { return "Textfield"; }

    /// The number of the field among all that were ever made, from 1.
    unsigned int getID() override { return mID; }
    ItemPrivateIfc* getPrivateImpl() override;

    /// Reads the translations again. The form does this too.
    void localeChanged(std::string locale) override;

    void processGuiRequest(GuiRequestEvent& event) override;

private:
    enum class Request : int;

    void create(TranslationInfo* label, IconImage icon, TranslationInfo* value, FieldType type, bool flag);
    void destroy();

    static std::atomic<unsigned int> itemCount;

    std::unique_ptr<TextFieldPrivateIfc> mPrivate;
    const unsigned int mID;
    std::atomic<IconImage> mIcon;
    const FieldType mFieldType;
};

}

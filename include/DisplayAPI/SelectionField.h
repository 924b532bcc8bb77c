#pragma once

#include <DisplayAPI/Item.h>
#include <DisplayAPI/PhonebookItem.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Form;
class MenuCommand;
class SelectionFieldPrivateIfc;

/// A row of a form that offers a choice: a label, the value, and a list of choices that slides in on OK or Right.
///
/// The choices are commands, in the order in which they were added, and below them a row that leads back. Choosing one
/// makes its text the value; the form then tells its item-state listeners, and SELECTION_CHANGED_COMMAND() to its
/// command listeners. The commands themselves are posted to nobody.
///
/// Threads: any, but for localeChanged(). Each call returns after it has run on the GUI thread.
/// Ownership: the application's, until a form takes it; the label becomes the field's, commands stay the application's
/// and may die at any time.
/// Errors: a null or deleted command is ignored. A field that was made without a form or without an application has no
/// list of choices; one that was made after the event loop had ended changes nothing and answers what stands at each
/// call.
/// Screen text: a subitem "FormItem" of its form, and "VantoListBoxItem" while the list is in.
class DISPLAYAPI_EXPORT SelectionField : public Item {
public:
    /// The command gives the first value, and is no choice by that. Without a form, any, there is no list of choices.
    /// Icon type and flag have no effect.
    SelectionField(TranslationInfo* label, PhonebookItem::IconType iconType, MenuCommand* value, Form* form, bool flag);
    SelectionField(TranslationInfo* label, MenuCommand* value, Form* form, bool flag);
    ~SelectionField() override;

    // Value

    /// Shows the command's text as the value, whatever is selected.
    void setFieldContents(MenuCommand* command);

    /// Makes the choice at an index, from 0, the value. An index without a choice is kept and changes no value.
    void setSelectionIndex(int index);

    /// The index of the choice that was selected last; -1 before that, and where there is no answer.
    int getSelectionIndex();

    /// Makes the choice with this command the value. A command that is no choice is kept and changes no value.
    void setSelectionCommand(MenuCommand* command);

    /// The command of the choice that was selected last; null before that, and when the command has died.
    MenuCommand* getSelectionCommand();

    // Choices

    /// Adds a choice at the end. Its texts are read now, and again at a change of locale.
    void appendSelection(MenuCommand* command);

    /// Takes all choices away, and shows the command's text as the value, or none for null.
    void clearSelections(MenuCommand* command);

    /// The row of the list that is current, from 0; 0 without a list.
    int getHighlightedIndex() const;

    /// Whether the list opens on the choice that is the value, as at first, or on its first row.
    void displayCurrentSelection(bool display);

    // Label and state

    /// Shows another label until the locale changes: a field that was made with one then shows that again.
    void setLabel(const std::string& label);

    /// While set, OK on the row tells the form's command listeners and opens nothing.
    void setInformAppOnOk(bool inform);

    /// A read-only field can't be changed by the user.
    void setReadOnlyMode(bool readOnly);
    bool getReadOnlyMode();

    // Without effect on this telephone

    /// Always empty.
    std::string getLabel();

    /// Always empty.
    std::vector<MenuCommand*> getCommands() const;
    void setContextMenuSuppressed();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;

    /// The half of a form's field, or null until it has been made.
    ItemPrivateIfc* getPrivateImpl() override;

    /// Reads label and choices again; the form calls it. Threads: GUI thread.
    void localeChanged(std::string locale) override;

    /// How many fields of this kind have been made.
    static std::atomic<unsigned int> itemCount;

private:
    enum class Request : int;

    void create(TranslationInfo* label, MenuCommand* value, Form* form);
    void destroy();

    const char* mType = "Selectionfield"; // type and id have no reader
    [[maybe_unused]] unsigned int mId = itemCount++;
    std::unique_ptr<SelectionFieldPrivateIfc> mPrivate;
};

}

#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/Living.h>
#include <DisplayAPI/SelectionFieldPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <FormItemMEG.h>

#include <memory>
#include <vector>

class VantoListBoxMEG;

namespace DisplayAPI {

class Form;

/// The field with choices on the GUI thread: a FormItemMEG with a ContextMenuMEG as its list of choices.
///
/// A form that holds the row may delete it; then everything here changes nothing that can be seen.
class SelectionFieldPrivate final : public SelectionFieldPrivateIfc, public ItemPrivateIfc {
public:
    /// Takes the label over; null is an empty one. Without a form there is no list.
    SelectionFieldPrivate(TranslationInfo* label, MenuCommand* value, Form* form);
    ~SelectionFieldPrivate() override;

    // Value

    void setFieldContents(MenuCommand* command) override;
    void setSelectionIndex(int index) override;
    int getSelectionIndex() override;
    void setSelectionCommand(const MenuCommand* command) override;
    MenuCommand* getSelectionCommand() override;

    // Choices

    void appendSelection(MenuCommand* command) override;
    void clearSelections(MenuCommand* command) override;
    int getHighlightedIndex() override;
    void displayCurrentSelection(bool display) override;

    // Label and state

    void setLabel(const std::string& label) override;
    void localeChanged(std::string locale) override;
    void setInformAppOnOk(bool inform) override;
    void setReadOnlyMode(bool readOnly) override;
    bool getReadOnlyMode() override;

    // Life in a form

    FormItemIfc* getWidget() override { return mRow; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }

    /// The row stands in no form any more.
    void gainOwnership() { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }

    // Without effect on this telephone

    void setLabelText(const std::string&) { }
    void clearAll() { }

private:
    void init(const Form* form, bool hasBackRow);
    VantoListBoxMEG* list() const;
    void showValue(const std::string& value);
    Living<Command> selection() const;
    void forgetDeadAt(const MenuCommand* address);

    TranslationHolder mLabelInfo;
    std::unique_ptr<Command> mBackCommand;
    std::vector<Living<Command>> mChoices; // one for each row of the list, in their order
    Living<Command> mSelected;             // by setSelectionCommand(), or before the choices were cleared
    FormItemMEG* mRow;
    OwnershipDelegate<FormItemMEG> mOwnership{&mRow};
};

}

#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/FormPrivateIfc.h>
#include <DisplayAPI/Item.h>
#include <DisplayAPI/Living.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <FormItemMEG.h>
#include <FormWidgetMEG.h>

#include <map>
#include <string>
#include <vector>

class ContextMenuMEG;
class VantoListBoxMEG;

namespace DisplayAPI {

class FormPrivate;
class ScreenTextWriter;

/// Where a changed row goes, to find its item.
class SlotItemObject final : public UWidget {
public:
    explicit SlotItemObject(FormPrivate& form)
        : mForm(form)
    {
    }

    /// Tells the item-state listeners of every form that has this row.
    void slotFunc(FormItemMEG* row);

private:
    FormPrivate& mForm;
};

/// The form on the GUI thread: a FormWidgetMEG with a row for each item and each command.
///
/// The texts of the text input stand in FormPrivateSpeller, the screen text in FormPrivateText.
class FormPrivate final : public FormPrivateIfc {
public:
    explicit FormPrivate(Form::FormProportionType proportion);
    ~FormPrivate() override;

    void setParent(Form* parent) { mParent = parent; }
    Form* getParent() const { return mParent; }

    // Items

    void append(ItemPrivateIfc* item) override;
    void insertItem(ItemPrivateIfc* item, int index) override;
    void saveItemRef(Item* item, FormItemIfc* row, int index) override;
    void removeItemRef(unsigned int index) override;
    void removeItem(unsigned int index) override;
    void dropItem(Item* item, ItemPrivateIfc* half) override;
    void exchangeRow(FormItemMEG& before, FormItemMEG& now) override;
    Item* getSelected() override;
    void setSelected(Item* item) override;

    // Commands and listeners. One that is added twice is told twice, and stays until it dies

    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }
    void removeCommandListener(CommandListener*) override { }
    void clearCommandListeners() override { }
    std::vector<CommandListener*> getCommandListeners() const { return mCommandListeners.all(); }
    void addCommand(Command* command) override;
    void clearCommands() override;

    // Texts

    void setTitle(std::string title) override;
    void setTitle(TranslationInfo* title) override;
    std::string title() override;
    std::string getClipboard() override;
    void setClipboard(std::string text) override;
    void setSpellerLanguage(TranslatorIfc* translator) override;
    void updateFormSpellerLang();
    void localeChanged(std::string locale);

    // Without effect

    void setReadonly(bool) override { }
    bool isReadonly() const override { return false; }
    void setAlternativeCommandHandling(bool) override { }
    void spellerDisplayChanged() { }

    // Life on the screen

    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override { }
    void cleanUp();

    // What the user does

    void event(UEvent* event) override;
    void selectionFieldChanged();
    void leftEvent();
    void spellerOk();
    void clicked();
    void formDisplayChanged();
    void listDisplayChanged();
    void contextMenuChanged();
    void clipboardChanged();

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

    /// The open list of choices, as a menu writes it; else empty.
    std::string serialiseContextMenu() const;

    /// Empty.
    std::string serialiseSpeller() const { return {}; }

private:
    friend class SlotItemObject;

    /// An item, and the row that the toolkit shows for it. Only the row's address counts: it may have died.
    struct Pair {
        Living<Item> item;
        FormItemMEG* row;
    };

    VantoListBoxMEG* list() const { return mWidget ? mWidget->listBox() : nullptr; }
    FormItemMEG* rowOf(ItemPrivateIfc* item) const;
    Item* itemAt(unsigned int index) const;
    bool takeRow(ItemPrivateIfc* item);
    bool giveRow(ItemPrivateIfc* item);
    void showTranslatedTitle();
    void tell(Command* command);
    void writeRow(ScreenTextWriter& writer, int index) const;
    void writeValue(ScreenTextWriter& writer, const FormListBoxItemMEG& row, bool isCurrent) const;
    void writeChoice(ScreenTextWriter& writer) const;
    std::string spellerText() const;

    Form* mParent = nullptr;
    FormWidgetMEG* mWidget = nullptr; // null too once a tree that owned it has deleted it
    bool mHasHadWidget = false;
    std::vector<Pair> mPairs;
    std::map<FormItemMEG*, Living<Command>> mCommandRows;
    UPointer<FormItemMEG> mFirstCommandRow;
    SlotItemObject mSlot{*this};
    TranslationHolder mTitleInfo;
    TranslatorIfc* mSpellerTranslator = nullptr;
    OwnershipDelegate<FormWidgetMEG> mOwnership{&mWidget};
};

}

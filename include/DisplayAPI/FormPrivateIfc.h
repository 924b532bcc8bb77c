#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/Form.h>

#include <UAgent.h>

class FormItemIfc;
class FormItemMEG;

namespace DisplayAPI {

class ItemPrivateIfc;

/// The half of a form on the GUI thread, as its handle sees it: an operation for each request.
///
/// It knows of each item the row that the toolkit shows for it, as a pair: one for each place of the item in the form.
/// An index is one of the handle's items.
///
/// An operation that changes what can be seen ends with the display's notice. The subscriber may delete the form in it,
/// and this with the form: a caller who goes on asks first whether it still lives.
///
/// Threads: GUI thread only, but for the listeners.
/// Ownership: the handle owns it. It owns its widget while no tree of the toolkit does, and the title's translation;
/// items, commands and listeners are not its own.
/// Errors: without a widget, since there was no application or a tree that owned it has deleted it, what concerns the
/// widget is left out.
class DISPLAYAPI_EXPORT FormPrivateIfc : public UAgent, public DisplayablePrivate {
public:
    /// Shows the row of an item above the commands, and owns it from then on.
    virtual void append(ItemPrivateIfc* item) = 0;

    // Listeners and commands

    void addCommandListener(CommandListener* listener) override = 0;
    virtual void addCommand(Command* command) = 0;
    virtual void clearCommands() = 0;

    virtual Item* getSelected() = 0;
    virtual void setSelected(Item* item) = 0;

    // Texts

    virtual void setTitle(std::string title) = 0;
    virtual void setTitle(TranslationInfo* title) = 0;
    virtual std::string title() = 0;
    virtual void setReadonly(bool readonly) = 0;
    virtual bool isReadonly() const = 0;
    virtual std::string getClipboard() = 0;
    virtual void setClipboard(std::string text) = 0;

    // Items

    /// Remembers the row of an item, at a place among the pairs; below 0 and past the end means the end.
    virtual void saveItemRef(Item* item, FormItemIfc* row, int index) = 0;

    /// Shows the row of an item at a place among all rows, and owns it from then on.
    virtual void insertItem(ItemPrivateIfc* item, int index) = 0;

    /// Forgets all pairs of the item at an index.
    virtual void removeItemRef(unsigned int index) = 0;

    /// Takes the row of the item at an index out of all its places, and gives it back to the item.
    virtual void removeItem(unsigned int index) = 0;

    // Life on the screen

    UWidget* getWidget() override = 0;
    void releaseOwnership() override = 0;
    void gainOwnership() override = 0;
    void show() override = 0;

    /// Without effect.
    virtual void setAlternativeCommandHandling(bool alternative) = 0;

    virtual void setSpellerLanguage(TranslatorIfc* translator) = 0;
    void lostFocus() override = 0;
    std::string serialise() override = 0;

    // What an item tells

    /// An item is being deleted: its pairs go, and its rows. `half` is null if it has gone before.
    virtual void dropItem(Item* item, ItemPrivateIfc* half) = 0;

    /// Puts another row in all places of `before`, which is the caller's from then on. It gives no notice.
    virtual void exchangeRow(FormItemMEG& before, FormItemMEG& now) = 0;
};

}

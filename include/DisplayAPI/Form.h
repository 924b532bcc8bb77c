#pragma once

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/Living.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

class TranslationInfo;
class TranslatorIfc;

namespace DisplayAPI {

class Command;
class CommandListener;
class FormItems;
class FormPrivateIfc;
class Item;
class SelectionField;

/// A screen of rows that the user fills in: texts, choices and sliders, and below them a row for each command.
///
/// The user moves with Up and Down, and opens a row with OK or Right. What happens is told to the command listeners,
/// each time by one of the commands below, and every new value to the item-state listeners. The form stays where it is:
/// what comes next, also behind BACK_COMMAND(), is the application's answer.
///
/// Threads: any. Each call returns after it has run on the GUI thread, if nothing else is said. Listeners and the
/// questions getItems() and getCommands() are served at once, on the caller's thread.
/// Ownership: an item belongs to the form from append() or insertItem() on, until removeItem() gives it back; deleting
/// the form deletes its items, from the last to the first. The title's translation becomes the form's; commands,
/// listeners and translators stay the application's.
/// Errors: null, and items that are not in this form, change nothing. An item that another form holds is refused, and
/// so is one that was made while there was no event loop; it stays whose it is. A form that was made after the event
/// loop had ended ignores every call. Screen text: an object FormWidget with the title and the highlighted row, the
/// open list of choices, or the text that is being written.
///
/// The subscriber is told of a change while it happens. getItems() still names the items from before then, and an item
/// on its way out is still the form's: a subscriber who deletes the form inside the notice of a removal deletes it too,
/// unless he has handed it to another form. A form that dies on the display goes down as one that is dismissed: the
/// screen below comes back, and the subscriber is told once.
class DISPLAYAPI_EXPORT Form : public Displayable {
public:
    /// How the lines are shared between label and value. This telephone has one way; any other number counts as 0.
    enum FormProportionType : int {
        Proportion0 = 0,
        Proportion1 = 1,
        Proportion2 = 2,
        Proportion3 = 3,
    };

    /// An empty form.
    explicit Form(FormProportionType proportion);

    /// Deletes the items too, and waits until all has gone from the GUI thread.
    ~Form() override;

    // Items

    /// Adds an item below the others and above the commands. One that is in the form already gets a second row.
    void append(Item* item);

    /// Adds an item at a place from 0, counting all rows, so that it may come to stand among the commands. Below 0, and
    /// past the end, means the end.
    void insertItem(Item* item, int index);

    /// The same as append().
    void setFormOptions(SelectionField* field);

    /// Takes the item at an index out, with all its rows, and gives it to the caller. Null outside the form, and if the
    /// subscriber has handed the item on, or has deleted it or the form, while he was told.
    Item* removeItem(unsigned int index);

    /// A copy of the items in their order. Threads: any, without waiting.
    std::vector<Item*> getItems() const;

    /// The item on the highlighted row; null on the row of a command, and in an empty form.
    Item* getSelected();

    /// Moves the highlight to an item of this form. It gives no notice.
    void setSelected(Item* item);

    // Texts

    /// Shows another title until the locale changes: one that was set as a translation comes back then.
    void setTitle(const std::string& title);

    /// A title that follows the locale, as the texts of the text input do then. Null is an empty title.
    void setTitle(TranslationInfo* title);
    std::string title();

    /// What Copy has taken out of a text, and Paste puts in.
    void setClipboard(const std::string& text);
    std::string getClipboard();

    /// Translates what the keys write and what stands in the menu below a text, for all forms: the last one counts.
    /// Null is ignored. A form begins with the translator of the display; a change of locale reads the texts again if
    /// the title is a translation.
    void setSpellerLanguage(TranslatorIfc* translator);

    // Commands

    /// Adds a row at the end that stands for a command. Its text is read now.
    void addCommand(Command* command);

    /// Takes the rows of all commands out.
    void clearCommands();

    /// The commands that were added and still live, in their order. Threads: any, without waiting.
    std::vector<Command*> getCommands() const;

    /// Adds a listener; one that is added twice is told twice. Threads: any, without waiting.
    void addCommandListener(CommandListener* listener);

    // What the listeners get, beside the commands on rows; told apart by address

    static Command* BACK_COMMAND();                 ///< Left.
    static Command* OK_COMMAND();                   ///< OK on a field that informs the application.
    static Command* SAVE_COMMAND();                 ///< A text was confirmed.
    static Command* SELECTION_DISPLAY_COMMAND();    ///< A list of choices was opened, or the user moved in it.
    static Command* SELECTION_CHANGED_COMMAND();    ///< Another choice was taken.
    static Command* CLIPBOARD_CHANGED_COMMAND();    ///< Copy.
    static Command* CURRENT_ITEM_CHANGED_COMMAND(); ///< Never told by this telephone.

    // Without effect on this telephone

    void setReadonly(bool readonly);

    /// False.
    bool isReadonly();
    void setAlternativeCommandHandling(bool alternative);
    void setCurrentLanguageFixed();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(FormProportionType proportion);
    void destroy();
    template <typename Show>
    void add(Item* item, int index, Show show);
    Item* takeOut(unsigned int index);

    std::unique_ptr<FormPrivateIfc> mPrivate;
    std::unique_ptr<FormItems> mItems;
    mutable std::mutex mCommandsMutex;
    std::vector<Living<Command>> mCommands;
};

/// What stands for OK where only yes or no is asked for, as in TextField::setInformAppOnOk().
DISPLAYAPI_EXPORT Command* OK_COMMAND();

}

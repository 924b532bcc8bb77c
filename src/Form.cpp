#include <DisplayAPI/Command.h>
#include <DisplayAPI/Form.h>
#include <DisplayAPI/FormPrivateIfc.h>
#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/SelectionField.h>

#include "FormItems.h"
#include "FormPrivate.h"
#include "LastingCommand.h"
#include "Road.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class Form::Request : int {
    Create = 0,
    Destroy = 1,
    Append = 2,
    InsertItem = 3,
    RemoveItem = 4,
    GetSelected = 5,
    SetSelected = 6,
    SetTitle = 7,
    SetTitleTranslation = 8,
    Title = 9,
    SetReadonly = 10,
    IsReadonly = 11,
    SetClipboard = 12,
    GetClipboard = 13,
    SetSpellerLanguage = 14,
    AddCommand = 15,
    ClearCommands = 16,
};

Form::Form(FormProportionType proportion)
    : mItems(std::make_unique<FormItems>(mPrivate))
{
    mName = "Form";
    create(proportion);
}

Form::~Form()
{
    destroy();
}

void Form::create(FormProportionType proportion)
{
    if (!Road::wait(this, Request::Create, proportion))
        return;
    auto half = std::make_unique<FormPrivate>(proportion);
    half->setParent(this);
    mPrivate = std::move(half);
}

void Form::destroy()
{
    // While the stack still finds it: a form goes as one that is dismissed.
    if (isGuiThread() && mPrivate)
        mPrivate->widgetDismissed(mPrivate.get());
    Road::end(this, mPrivate, Request::Destroy);
    // The rows have gone with the widget: the items only forget them.
    mItems->deleteAll();
}

DisplayablePrivateIfc* Form::getPrivateImpl()
{
    return mPrivate.get();
}

// Items

void Form::append(Item* item)
{
    if (auto* half = Road::wait(this, mPrivate, Request::Append, item))
        add(item, -1, [half](ItemPrivateIfc* itemHalf) { half->append(itemHalf); });
}

void Form::insertItem(Item* item, int index)
{
    if (auto* half = Road::wait(this, mPrivate, Request::InsertItem, item, index))
        add(item, index, [half, index](ItemPrivateIfc* itemHalf) { half->insertItem(itemHalf, index); });
}

void Form::setFormOptions(SelectionField* field)
{
    append(field);
}

template <typename Show>
void Form::add(Item* item, int index, Show show)
{
    if (!mItems->expect(item))
        return;
    const Living<Item> added(item);
    // The item, which may be of the application's own class, and the notice may delete item and form.
    LifeNode life(mPrivate.get());
    item->setParent(this);
    ItemPrivateIfc* itemHalf = life.isAlive() && added ? item->getPrivateImpl() : nullptr;
    if (!itemHalf)
        return;
    mPrivate->saveItemRef(item, itemHalf->getWidget(), index);
    show(itemHalf);
    if (life.isAlive())
        mItems->settle(added, index);
}

Item* Form::removeItem(unsigned int index)
{
    void* item = nullptr;
    if (Road::wait(this, mPrivate, Request::RemoveItem, index, result(item)))
        return takeOut(index);
    return static_cast<Item*>(item);
}

Item* Form::takeOut(unsigned int index)
{
    const std::vector<Item*> items = mItems->all();
    if (index >= items.size())
        return nullptr;
    const Living<Item> taken(items[index]);
    LifeNode life(mPrivate.get());
    items[index]->setParent(nullptr);
    if (!life.isAlive())
        return nullptr;
    mItems->startLeaving(taken);
    mPrivate->removeItemRef(index);
    mPrivate->removeItem(index);
    return life.isAlive() && mItems->finishLeaving(taken) ? taken.get() : nullptr;
}

std::vector<Item*> Form::getItems() const
{
    return mItems->all();
}

Item* Form::getSelected()
{
    void* item = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelected, result(item)))
        return half->getSelected();
    return static_cast<Item*>(item);
}

void Form::setSelected(Item* item)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetSelected, item))
        half->setSelected(item);
}

// Texts

void Form::setTitle(const std::string& title)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTitle, title))
        half->setTitle(title);
}

void Form::setTitle(TranslationInfo* title)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTitleTranslation, given(title)))
        half->setTitle(title);
}

std::string Form::title()
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::Title, result(text)))
        text = half->title();
    return text;
}

void Form::setClipboard(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetClipboard, text))
        half->setClipboard(text);
}

std::string Form::getClipboard()
{
    std::string text;
    if (auto* half = Road::wait(this, mPrivate, Request::GetClipboard, result(text)))
        text = half->getClipboard();
    return text;
}

void Form::setSpellerLanguage(TranslatorIfc* translator)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetSpellerLanguage, translator))
        half->setSpellerLanguage(translator);
}

// Commands

void Form::addCommand(Command* command)
{
    auto* half = Road::wait(this, mPrivate, Request::AddCommand, command);
    if (!half || !Command::exists(command))
        return;
    {
        std::lock_guard lock(mCommandsMutex);
        mCommands.emplace_back(command);
    }
    half->addCommand(command);
}

void Form::clearCommands()
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearCommands)) {
        half->clearCommands();
        std::lock_guard lock(mCommandsMutex);
        mCommands.clear();
    }
}

std::vector<Command*> Form::getCommands() const
{
    std::lock_guard lock(mCommandsMutex);
    std::vector<Command*> commands;
    for (const Living<Command>& entry : mCommands) {
        if (Command* command = entry.get())
            commands.push_back(command);
    }
    return commands;
}

void Form::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

Command* Form::BACK_COMMAND()
{
    static Command* command = lastingCommand(Command::Back);
    return command;
}

Command* Form::OK_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

Command* Form::SAVE_COMMAND()
{
    static Command* command = lastingCommand(Command::Save);
    return command;
}

Command* Form::SELECTION_DISPLAY_COMMAND()
{
    static Command* command = lastingCommand(Command::Menu);
    return command;
}

Command* Form::SELECTION_CHANGED_COMMAND()
{
    static Command* command = lastingCommand(Command::Menu);
    return command;
}

Command* Form::CLIPBOARD_CHANGED_COMMAND()
{
    static Command* command = lastingCommand(Command::Menu);
    return command;
}

Command* Form::CURRENT_ITEM_CHANGED_COMMAND()
{
    static Command* command = lastingCommand(Command::Menu, "current item changed");
    return command;
}

Command* OK_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

// Without effect on this telephone

void Form::setReadonly(bool readonly)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetReadonly, readonly))
        half->setReadonly(readonly);
}

bool Form::isReadonly()
{
    bool isReadonly = false;
    if (auto* half = Road::wait(this, mPrivate, Request::IsReadonly, result(isReadonly)))
        isReadonly = half->isReadonly();
    return isReadonly;
}

void Form::setAlternativeCommandHandling(bool) { }

void Form::setCurrentLanguageFixed() { }

// Road across threads

void Form::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    const int number = event.intParam1;
    auto* item = static_cast<Item*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(static_cast<FormProportionType>(number)); break;
    case Request::Destroy: destroy(); break;
    case Request::Append: append(item); break;
    case Request::InsertItem: insertItem(item, number); break;
    case Request::RemoveItem: answer(event.ptrResult, removeItem(static_cast<unsigned int>(number))); break;
    case Request::GetSelected: answer(event.ptrResult, getSelected()); break;
    case Request::SetSelected: setSelected(item); break;
    case Request::SetTitle: setTitle(text); break;
    case Request::SetTitleTranslation: setTitle(static_cast<TranslationInfo*>(event.ptrParam1)); break;
    case Request::Title: answer(event.stringResult, title()); break;
    case Request::SetReadonly: setReadonly(event.boolParam1); break;
    case Request::IsReadonly: answer(event.boolResult, isReadonly()); break;
    case Request::SetClipboard: setClipboard(text); break;
    case Request::GetClipboard: answer(event.stringResult, getClipboard()); break;
    case Request::SetSpellerLanguage: setSpellerLanguage(static_cast<TranslatorIfc*>(event.ptrParam1)); break;
    case Request::AddCommand: addCommand(static_cast<Command*>(event.ptrParam1)); break;
    case Request::ClearCommands: clearCommands(); break;
    }
    signalComplete(event);
}

}

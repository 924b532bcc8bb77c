#include "ListRows.h"

#include <DisplayAPI/Command.h>

#include "LastingCommand.h"
#include "ListBoxPrivate.h"
#include "ListTrace.h"
#include "Road.h"

#include <utility>

// Every operation builds its request, on the GUI thread too; there it runs at once. A case below therefore calls
// the step behind the operation and never the operation itself.

namespace DisplayAPI {

enum class List::Request : int {
    Create = 0,
    Destroy = 1,
    AppendText = 5,
    AppendTranslation = 6,
    AppendItem = 7,
    Clear = 9,
    GetSelected = 10,
    SetSelected = 11,
    GetSelectedIndex = 12,
    SetSelectedIndex = 13,
    InsertAt = 14,
    RemoveAt = 15,
    Remove = 16,
    Move = 17,
    RemoveAll = 18,
    Replace = 19,
    Size = 20,
    Hide = 21,
    SetTicker = 22,
    GetTicker = 23,
    SetTitleText = 24,
    SetTitleTranslation = 25,
    SetSystemWindowSize = 31,
    SetSystemWindowText = 32,
    RemoveCommandListener = 33,
    AddCommandListener = 34,
    ShowDiallerOnInitialKeyEvent = 35,
    AddDialer = 36,
    GetDialer = 37,
    GetItems = 38,
    SetSelectionHighlight = 39,
    ClearSelectedItemBackground = 87,
    ClearCommandListeners = 89,
};

namespace {

constexpr bool Async = true;
constexpr bool Sync = false;

/// Calls an operation of the half on the GUI thread, which a list without one ignores.
template <typename... Parameters, typename Class, typename... Arguments>
void tell(ListBoxPrivateIfc* box, void (Class::*operation)(Parameters...), Arguments... arguments)
{
    if (box)
        (box->*operation)(arguments...);
}

}

List::List(int kind)
    : List(kind == 1 || kind == 3)
{
    mName = "List";
    postEventHelper(Async, makeRequest(this, Request::Create, hasBackItem()));
}

List::List(bool hasBackItem)
    : mItems(std::make_unique<Rows>(mPrivate))
    , mHasBackItem(hasBackItem)
{
}

List::~List()
{
    destroy();
}

void List::destroy()
{
    if (std::exchange(mIsDestroyed, true))
        return;
    if (Road::wait(this, Request::Destroy))
        return cleanup();
    // Both still there if the loop has ended.
    Road::keepIfRefused(this, mPrivate);
    mItems->end();
}

void List::processGuiRequest(GuiRequestEvent& event)
{
    using Box = ListBoxPrivateIfc;
    Box* box = mPrivate.get();
    auto* item = static_cast<ListItem*>(event.ptrParam1);
    auto* second = static_cast<ListItem*>(event.ptrParam2);
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* listener = static_cast<CommandListener*>(event.ptrParam1);
    const std::string& text = event.stringParam1;
    const int number = event.intParam1;
    mItems->forgetDead();
    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(event.boolParam1); break;
    case Request::Destroy: cleanup(); break;
    case Request::AppendText: createAndAppendItem(new ListItem(text, true)); break;
    case Request::AppendTranslation: createAndAppendItem(new ListItem(translation, true)); break;
    case Request::AppendItem: privateAppend(item); break;
    case Request::Clear: privateClear(); break;
    case Request::GetSelected: answer(event.ptrResult, findSelectedItem()); break;
    case Request::SetSelected: privateSetSelected(item); break;
    case Request::GetSelectedIndex: answer(event.intResult, box ? box->getSelectedIndex() : -1); break;
    case Request::SetSelectedIndex: tell(box, &Box::setSelectedIndex, number); break;
    case Request::InsertAt: privateInsertAt(item, number); break;
    case Request::RemoveAt: answer(event.ptrResult, privateRemoveAt(number)); break;
    case Request::Remove: privateRemove(item); break;
    case Request::Move: privateMove(item, second, number); break;
    case Request::RemoveAll: privateRemoveAll(); break;
    case Request::Replace: privateReplace(item, second); break;
    case Request::Size: answer(event.intResult, box ? box->size() : -1); break;
    case Request::Hide: tell(box, &Box::hide); break;
    case Request::SetTicker: mTicker = static_cast<Ticker*>(event.ptrParam1); break;
    case Request::GetTicker: answer(event.ptrResult, mTicker); break;
    case Request::SetTitleText: tell<const std::string&>(box, &Box::setTitle, text); break;
    case Request::SetTitleTranslation:
        if (!box)
            delete translation; // handed over all the same
        tell<TranslationInfo*>(box, &Box::setTitle, translation);
        break;
    case Request::SetSystemWindowSize: tell(box, &Box::setSystemWindowSize, number); break;
    case Request::SetSystemWindowText: tell(box, &Box::setSystemWindowText, number, text); break;
    case Request::RemoveCommandListener: tell(box, &Box::removeCommandListener, listener); break;
    case Request::AddCommandListener: tell(box, &Box::addCommandListener, listener); break;
    case Request::ShowDiallerOnInitialKeyEvent: tell(box, &Box::showDiallerOnInitialKeyEvent, event.boolParam1); break;
    case Request::AddDialer: privateSetDialer(static_cast<PopupDialer*>(event.ptrParam1)); break;
    case Request::GetDialer: answer(event.ptrResult, livingDialer()); break;
    case Request::GetItems: copyItemsTo(static_cast<std::vector<ListItem*>*>(event.ptrParam1)); break;
    case Request::SetSelectionHighlight: tell(box, &Box::setSelectionHighlight, event.boolParam1); break;
    case Request::ClearSelectedItemBackground: privateClearSelectedBackground(); break;
    case Request::ClearCommandListeners: tell(box, &Box::clearCommandListeners); break;
    }
    signalComplete(event);
}

DisplayablePrivateIfc* List::getPrivateImpl()
{
    return mPrivate.get();
}

// Rows

void List::append(const std::string& text)
{
    TRACE_LIST("DAPI::List::append() this: %p , text %s\n", static_cast<void*>(this), text.c_str());
    postEventHelper(Async, makeRequest(this, Request::AppendText, text));
}

void List::append(TranslationInfo* text)
{
    TRACE_LIST("DAPI::List::append() this: %p tinfo: %p\n", static_cast<void*>(this), static_cast<void*>(text));
    postEventHelper(Async, makeRequest(this, Request::AppendTranslation, given(text)));
}

void List::append(ListItem* item)
{
    // The name of the class and not the text: a trace must not wait for the GUI thread.
    TRACE_LIST("DAPI::List::append() this: %p listItem: %p, %s\n", static_cast<void*>(this), static_cast<void*>(item),
        item ? item->widgetName().c_str() : "");
    postEventHelper(Async, makeRequest(this, Request::AppendItem, given(item)));
}

void List::clear()
{
    TRACE_LIST("DAPI::List::clear() this: %p\n", static_cast<void*>(this));
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::Clear));
    privateClear();
}

std::vector<ListItem*> List::getItems()
{
    TRACE_LIST("DAPI::List::getItems() this: %p\n", static_cast<void*>(this));
    if (isGuiThread())
        return mItems->all();
    // Copied on the GUI thread, since others may be changing the list.
    std::vector<ListItem*> items;
    postEvent(makeRequest(this, Request::GetItems, &items));
    return items;
}

ListItem* List::getSelected()
{
    void* item = nullptr;
    postEventHelper(Sync, makeRequest(this, Request::GetSelected, result(item)));
    TRACE_LIST("getSelected() this: %p returns %p\n", static_cast<void*>(this), item);
    return static_cast<ListItem*>(item);
}

void List::setSelected(ListItem* item)
{
    TRACE_LIST("setSelected() this: %p item %p\n", static_cast<void*>(this), static_cast<void*>(item));
    postEventHelper(Async, makeRequest(this, Request::SetSelected, item));
}

int List::getSelectedIndex()
{
    int index = -1;
    postEventHelper(Sync, makeRequest(this, Request::GetSelectedIndex, result(index)));
    TRACE_LIST("getSelectedIndex() this: %p returns %d\n", static_cast<void*>(this), index);
    return index;
}

void List::setSelectedIndex(int index)
{
    TRACE_LIST("setSelectedIndex() this: %p index %d\n", static_cast<void*>(this), index);
    postEventHelper(Async, makeRequest(this, Request::SetSelectedIndex, index));
}

int List::getDisplayIndexForItem(ListItem*)
{
    return -1;
}

void List::insertAt(ListItem* item, int index)
{
    TRACE_LIST("insertAt() this: %p item %p index %d\n", static_cast<void*>(this), static_cast<void*>(item), index);
    postEventHelper(Async, makeRequest(this, Request::InsertAt, given(item), index));
}

ListItem* List::removeAt(int index)
{
    TRACE_LIST("removeAt() this: %p index %d\n", static_cast<void*>(this), index);
    void* item = nullptr;
    postEventHelper(Sync, makeRequest(this, Request::RemoveAt, index, result(item)));
    return static_cast<ListItem*>(item);
}

void List::remove(ListItem* item)
{
    TRACE_LIST("remove() this: %p item %p\n", static_cast<void*>(this), static_cast<void*>(item));
    postEventHelper(Async, makeRequest(this, Request::Remove, item));
}

void List::move(ListItem* old, ListItem* replacement, int index)
{
    TRACE_LIST("move() this: %p item %p item %p index %d\n", static_cast<void*>(this), static_cast<void*>(old),
        static_cast<void*>(replacement), index);
    postEventHelper(Async, makeRequest(this, Request::Move, old, given(replacement), index));
}

void List::removeAll()
{
    postEventHelper(Async, makeRequest(this, Request::RemoveAll));
}

void List::replace(ListItem* old, ListItem* replacement)
{
    postEventHelper(Async, makeRequest(this, Request::Replace, old, given(replacement)));
}

int List::size()
{
    int count = -1;
    postEventHelper(Sync, makeRequest(this, Request::Size, result(count)));
    TRACE_LIST("DAPI::List::size() this: %p returns %d\n", static_cast<void*>(this), count);
    return count;
}

// Title and system window

void List::setTitle(const std::string& title)
{
    postEventHelper(Async, makeRequest(this, Request::SetTitleText, title));
}

void List::setTitle(TranslationInfo* title)
{
    postEventHelper(Async, makeRequest(this, Request::SetTitleTranslation, given(title)));
}

void List::setSystemWindowSize(int lines)
{
    postEventHelper(Async, makeRequest(this, Request::SetSystemWindowSize, lines));
}

void List::setSystemWindowText(int line, const std::string& text)
{
    postEventHelper(Async, makeRequest(this, Request::SetSystemWindowText, line, text));
}

// Commands

void List::addCommandListener(CommandListener* listener)
{
    postEventHelper(Async, makeRequest(this, Request::AddCommandListener, listener));
}

void List::clearCommandListeners()
{
    postEventHelper(Sync, makeRequest(this, Request::ClearCommandListeners));
}

void List::removeCommandListener(CommandListener* listener)
{
    postEventHelper(Async, makeRequest(this, Request::RemoveCommandListener, listener));
}

Command* List::BACK_COMMAND()
{
    static Command* command = lastingCommand(Command::Back);
    return command;
}

Command* List::RIGHT_COMMAND()
{
    static Command* command = lastingCommand(Command::Right);
    return command;
}

Command* List::SELECT_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

Command* List::DISPLAY_CHANGED_COMMAND()
{
    static Command* command = lastingCommand(Command::DisplayChanged);
    return command;
}

Command* List::TABBAR_ACTIVE_COMMAND()
{
    static Command* command = lastingCommand(Command::TabBarActive);
    return command;
}

Command* List::TABBAR_INACTIVE_COMMAND()
{
    static Command* command = lastingCommand(Command::TabBarInactive);
    return command;
}

Command* List::HEADER_TEXT_CHANGED_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

Command* List::HEADER_TEXT_ENTRY_FINISHED_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

Command* List::FILTER_CHANGED_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

// State

void List::hide()
{
    postEventHelper(Async, makeRequest(this, Request::Hide));
}

void List::clearSelectedItemBackground()
{
    postEventHelper(Async, makeRequest(this, Request::ClearSelectedItemBackground));
}

void List::setSelectionHighlight(bool highlight)
{
    postEventHelper(Async, makeRequest(this, Request::SetSelectionHighlight, highlight));
}

// Dialer and ticker

void List::addDialer(PopupDialer* dialer)
{
    postEventHelper(Async, makeRequest(this, Request::AddDialer, dialer));
}

PopupDialer* List::getDialer()
{
    void* dialer = nullptr;
    postEventHelper(Sync, makeRequest(this, Request::GetDialer, result(dialer)));
    return static_cast<PopupDialer*>(dialer);
}

void List::showDiallerOnInitialKeyEvent(bool show)
{
    postEventHelper(Async, makeRequest(this, Request::ShowDiallerOnInitialKeyEvent, show));
}

void List::setTicker(Ticker* ticker)
{
    postEventHelper(Async, makeRequest(this, Request::SetTicker, ticker));
}

Ticker* List::getTicker()
{
    void* ticker = nullptr;
    postEventHelper(Sync, makeRequest(this, Request::GetTicker, result(ticker)));
    return static_cast<Ticker*>(ticker);
}

}

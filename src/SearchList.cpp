#include <DisplayAPI/Command.h>
#include <DisplayAPI/SearchList.h>
#include <DisplayAPI/SearchListBoxPrivateIfc.h>

#include "BoxRows.h"
#include "LastingCommand.h"
#include "Road.h"
#include "SearchListBoxPrivate.h"

#include <vector>

namespace DisplayAPI {

enum class SearchList::Request : int {
    Create = 0,
    Destroy = 1,
    AppendText = 2,
    AppendTranslation = 3,
    AppendItem = 4,
    Clear = 5,
    GetSelected = 6,
    GetSelectedIndex = 7,
    SetSelectedIndex = 8,
    InsertAt = 9,
    RemoveAt = 10,
    Remove = 11,
    Size = 12,
    GetSearchText = 13,
    SetTitleText = 14,
    SetTitleTranslation = 15,
    ShowSearchPopup = 16,
    SetSearchText = 17,
    SetCountIndicator = 18,
    SetSearchCountIndicator = 19,
    DismissSearchPopup = 20,
    IsSearchPopupVisible = 21,
};

/// The rows of a search list, and what they ask of its half.
class SearchList::Rows final : public BoxRows<SearchListBoxPrivateIfc> {
public:
    using BoxRows::BoxRows;
};

/// Where the road finds the half; rows that have died behind the loop's end are forgotten first.
class SearchList::Half {
public:
    explicit Half(const SearchList& list)
        : mList(list)
    {
    }
    SearchListBoxPrivateIfc* operator()() const
    {
        mList.mItems->forgetDead();
        return mList.mPrivate.get();
    }

private:
    const SearchList& mList;
};

SearchList::SearchList()
    : mItems(std::make_unique<Rows>(mPrivate))
{
    create();
}

SearchList::~SearchList()
{
    destroy();
}

void SearchList::create()
{
    if (!Road::wait(this, Request::Create))
        return;
    mName = "SearchList";
    // Another one would know nothing of the rows.
    if (!mPrivate)
        mPrivate = std::make_unique<SearchListBoxPrivate>(this);
}

void SearchList::destroy()
{
    if (Road::wait(this, Request::Destroy))
        return cleanup();
    // Both still there if the loop has ended.
    Road::keepIfRefused(this, mPrivate);
    mItems->end();
}

void SearchList::cleanup()
{
    retireScreen();
    // The widget deletes the toolkit's rows: the handles behind it only forget them.
    mPrivate.reset();
    mItems->end();
}

SearchList::Half SearchList::half() const
{
    return Half(*this);
}

DisplayablePrivateIfc* SearchList::getPrivateImpl()
{
    return mPrivate.get();
}

// Rows

void SearchList::append(const std::string& text)
{
    if (Road::wait(this, half(), Request::AppendText, text))
        append(new ListItem(text, true));
}

void SearchList::append(TranslationInfo* text)
{
    if (Road::wait(this, half(), Request::AppendTranslation, given(text)))
        append(new ListItem(text, true));
}

void SearchList::append(ListItem* item)
{
    if (Road::wait(this, half(), Request::AppendItem, given(item)))
        mItems->append(item);
}

void SearchList::insertAt(ListItem* item, int index)
{
    if (Road::wait(this, half(), Request::InsertAt, given(item), index))
        mItems->insertAt(item, index);
}

void SearchList::removeAt(int index)
{
    if (Road::wait(this, half(), Request::RemoveAt, index))
        mItems->removeAt(index);
}

void SearchList::remove(ListItem* item)
{
    if (Road::wait(this, half(), Request::Remove, item))
        mItems->remove(item);
}

void SearchList::clear()
{
    if (Road::wait(this, half(), Request::Clear))
        mItems->clear();
}

std::list<ListItem*> SearchList::getItems() const
{
    const std::vector<ListItem*> items = mItems->all();
    return {items.begin(), items.end()};
}

int SearchList::size()
{
    int count = -1;
    if (auto* box = Road::wait(this, half(), Request::Size, result(count)))
        count = box->size();
    return count;
}

// Current row

ListItem* SearchList::getSelected()
{
    void* item = nullptr;
    if (auto* box = Road::wait(this, half(), Request::GetSelected, result(item)))
        item = mItems->at(box->getSelectedIndex());
    return static_cast<ListItem*>(item);
}

int SearchList::getSelectedIndex()
{
    int index = -1;
    if (auto* box = Road::wait(this, half(), Request::GetSelectedIndex, result(index)))
        index = box->getSelectedIndex();
    return index;
}

void SearchList::setSelectedIndex(int index)
{
    if (auto* box = Road::wait(this, half(), Request::SetSelectedIndex, index))
        box->setSelectedIndex(index);
}

// Title

void SearchList::setTitle(const std::string& title)
{
    if (auto* box = Road::wait(this, half(), Request::SetTitleText, title))
        box->setTitle(title);
}

void SearchList::setTitle(TranslationInfo* title)
{
    if (auto* box = Road::wait(this, half(), Request::SetTitleTranslation, given(title)))
        box->setTitle(title);
}

// Search

void SearchList::showSearchPopup()
{
    if (auto* box = Road::wait(this, half(), Request::ShowSearchPopup))
        box->showSearchPopup();
}

void SearchList::dismissSearchPopup()
{
    if (auto* box = Road::wait(this, half(), Request::DismissSearchPopup))
        box->dismissSearchPopup();
}

bool SearchList::isSearchPopupVisible()
{
    bool isVisible = false;
    if (auto* box = Road::wait(this, half(), Request::IsSearchPopupVisible, result(isVisible)))
        isVisible = box->isSearchPopupVisible();
    return isVisible;
}

std::string SearchList::getSearchText()
{
    std::string text;
    if (auto* box = Road::wait(this, half(), Request::GetSearchText, result(text)))
        text = box->getSearchText();
    return text;
}

void SearchList::setSearchText(std::string text)
{
    if (auto* box = Road::wait(this, half(), Request::SetSearchText, text))
        box->setSearchText(text);
}

void SearchList::setCountIndicator(int count)
{
    if (auto* box = Road::wait(this, half(), Request::SetCountIndicator, count))
        box->setCountIndicator(count);
}

void SearchList::setSearchCountIndicator(int count)
{
    if (auto* box = Road::wait(this, half(), Request::SetSearchCountIndicator, count))
        box->setSearchCountIndicator(count);
}

// Listeners: lists of the half that any thread may change

void SearchList::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

void SearchList::removeCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->removeCommandListener(listener);
}

void SearchList::addItemStateListener(ItemStateListener* listener)
{
    if (mPrivate)
        mPrivate->addItemStateListener(listener);
}

Command* SearchList::BACK_COMMAND()
{
    static Command* command = lastingCommand(Command::Back);
    return command;
}

Command* SearchList::RIGHT_COMMAND()
{
    static Command* command = lastingCommand(Command::Right);
    return command;
}

Command* SearchList::SELECT_COMMAND()
{
    static Command* command = lastingCommand(Command::Select);
    return command;
}

// Without effect on this telephone

bool SearchList::stopKeypadTimerSaveAndExit()
{
    return false;
}

void SearchList::setSelectionHighlight(bool) { }

void SearchList::setUsedWithTab(bool) { }

void SearchList::setWrapAround(bool) { }

void SearchList::setWaitAnimation(bool) { }

void SearchList::localeChanged(std::string locale)
{
    mItems->localeChanged(locale);
}

// Road across threads

void SearchList::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* item = static_cast<ListItem*>(event.ptrParam1);
    const int number = event.intParam1;

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(); break;
    case Request::Destroy: destroy(); break;
    case Request::AppendText: append(text); break;
    case Request::AppendTranslation: append(translation); break;
    case Request::AppendItem: append(item); break;
    case Request::Clear: clear(); break;
    case Request::GetSelected: answer(event.ptrResult, getSelected()); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::SetSelectedIndex: setSelectedIndex(number); break;
    case Request::InsertAt: insertAt(item, number); break;
    case Request::RemoveAt: removeAt(number); break;
    case Request::Remove: remove(item); break;
    case Request::Size: answer(event.intResult, size()); break;
    case Request::GetSearchText: answer(event.stringResult, getSearchText()); break;
    case Request::SetTitleText: setTitle(text); break;
    case Request::SetTitleTranslation: setTitle(translation); break;
    case Request::ShowSearchPopup: showSearchPopup(); break;
    case Request::SetSearchText: setSearchText(text); break;
    case Request::SetCountIndicator: setCountIndicator(number); break;
    case Request::SetSearchCountIndicator: setSearchCountIndicator(number); break;
    case Request::DismissSearchPopup: dismissSearchPopup(); break;
    case Request::IsSearchPopupVisible: answer(event.boolResult, isSearchPopupVisible()); break;
    }
    signalComplete(event);
}

}

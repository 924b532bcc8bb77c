#include <DisplayAPI/ExpandingTreeList.h>
#include <DisplayAPI/ExpandingTreeListItem.h>
#include <DisplayAPI/ExpandingTreeListItemPrivateIfc.h>
#include <DisplayAPI/ExpandingTreeListPrivateIfc.h>

#include "ExpandingTreeListPrivate.h"
#include "OwnedHandles.h"
#include "Road.h"

#include <ExpandingListMEG.h>

namespace DisplayAPI {

enum class ExpandingTreeList::Request : int {
    Create = 0,
    Destroy = 1,
    Append = 2,
    GetSelected = 3,
    SetTitle = 4,
    SetTitleTranslation = 5,
    Clear = 6,
    GetSelectedIndex = 7,
    Align = 8,
    Unalign = 9,
    SetReadonly = 10,
    SetRightArrowEqualsOK = 11,
};

ExpandingTreeList::ExpandingTreeList(bool flag)
    : mItems(std::make_unique<OwnedHandles<ExpandingTreeListItem>>())
{
    create(flag);
}

ExpandingTreeList::~ExpandingTreeList()
{
    destroy();
}

void ExpandingTreeList::create(bool flag)
{
    if (!Road::wait(this, Request::Create, flag))
        return;
    mName = "ExpandingTreeList";
    if (!mPrivate)
        mPrivate = std::make_unique<ExpandingTreeListPrivate>(this);
}

void ExpandingTreeList::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
    // Off the GUI thread there are some left only if the loop has ended.
    deleteItems();
}

DisplayablePrivateIfc* ExpandingTreeList::getPrivateImpl()
{
    return mPrivate.get();
}

/// Where the road finds what acts. The row of an item that has died behind the loop's end goes before.
auto ExpandingTreeList::halfOf() const
{
    return [this] {
        if (mPrivate && mItems->forgetDead())
            deleteKeptHalves();
        return mPrivate.get();
    };
}

// Items

void ExpandingTreeList::append(ExpandingTreeListItem* item)
{
    auto* list = Road::wait(this, halfOf(), Request::Append, given(item));
    if (!list || !ExpandingTreeListItem::exists(item) || item->mList)
        return;
    ExpandingTreeListItemPrivateIfc* half = item->getPrivateImpl();
    const ExpandingListItemBaseMEG* row = half ? half->getWidget() : nullptr;
    if (!half || (row && row->parentWidget()))
        return;
    list->append(half);
    item->mList = this;
    mItems->add(item);
    list->generateDisplayChangedEvent();
}

void ExpandingTreeList::clear()
{
    auto* list = Road::wait(this, halfOf(), Request::Clear);
    if (!list)
        return;
    list->clear();
    // An item's destructor is the application's own, perhaps.
    LifeNode life(list);
    deleteItems();
    if (life.isAlive())
        list->generateDisplayChangedEvent();
}

/// They tell of nothing on their way.
void ExpandingTreeList::deleteItems()
{
    mItems->forEach([](ExpandingTreeListItem& item) { item.mList = nullptr; });
    mItems->deleteAll();
}

void ExpandingTreeList::itemHasDied()
{
    mItems->forgetDead();
    if (mPrivate)
        mPrivate->generateDisplayChangedEvent();
}

std::vector<ExpandingTreeListItem*> ExpandingTreeList::getExpandingItemsList() const
{
    return mItems->all();
}

int ExpandingTreeList::getSelectedIndex() const
{
    int index = -1;
    if (auto* list = Road::wait(this, halfOf(), Request::GetSelectedIndex, result(index)))
        index = list->getSelectedIndex();
    return index;
}

ExpandingTreeListItem* ExpandingTreeList::getSelected() const
{
    void* item = nullptr;
    if (auto* list = Road::wait(this, halfOf(), Request::GetSelected, result(item)))
        item = mItems->at(list->getSelectedIndex());
    return static_cast<ExpandingTreeListItem*>(item);
}

// Title

void ExpandingTreeList::setTitle(const std::string& title)
{
    if (auto* list = Road::wait(this, halfOf(), Request::SetTitle, title))
        list->setTitle(title);
}

void ExpandingTreeList::setTitle(TranslationInfo* title)
{
    if (auto* list = Road::wait(this, halfOf(), Request::SetTitleTranslation, given(title)))
        list->setTitle(title);
}

// State

void ExpandingTreeList::setReadonly(int index, bool readOnly)
{
    if (auto* list = Road::wait(this, halfOf(), Request::SetReadonly, index, readOnly))
        list->setReadonly(index, readOnly);
}

void ExpandingTreeList::setRightArrowEqualsOK(bool equals)
{
    if (auto* list = Road::wait(this, halfOf(), Request::SetRightArrowEqualsOK, equals))
        list->setRightArrowEqualsOK(equals);
}

void ExpandingTreeList::localeChanged(std::string locale)
{
    if (mPrivate)
        mPrivate->localeChanged(locale);
    mItems->forEach([&locale](ExpandingTreeListItem& item) { item.localeChanged(locale); });
}

// Commands

void ExpandingTreeList::addCommandListener(CommandListener* listener)
{
    if (mPrivate)
        mPrivate->addCommandListener(listener);
}

// Without effect

void ExpandingTreeList::align()
{
    if (auto* list = Road::wait(this, halfOf(), Request::Align))
        list->align();
}

void ExpandingTreeList::unalign()
{
    if (auto* list = Road::wait(this, halfOf(), Request::Unalign))
        list->unalign();
}

// Road across threads

void ExpandingTreeList::processGuiRequest(GuiRequestEvent& event)
{
    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(event.boolParam1); break;
    case Request::Destroy: destroy(); break;
    case Request::Append: append(static_cast<ExpandingTreeListItem*>(event.ptrParam1)); break;
    case Request::GetSelected: answer(event.ptrResult, getSelected()); break;
    case Request::SetTitle: setTitle(event.stringParam1); break;
    case Request::SetTitleTranslation: setTitle(static_cast<TranslationInfo*>(event.ptrParam1)); break;
    case Request::Clear: clear(); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::Align: align(); break;
    case Request::Unalign: unalign(); break;
    case Request::SetReadonly: setReadonly(event.intParam1, event.boolParam1); break;
    case Request::SetRightArrowEqualsOK: setRightArrowEqualsOK(event.boolParam1); break;
    }
    signalComplete(event);
}

}

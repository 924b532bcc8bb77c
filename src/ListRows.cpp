#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/PopupDialer.h>

#include "ExistingDisplayables.h"
#include "ListBoxPrivate.h"
#include "ListTrace.h"

#include <VantoListBoxItemMEG.h>

#include <algorithm>

// What the requests of a list do on the GUI thread. The toolkit's list changes first and the vector after it. In
// between the display tells its subscriber, who may delete the list: then nothing of it may be touched.

namespace DisplayAPI {

namespace {

ListItemPrivateIfc* privateOf(ListItem* item)
{
    return item ? item->getPrivateImplemetation() : nullptr;
}

}

void List::cleanup()
{
    TRACE_LIST("DAPI::List::cleanup() this: %p\n", static_cast<void*>(this));
    retireScreen();
    // The widget deletes the toolkit's rows: the handles below only forget them.
    mPrivate.reset();
    deleteItems();
}

void List::localeChanged(std::string locale)
{
    for (std::size_t i = 0; i < mItems.size(); ++i) {
        if (ListItemPrivateIfc* itemPrivate = privateOf(mItems[i]))
            itemPrivate->localeChanged(locale);
    }
}

void List::createAndAppendItem(ListItem* item)
{
    TRACE_LIST("createAndAppendItem() this: %p\n", static_cast<void*>(this));
    append(item);
}

void List::privateAppend(ListItem* item)
{
    TRACE_LIST("privateAppend() this: %p\n", static_cast<void*>(this));
    if (!isAcceptable(item))
        return;
    Arrival arrival{item, mArrivals};
    item->joinScreen(*this, &List::itemDies);
    if (mPrivate) {
        mArrivals = &arrival;
        mPrivate->append(item->getPrivateImplemetation());
    }
    if (hasArrived(this, arrival))
        mItems.push_back(item);
}

void List::privateInsertAt(ListItem* item, int index)
{
    TRACE_LIST("privateInsertAt() this: %p\n", static_cast<void*>(this));
    if (!isAcceptable(item))
        return;
    Arrival arrival{item, mArrivals};
    item->joinScreen(*this, &List::itemDies);
    if (mPrivate) {
        mArrivals = &arrival;
        mPrivate->insertAt(item->getPrivateImplemetation(), index);
    }
    if (hasArrived(this, arrival))
        mItems.insert(position(index), item);
}

ListItem* List::privateRemoveAt(int index)
{
    TRACE_LIST("privateRemoveAt() this: %p\n", static_cast<void*>(this));
    const int place = std::max(index, 0);
    if (place >= static_cast<int>(mItems.size())) {
        LOG_LIST(3, "removeAt() this %p, cannot remove item at index %d", static_cast<void*>(this), index);
        return nullptr;
    }
    ListItem* item = mItems[static_cast<std::size_t>(place)];
    if (mPrivate)
        mPrivate->removeAt(place, privateOf(item));
    // Inside the notice somebody else may have taken the row, or deleted the list with it.
    const int left = displayableExists(this) ? indexOf(item) : -1;
    if (left < 0)
        return nullptr;
    takeOffVector(left);
    return item;
}

void List::privateRemove(ListItem* item)
{
    TRACE_LIST("privateRemove() this: %p\n", static_cast<void*>(this));
    if (mPrivate && privateOf(item))
        mPrivate->remove(privateOf(item));
    if (!displayableExists(this))
        return;
    // Also a row that is still on its way in, which a subscriber takes back inside its notice.
    if (forgetArrival(item))
        item->leaveScreen();
    takeOffVector(indexOf(item));
}

void List::privateRemoveAll()
{
    for (std::size_t i = 0; i < mItems.size(); ++i) {
        if (mPrivate && privateOf(mItems[i]))
            mPrivate->remove(privateOf(mItems[i]));
        if (!displayableExists(this))
            return;
    }
    for (ListItem* item : mItems)
        item->leaveScreen();
    mItems.clear();
}

void List::privateClear()
{
    if (mPrivate)
        mPrivate->clear();
    if (displayableExists(this))
        deleteItems();
}

void List::privateReplace(ListItem* old, ListItem* replacement)
{
    if (!replacement)
        return;
    if (!old)
        return privateAppend(replacement);
    if (!isAcceptable(replacement))
        return;

    const int index = indexOf(old);
    if (index < 0)
        return appendInsteadOf(old, replacement);
    if (mPrivate) {
        // Not remove(), which takes a list without rows off the screen.
        mPrivate->removeAt(index, privateOf(old));
        if (isDeletedWith(this, replacement))
            return;
        mPrivate->insertAt(replacement->getPrivateImplemetation(), index);
        if (isDeletedWith(this, replacement))
            return;
    }
    takeOffVector(indexOf(old));
    replacement->joinScreen(*this, &List::itemDies);
    mItems.insert(position(index), replacement);
}

void List::appendInsteadOf(ListItem* foreign, ListItem* replacement)
{
    UPointer<UWidget> widget = mPrivate ? mPrivate->getWidget() : nullptr;
    UPointer<UWidget> parent = widget ? widget->parentWidget() : nullptr;
    if (mPrivate && privateOf(foreign))
        mPrivate->remove(privateOf(foreign));
    if (isDeletedWith(this, replacement))
        return;
    // An empty list has left the screen by this; it is about to get a row.
    if (widget && parent && !widget->parentWidget()) {
        widget->setParent(parent.get());
        mPrivate->releaseOwnership();
    }
    privateAppend(replacement);
}

void List::privateMove(ListItem* old, ListItem* replacement, int index)
{
    ListItemPrivateIfc* oldPrivate = privateOf(old);
    ListItemPrivateIfc* newPrivate = privateOf(replacement);
    if (!oldPrivate || !newPrivate) {
        LOG_LIST(2, "oldListItemPrivate[%p] newListItemPrivate[%p]", static_cast<void*>(oldPrivate),
            static_cast<void*>(newPrivate));
    }
    const bool stood = replacement && replacement->screen() == this;
    if (!stood && !isAcceptable(replacement))
        return;
    replacement->joinScreen(*this, &List::itemDies);
    if (mPrivate)
        mPrivate->move(oldPrivate, newPrivate, index);
    if (isDeletedWith(this, stood ? nullptr : replacement))
        return;
    takeOffVector(indexOf(old));
    takeOffVector(indexOf(replacement));
    replacement->joinScreen(*this, &List::itemDies);
    mItems.insert(position(index), replacement);
}

ListItem* List::findSelectedItem()
{
    const int index = mPrivate ? mPrivate->getSelectedIndex() : -1;
    if (index < 0 || index >= static_cast<int>(mItems.size())) {
        TRACE_LIST("findSelectedItem() this: %p returns NULL\n", static_cast<void*>(this));
        return nullptr;
    }
    ListItem* item = mItems[static_cast<std::size_t>(index)];
    TRACE_LIST("findSelectedItem() this: %p returns %p\n", static_cast<void*>(this), static_cast<void*>(item));
    return item;
}

void List::privateSetSelected(ListItem* item)
{
    if (mPrivate && privateOf(item))
        mPrivate->setSelected(privateOf(item));
}

void List::privateClearSelectedBackground()
{
    if (ListItem* item = getSelected())
        item->clearBackground();
}

void List::privateSetDialer(PopupDialer* dialer)
{
    if (dialer && !displayableExists(dialer))
        return;
    mDialer = dialer;
    if (mPrivate)
        mPrivate->setDialler(dialer);
}

PopupDialer* List::livingDialer() const
{
    return displayableExists(mDialer) ? mDialer : nullptr;
}

void List::copyItemsTo(std::vector<ListItem*>* copy) const
{
    if (copy)
        *copy = mItems;
}

/// False for a row that is not ready, or that a screen or a toolkit list holds already.
bool List::isAcceptable(ListItem* item) const
{
    ListItemPrivateIfc* itemPrivate = privateOf(item);
    if (!itemPrivate)
        return false;
    VantoListBoxItemMEG* row = itemPrivate->getVantoListItem();
    if (!item->screen() && !(row && row->parentWidget()))
        return true;
    TRACE_LIST("refused, stands in a list already: this: %p item %p\n", static_cast<const void*>(this),
        static_cast<void*>(item));
    return false;
}

int List::indexOf(const ListItem* item) const
{
    auto found = std::find(mItems.begin(), mItems.end(), item);
    return found == mItems.end() ? -1 : static_cast<int>(found - mItems.begin());
}

std::vector<ListItem*>::iterator List::position(int index)
{
    return mItems.begin() + std::clamp(index, 0, static_cast<int>(mItems.size()));
}

void List::takeOffVector(int index)
{
    if (index < 0)
        return;
    mItems[static_cast<std::size_t>(index)]->leaveScreen();
    mItems.erase(mItems.begin() + index);
}

void List::deleteItems()
{
    for (Arrival* arrival = mArrivals; arrival; arrival = arrival->outer)
        delete arrival->item; // which leaves the list, and so the arrival
    while (!mItems.empty()) {
        ListItem* item = mItems.back();
        mItems.pop_back();
        item->leaveScreen();
        delete item;
    }
}

/// After the notice of a row on its way in: false if the row has been taken back or has died there, or if the list
/// has, which takes the row with it.
bool List::hasArrived(List* list, const Arrival& arrival)
{
    if (isDeletedWith(list, arrival.item))
        return false;
    list->mArrivals = arrival.outer;
    return arrival.item != nullptr;
}

bool List::forgetArrival(const ListItem* item)
{
    for (Arrival* arrival = mArrivals; arrival; arrival = arrival->outer) {
        if (item && arrival->item == item) {
            arrival->item = nullptr;
            return true;
        }
    }
    return false;
}

/// After a notice: true if the list has gone meanwhile. Then the row on its way in, which was the list's already,
/// goes too.
bool List::isDeletedWith(const List* list, ListItem* item)
{
    if (displayableExists(list))
        return false;
    if (item) {
        item->leaveScreen();
        delete item;
    }
    return true;
}

void List::itemDies(Displayable& screen, ListItem& item, ListItemPrivateIfc* itemPrivate)
{
    auto& list = static_cast<List&>(screen);
    const bool wasArriving = list.forgetArrival(&item);
    const int index = list.indexOf(&item);
    if (index < 0 && !wasArriving)
        return;
    // Off the vector first: the notice may delete the list, which deletes the rows that it still has.
    list.takeOffVector(index);
    if (list.mPrivate)
        list.mPrivate->removeAt(index, itemPrivate);
}

// Without effect on this telephone: the interface of a richer list

void List::align() { }
void List::align(Displayable&) { }
void List::unalign() { }
void List::appendItems(const std::vector<ListItem*>&) { }
void List::appendItems(const std::string&) { }
void List::appendItems(TranslationInfo*) { }
void List::setHeaderText(const std::string&) { }
void List::setHeaderText(TranslationInfo*) { }
void List::setHeaderTextHint(const std::string&) { }
void List::setHeaderRightText(const std::string&) { }
void List::setHeaderRightText(TranslationInfo*) { }
void List::showHeaderTextEntryField() { }
void List::hideHeaderTextEntryField() { }
void List::setEditMode(int) { }
std::string List::getUserEnteredHeaderText()
{
    return {};
}
void List::setUserEnteredHeaderText(const std::string&) { }
void List::enableUserEditableHeader() { }
void List::disableUserEditableHeader() { }
void List::setHeaderIcon(Icons::IconType) { }
void List::setHeaderLeftImage(Image*) { }
void List::setContactAvatar(Image*) { }
void List::setHeaderLeftIcon(Icons::IconType) { }
void List::setHeaderNotificationCount(int) { }
void List::setHeaderLinePosition(int) { }
void List::setTime(const std::string&) { }
void List::setFilterTypes(const std::vector<std::string>&) { }
std::string List::getFilterType()
{
    return {};
}
void List::setFilterType(const std::string&) { }
void List::setFilterHeader(const std::string&) { }
std::string List::getFilterHeader()
{
    return {};
}
void List::setIsPageList(bool) { }
int List::getCurrentPageNumber()
{
    return -1;
}
void List::setCurrentLayer(int) { }
void List::setNumberVisible(bool) { }
void List::setEnabled(bool) { }
void List::setUsedWithTab(bool) { }
void List::setWrapAround(bool) { }
void List::ignoreButtonPress(bool) { }
void List::suppressAutoRightArrowForSoftKeys(bool) { }
void List::addItemToRemoveListContainer(ListItem*) { }
void List::tidyup() { }

}

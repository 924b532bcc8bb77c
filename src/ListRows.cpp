#include "ListRows.h"

#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/PopupDialer.h>

#include "ExistingDisplayables.h"
#include "ListBoxPrivate.h"
#include "ListTrace.h"
#include "Road.h"

#include <algorithm>
#include <climits>
#include <memory>

// What the requests of a list do on the GUI thread. The toolkit's list changes first and getItems() after it. In
// between the display tells its subscriber, who may delete the list: then nothing of it may be touched.

namespace DisplayAPI {

// The steps of the requests

void List::create(bool hasBackItem)
{
    mHasBackItem = hasBackItem;
    if (!mPrivate)
        mPrivate = std::make_unique<ListBoxPrivate>(this, hasBackItem);
}

void List::cleanup()
{
    TRACE_LIST("DAPI::List::cleanup() this: %p\n", static_cast<void*>(this));
    retireScreen();
    // The widget deletes the toolkit's rows: the handles behind it only forget them.
    mPrivate.reset();
    mItems->end();
}

void List::localeChanged(std::string locale)
{
    mItems->localeChanged(locale);
}

void List::createAndAppendItem(ListItem* item)
{
    TRACE_LIST("createAndAppendItem() this: %p\n", static_cast<void*>(this));
    append(item);
}

void List::privateAppend(ListItem* item)
{
    TRACE_LIST("privateAppend() this: %p\n", static_cast<void*>(this));
    mItems->append(item);
}

void List::privateInsertAt(ListItem* item, int index)
{
    TRACE_LIST("privateInsertAt() this: %p\n", static_cast<void*>(this));
    mItems->insertAt(item, index);
}

ListItem* List::privateRemoveAt(int index)
{
    TRACE_LIST("privateRemoveAt() this: %p\n", static_cast<void*>(this));
    const int place = std::max(index, 0);
    if (!mItems->at(place))
        LOG_LIST(3, "removeAt() this %p, cannot remove item at index %d", static_cast<void*>(this), index);
    return mItems->removeAt(place);
}

void List::privateRemove(ListItem* item)
{
    TRACE_LIST("privateRemove() this: %p\n", static_cast<void*>(this));
    mItems->remove(item);
}

void List::privateRemoveAll()
{
    mItems->giveBackAll([this](ListItemPrivateIfc* half) {
        if (mPrivate)
            mPrivate->remove(half);
    });
}

void List::privateClear()
{
    mItems->clear();
}

void List::privateReplace(ListItem* old, ListItem* replacement)
{
    if (!replacement)
        return;
    if (!old)
        return privateAppend(replacement);
    if (!Rows::isFree(replacement))
        return;

    const Rows::Row leaving(old);
    const Rows::Row coming(replacement);
    const int index = mItems->indexOf(leaving);
    const Rows::Step step(*mItems);
    mItems->startLeaving(leaving);
    // Held from here on: the notice of what leaves must not give it to somebody else.
    mItems->expect(*replacement, index < 0 ? INT_MAX : index);
    if (index >= 0) {
        mItems->exchange(index, Rows::halfOf(old), coming);
    } else {
        if (mPrivate)
            mPrivate->remove(Rows::halfOf(old));
        if (step && mItems->isExpected(coming))
            mItems->bringToEnd(*replacement);
    }
    if (step)
        mItems->finishLeaving(leaving);
}

void List::privateMove(ListItem* old, ListItem* replacement, int index)
{
    ListItemPrivateIfc* oldPrivate = Rows::halfOf(old);
    ListItemPrivateIfc* newPrivate = Rows::halfOf(replacement);
    if (!oldPrivate || !newPrivate) {
        LOG_LIST(2, "oldListItemPrivate[%p] newListItemPrivate[%p]", static_cast<void*>(oldPrivate),
            static_cast<void*>(newPrivate));
    }
    if (!mItems->holds(replacement) && !Rows::isFree(replacement))
        return;
    const Rows::Row leaving(old);
    const Rows::Step step(*mItems);
    if (old != replacement)
        mItems->startLeaving(leaving);
    mItems->expect(*replacement, index);
    mItems->bringIn(Rows::Row(replacement), [this, oldPrivate, index](ListItemPrivateIfc* half) {
        if (mPrivate)
            mPrivate->move(oldPrivate, half, index);
    });
    if (step && old != replacement)
        mItems->finishLeaving(leaving);
}

ListItem* List::findSelectedItem()
{
    ListItem* item = mPrivate ? mItems->at(mPrivate->getSelectedIndex()) : nullptr;
    if (item)
        TRACE_LIST("findSelectedItem() this: %p returns %p\n", static_cast<void*>(this), static_cast<void*>(item));
    else
        TRACE_LIST("findSelectedItem() this: %p returns NULL\n", static_cast<void*>(this));
    return item;
}

void List::privateSetSelected(ListItem* item)
{
    if (mPrivate)
        mPrivate->setSelected(Rows::halfOf(item));
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
    mDialer = std::make_unique<HeldDialer>(dialer);
    if (mPrivate)
        mPrivate->setDialler(dialer);
}

PopupDialer* List::livingDialer() const
{
    return mDialer ? mDialer->get() : nullptr;
}

void List::copyItemsTo(std::vector<ListItem*>* copy) const
{
    if (copy)
        *copy = mItems->all();
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

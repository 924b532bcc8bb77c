#include "QVTListPrivate.h"

#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/QVTList.h>

#include "CurrentApplication.h"
#include "ExistingDisplayables.h"
#include "GuiThread.h"
#include "HeldRows.h"
#include "ListTrace.h"
#include "TellAndShow.h"

#include <UEvent.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <utility>

namespace DisplayAPI {

namespace {

/// The toolkit's row of a half, with the half as its handle; null for none.
VantoListBoxItemMEG* markedRow(ListItemPrivateIfc& half)
{
    VantoListBoxItemMEG* row = half.getVantoListItem();
    if (row)
        row->setHandle(reinterpret_cast<long>(&half));
    return row;
}

}

QVTListPrivate::QVTListPrivate(QVTList* parent)
    : mParent(parent)
    , mWidget(new VantoListBoxWithTitleMEG)
{
    assertGuiThread();
    list()->setListener(this);
    joinApplication(this);
}

QVTListPrivate::~QVTListPrivate()
{
    assertGuiThread();
}

Displayable* QVTListPrivate::getParent()
{
    return mParent;
}

// Screen

void QVTListPrivate::show()
{
    mSelectionChanged = true;
    if (!mWidget)
        return;
    list()->enable();
    mWidget->show();
}

void QVTListPrivate::hide()
{
    if (mWidget)
        mWidget->hide();
}

void QVTListPrivate::lostFocus()
{
    mSelectionChanged = false;
    if (!mWidget)
        return;
    list()->disable();
    generateDisplayChangedEvent();
}

std::string QVTListPrivate::serialise()
{
    return mWidget ? DisplayablePrivate::serialise() : std::string();
}

std::string QVTListPrivate::serialise(const std::vector<Rect>&)
{
    return {};
}

// Display lines

void QVTListPrivate::titletext(unsigned int line, const std::string& text)
{
    titletext(line, new TranslationInfo(text, nullptr));
}

void QVTListPrivate::titletext(unsigned int line, TranslationInfo* text)
{
    if (text)
        mDisplayTexts[line].take(text);
    else
        mDisplayTexts.erase(line);
    if (mWidget)
        generateDisplayChangedEvent();
}

void QVTListPrivate::cleartitle()
{
    TRACE_LIST("clearDisplay() is not implemented on this hardware");
}

void QVTListPrivate::setTitle(TranslationInfo*)
{
    TRACE_LIST("setTitle() of a translation is not implemented on this hardware");
}

void QVTListPrivate::setTitle(const std::string&)
{
    TRACE_LIST("setTitle() of a text is not implemented on this hardware");
}

// Rows

int QVTListPrivate::size()
{
    return list() ? list()->numItems() : 0;
}

void QVTListPrivate::append(ListItemPrivateIfc* row)
{
    if (!row || !list())
        return;
    if (VantoListBoxItemMEG* widget = markedRow(*row)) {
        list()->hideHighlightBar();
        list()->addItem(widget);
    }
    row->releaseOwnership();
    generateDisplayChangedEvent();
}

void QVTListPrivate::insertAt(ListItemPrivateIfc* row, int index)
{
    if (!row || index < 0 || !list())
        return;
    if (VantoListBoxItemMEG* widget = markedRow(*row))
        list()->insertItem(widget, index);
    row->releaseOwnership();
    generateDisplayChangedEvent();
}

void QVTListPrivate::remove(ListItemPrivateIfc* row)
{
    if (!row || !list())
        return;
    HeldRows::giveToHalf(list(), *row);
    generateDisplayChangedEvent();
}

void QVTListPrivate::removeAt(int index, ListItemPrivateIfc* row)
{
    VantoListBoxItemMEG* widget = list() ? list()->item(index) : nullptr;
    ListItemPrivateIfc* owner = row;
    if (!row || row->getVantoListItem() != widget) {
        // Here the handles have another order than the glass. A row that is about to die only takes its own with it.
        if (row && !findHalf([row](ListItemPrivateIfc& half) { return &half == row; }))
            return remove(row);
        owner = findHalf([widget](ListItemPrivateIfc& half) { return half.getVantoListItem() == widget; });
    }
    if (!widget)
        return;
    list()->removeItem(widget);
    if (owner)
        owner->gainOwnership();
    else
        delete widget; // its handle has gone, or has forgotten this list
    generateDisplayChangedEvent();
}

/// The half of a row of the handle for which this is true; null for none.
template <typename Condition>
ListItemPrivateIfc* QVTListPrivate::findHalf(Condition isWanted) const
{
    for (ListItem* item : mParent->getItems()) {
        ListItemPrivateIfc* half = HeldRows::halfOf(item);
        if (half && isWanted(*half))
            return half;
    }
    return nullptr;
}

void QVTListPrivate::clear()
{
    if (list())
        list()->clear();
}

// Selection

int QVTListPrivate::getSelectedIndex()
{
    return list() ? list()->currentIndex() : -1;
}

void QVTListPrivate::setSelectedIndex(int index)
{
    if (!list())
        return;
    list()->setCurrentIndex(index);
    list()->showHighlightBar();
}

void QVTListPrivate::setSelected(ListItemPrivateIfc* row)
{
    VantoListBoxItemMEG* widget = row ? row->getVantoListItem() : nullptr;
    const int index = widget && list() ? list()->indexOf(widget) : -1;
    if (index < 0)
        return;
    setSelectedIndex(index);
    generateDisplayChangedEvent();
}

bool QVTListPrivate::selectionchanged() const
{
    return std::exchange(mSelectionChanged, false);
}

// What the user does. A listener may delete the list.

void QVTListPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::RowMoved: currentChanged(event->source()); break;
    case EventType::RowChosen: tellParent(List::SELECT_COMMAND()); break;
    case EventType::LeftPressed: tellParent(List::BACK_COMMAND()); break;
    case EventType::RightPressed: tellParent(List::RIGHT_COMMAND()); break;
    case EventType::LocaleChanged: localeChanged({}); break;
    }
}

void QVTListPrivate::currentChanged(UAgent* row)
{
    mSelectionChanged = list() && list()->isEnabled() && mHasLastCurrentItem && mLastCurrentItem.get() != row;
    mHasLastCurrentItem = row != nullptr;
    mLastCurrentItem = row;
    generateDisplayChangedEvent();
}

void QVTListPrivate::localeChanged(std::string locale)
{
    // Not the handle's own operation of this name, which does nothing.
    if (displayableExists(mParent))
        static_cast<List*>(mParent)->localeChanged(std::move(locale));
}

void QVTListPrivate::tellParent(Command* command)
{
    tellAndShow(*this, displayableExists(mParent) ? command : nullptr, mParent);
}

}

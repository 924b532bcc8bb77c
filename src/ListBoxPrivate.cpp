#include "ListBoxPrivate.h"

#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include "CurrentApplication.h"
#include "ExistingDisplayables.h"
#include "GuiThread.h"
#include "HeldRows.h"
#include "ScreenHolder.h"
#include "Serialiser.h"
#include "TellAndShow.h"
#include "TranslationHolder.h"
#include "WidgetRects.h"

#include <TreeItemMEG.h>
#include <UApplication.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoListBoxMEG.h>

namespace DisplayAPI {

ListBoxPrivate::ListBoxPrivate(Displayable* owner, bool hasBackItem)
    : mOwner(owner)
    , mWidget(new VantoListBoxWithTitleMEG)
    , mHasBackItem(hasBackItem)
{
    list()->setListener(this);
    initialise();
}

ListBoxPrivate::ListBoxPrivate(Displayable* owner, VantoListBoxWithTitleMEG* widget)
    : mOwner(owner)
    , mWidget(widget)
{
    initialise();
}

ListBoxPrivate::~ListBoxPrivate()
{
    assertGuiThread();
    leaveApplication(this);
}

void ListBoxPrivate::initialise()
{
    assertGuiThread();
    joinApplication(this);
}

// Screen

void ListBoxPrivate::show()
{
    if (list())
        list()->enable();
}

void ListBoxPrivate::hide()
{
    if (list())
        list()->disable();
}

void ListBoxPrivate::lostFocus()
{
    // Not hide(), which a subclass may have made its own.
    if (list())
        list()->disable();
    generateDisplayChangedEvent();
}

std::string ListBoxPrivate::serialise()
{
    return {};
}

std::string ListBoxPrivate::serialise(const std::vector<Rect>& rects)
{
    Serialiser serialiser;
    std::string text = serialiser.serialiseVantoListBox(widgetRects(rects), mWidget);
    mHasCaption = serialiser.hasCaption();
    return text;
}

// Rows

int ListBoxPrivate::size()
{
    return list() ? list()->numItems() : 0;
}

void ListBoxPrivate::append(ListItemPrivateIfc* row)
{
    assertGuiThread();
    if (!row || !list())
        return;
    if (VantoListBoxItemMEG* widget = row->getVantoListItem()) {
        list()->addItem(widget);
        listenTo(widget);
    }
    row->releaseOwnership();
    comeBack();
    generateDisplayChangedEvent();
}

/// The duration of a call changes by itself; and a list of calls has a place of its own.
void ListBoxPrivate::listenTo(VantoListBoxItemMEG* row)
{
    auto* call = dynamic_cast<TreeItemMEG*>(row);
    if (!call)
        return;
    mWidget->setCoordinates(3, 0, 157, 13);
    list()->setCoordinates(3, 0, 157, 13);
    call->branch->setListener(this);
}

void ListBoxPrivate::clear()
{
    assertGuiThread();
    if (list())
        list()->clear();
    generateDisplayChangedEvent();
}

int ListBoxPrivate::getSelectedIndex()
{
    return list() ? list()->currentIndex() : -1;
}

void ListBoxPrivate::setSelectedIndex(int index)
{
    if (list())
        list()->setCurrentIndex(index);
}

void ListBoxPrivate::setSelected(ListItemPrivateIfc* row)
{
    VantoListBoxItemMEG* widget = row ? row->getVantoListItem() : nullptr;
    if (!widget || !list())
        return;
    UApplication* application = UApplication::instance();
    if (application && dynamic_cast<TreeItemMEG*>(widget) && !widget->getText().isEmpty())
        application->windowManager()->repaint();
    const int index = list()->indexOf(widget);
    if (index < 0)
        return;
    list()->setCurrentIndex(index);
    generateDisplayChangedEvent();
}

void ListBoxPrivate::insertAt(ListItemPrivateIfc* row, int index)
{
    if (!row || !list())
        return;
    if (VantoListBoxItemMEG* widget = row->getVantoListItem())
        list()->insertItem(widget, index);
    row->releaseOwnership();
    comeBack();
    generateDisplayChangedEvent();
}

void ListBoxPrivate::removeAt(int, ListItemPrivateIfc* row)
{
    if (row)
        HeldRows::giveToHalf(list(), *row);
    generateDisplayChangedEvent();
}

void ListBoxPrivate::remove(ListItemPrivateIfc* row)
{
    if (!row)
        return;
    if (HeldRows::giveToHalf(list(), *row) && list() && list()->count() == 0)
        leaveScreen();
    generateDisplayChangedEvent();
}

void ListBoxPrivate::leaveScreen()
{
    if (UWidget* parent = mWidget->parentWidget())
        mFormerParent = parent;
    mWidget->setParent(nullptr);
    // Nobody else would delete the widget now.
    gainOwnership();
}

/// A list that had left the screen for want of rows is back with its first one, as if it were shown again.
void ListBoxPrivate::comeBack()
{
    UWidget* parent = mFormerParent.get();
    if (!parent || !parent->isVisible() || mWidget->parentWidget())
        return;
    if (ScreenHolder* around = holder())
        return around->takeBack(*this);
    DisplayPrivateIfc* on = display();
    if (!on || on->getCurrent() != mOwner)
        return;
    mWidget->setParent(parent);
    releaseOwnership();
}

void ListBoxPrivate::move(ListItemPrivateIfc* oldRow, ListItemPrivateIfc* newRow, int index)
{
    if (!newRow || !list())
        return;
    if (oldRow)
        HeldRows::giveToHalf(list(), *oldRow);
    if (VantoListBoxItemMEG* widget = newRow->getVantoListItem()) {
        list()->removeItem(widget);
        list()->insertItem(widget, index);
    }
    newRow->releaseOwnership();
    comeBack();
    generateDisplayChangedEvent();
}

// Title

void ListBoxPrivate::setTitle(const std::string& title)
{
    showTitle(mTitleInfo.show(title) + mTitleSuffix);
    generateDisplayChangedEvent();
}

void ListBoxPrivate::setTitle(TranslationInfo* title)
{
    const std::string text = mTitleInfo.show(title);
    showTitle(title ? text + mTitleSuffix : text);
    translateBack();
    generateDisplayChangedEvent();
}

void ListBoxPrivate::showTitle(const std::string& title)
{
    if (mWidget)
        mWidget->setTitle(UString(title));
}

/// The way back is named by the translator of the title.
void ListBoxPrivate::translateBack()
{
    if (list() && mTitleInfo.translator())
        list()->translateBack(backText(mTitleInfo.translator()));
}

void ListBoxPrivate::localeChanged(std::string locale)
{
    if (TranslatorIfc* translator = commonTranslator) {
        VantoListBoxMEG::setBackText(backText(translator));
        VantoListBoxMEG::setDeleteText(deleteText(translator));
        if (list())
            list()->translateBack(UString());
    }
    if (mTitleInfo) {
        showTitle(mTitleInfo.completeString() + mTitleSuffix);
        translateBack();
    }
    if (!displayableExists(mOwner))
        return;
    if (auto* owner = dynamic_cast<List*>(mOwner))
        owner->localeChanged(std::move(locale));
}

// Dialer

void ListBoxPrivate::setDialler(PopupDialer* dialer)
{
    // The dialer that loses the focus may tell of it, and a subscriber may delete the list.
    LifeNode life(this);
    dismissDialler();
    if (!life.isAlive())
        return;
    mDialerPrivate = dialer ? dynamic_cast<PopupDialerPrivateIfc*>(dialer->getPrivateImpl()) : nullptr;
    mDialerActive = false;
}

void ListBoxPrivate::dismissDialler()
{
    if (!mDialerPrivate || !mDialerActive)
        return;
    mDialerActive = false;
    mDialerPrivate->lostFocus();
}

// What the user does. A listener may delete the list.

bool ListBoxPrivate::keyEvent(UKeyEvent* key)
{
    if (!mDialerPrivate)
        return false;
    LifeNode life(this);
    mDialerPrivate->keyEvent(key);
    if (life.isAlive())
        mDialerActive = true;
    return true;
}

void ListBoxPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::RowMoved:
    case EventType::ContentChanged: generateDisplayChangedEvent(); break;
    case EventType::RowChosen: clicked(); break;
    case EventType::LeftPressed: leftEvent(); break;
    case EventType::RightPressed: rightEvent(); break;
    case EventType::LocaleChanged: localeChanged({}); break;
    }
}

void ListBoxPrivate::clicked()
{
    tellOwner(List::SELECT_COMMAND());
}

void ListBoxPrivate::leftEvent()
{
    tellOwner(List::BACK_COMMAND());
}

void ListBoxPrivate::rightEvent()
{
    tellOwner(List::RIGHT_COMMAND());
}

void ListBoxPrivate::tellOwner(Command* command)
{
    tellAndShow(*this, displayableExists(mOwner) ? command : nullptr, mOwner);
}

}

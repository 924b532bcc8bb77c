#include "FormPrivate.h"

#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/TextFieldPrivateIfc.h>

#include "CommandText.h"
#include "CurrentApplication.h"
#include "ExistingDisplayables.h"
#include "GuiThread.h"
#include "SelectionFieldPrivate.h"
#include "SliderItemPrivate.h"
#include "TellAndShow.h"

#include <EventTypes.h>
#include <HardwareVersion.h>
#include <UEvent.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <cstddef>

namespace DisplayAPI {

namespace {

constexpr int VariantWithoutFlag = 3;

FormWidgetMEG* makeWidget(Form::FormProportionType proportion)
{
    const bool isKnown = proportion >= Form::Proportion0 && proportion <= Form::Proportion3;
    return new FormWidgetMEG(static_cast<FormWidgetMEG::FormProportionType>(isKnown ? proportion : Form::Proportion0),
        HardwareVersion::getHWSubVariant() != VariantWithoutFlag);
}

/// The row belongs to the item again. The interface that all items share has no operation for it.
void takeBack(ItemPrivateIfc* item)
{
    if (auto* text = dynamic_cast<TextFieldPrivateIfc*>(item))
        text->gainOwnership();
    else if (auto* selection = dynamic_cast<SelectionFieldPrivate*>(item))
        selection->gainOwnership();
    else if (auto* slider = dynamic_cast<SliderItemPrivate*>(item))
        slider->gainOwnership();
}

}

// Life

FormPrivate::FormPrivate(Form::FormProportionType proportion)
{
    assertGuiThread();
    if (VantoUApplication::getCurrentApplication()) {
        mWidget = makeWidget(proportion);
        mHasHadWidget = true;
        mWidget->setListener(this);
        mOwnership.gainOwnership();
    }
    joinApplication(this);
    setSpellerLanguage(commonTranslator);
}

FormPrivate::~FormPrivate()
{
    assertGuiThread();
    leaveApplication(this);
    mCommandRows.clear();
    cleanUp();
}

void FormPrivate::cleanUp()
{
    if (!mWidget)
        return;
    mWidget->removeListener(this);
    if (mOwnership.hasOwnership())
        delete mWidget;
}

void FormPrivate::show()
{
    if (!mWidget)
        return;
    mWidget->show();
    if (list() && list()->currentItem())
        list()->currentItem()->setVisible(true);
    mWidget->refresh();
}

// Items

FormItemMEG* FormPrivate::rowOf(ItemPrivateIfc* item) const
{
    FormItemIfc* row = item ? item->getWidget() : nullptr;
    return row ? static_cast<FormItemMEG*>(row) : nullptr;
}

Item* FormPrivate::itemAt(unsigned int index) const
{
    const std::vector<Item*> items = mParent ? mParent->getItems() : std::vector<Item*>();
    return index < items.size() ? items[index] : nullptr;
}

void FormPrivate::append(ItemPrivateIfc* item)
{
    if (takeRow(item))
        mWidget->insertRowBefore(rowOf(item), mFirstCommandRow.get());
    generateDisplayChangedEvent();
}

void FormPrivate::insertItem(ItemPrivateIfc* item, int index)
{
    if (takeRow(item))
        mWidget->insertRowAt(rowOf(item), index);
    generateDisplayChangedEvent();
}

/// Without a widget the row stays its item's, since nobody else would delete it.
bool FormPrivate::takeRow(ItemPrivateIfc* item)
{
    if (!mWidget || !rowOf(item))
        return false;
    item->releaseOwnership();
    return true;
}

/// Takes an item's row out of all its places and gives it back. False if the row does not stand here.
bool FormPrivate::giveRow(ItemPrivateIfc* item)
{
    FormItemMEG* row = rowOf(item);
    if (!row || !list() || row->parentWidget() != list())
        return false;
    mWidget->removeItem(row);
    takeBack(item);
    return true;
}

void FormPrivate::saveItemRef(Item* item, FormItemIfc* row, int index)
{
    std::erase_if(mPairs, [](const Pair& pair) { return !pair.item; });
    const bool isEnd = index < 0 || static_cast<std::size_t>(index) > mPairs.size();
    const auto place = isEnd ? mPairs.end() : mPairs.begin() + index;
    mPairs.insert(place, {Living<Item>(item), row ? static_cast<FormItemMEG*>(row) : nullptr});
}

void FormPrivate::removeItemRef(unsigned int index)
{
    const Living<Item> item(itemAt(index));
    std::erase_if(mPairs, [&item](const Pair& pair) { return pair.item == item; });
}

void FormPrivate::removeItem(unsigned int index)
{
    Item* item = itemAt(index);
    if (!item)
        return;
    giveRow(item->getPrivateImpl());
    generateDisplayChangedEvent();
}

void FormPrivate::dropItem(Item* item, ItemPrivateIfc* half)
{
    const bool isGiven = giveRow(half);
    for (const Pair& pair : mPairs) {
        // A row that no half can take back is nobody's else.
        if (pair.item.isAt(item) && !isGiven && list() && pair.row && list()->indexOf(pair.row) >= 0)
            delete pair.row;
    }
    std::erase_if(mPairs, [item](const Pair& pair) { return pair.item.isAt(item); });
    generateDisplayChangedEvent();
}

void FormPrivate::exchangeRow(FormItemMEG& before, FormItemMEG& now)
{
    if (!mWidget)
        return;
    mWidget->replaceRow(&before, &now);
    for (Pair& pair : mPairs) {
        if (pair.row == &before)
            pair.row = &now;
    }
}

Item* FormPrivate::getSelected()
{
    const FormItemMEG* row = mWidget ? mWidget->currentRow() : nullptr;
    const auto found = std::find_if(
        mPairs.begin(), mPairs.end(), [row](const Pair& pair) { return row && pair.row == row && pair.item; });
    return found == mPairs.end() ? nullptr : found->item.get();
}

void FormPrivate::setSelected(Item* item)
{
    const auto found = std::find_if(
        mPairs.rbegin(), mPairs.rend(), [item](const Pair& pair) { return item && pair.item.get() == item; });
    if (found != mPairs.rend() && found->row && mWidget)
        mWidget->setCurrentRow(found->row);
}

// Commands and listeners

void FormPrivate::addCommand(Command* command)
{
    const std::optional<CommandText> shown = readCommand(command);
    if (!shown)
        return;
    if (mWidget) {
        auto* row = new FormItemMEG(UString(shown->text), UString(), FormItemIfc::CommandField, false);
        if (!mFirstCommandRow)
            mFirstCommandRow = row;
        mCommandRows.emplace(row, shown->command);
        mWidget->appendRow(row);
    }
    generateDisplayChangedEvent();
}

void FormPrivate::clearCommands()
{
    for (const auto& [row, command] : mCommandRows) {
        if (!list() || list()->indexOf(row) < 0)
            continue;
        mWidget->removeItem(row);
        delete row;
    }
    mCommandRows.clear();
    mFirstCommandRow = nullptr;
}

// Texts

void FormPrivate::setTitle(std::string title)
{
    if (mWidget)
        mWidget->setCaption(UString(title));
    generateDisplayChangedEvent();
}

void FormPrivate::setTitle(TranslationInfo* title)
{
    mTitleInfo.take(title);
    showTranslatedTitle();
}

void FormPrivate::showTranslatedTitle()
{
    if (!mWidget)
        return;
    mWidget->setCaption(UString(mTitleInfo.completeString()));
    list()->setCurrentItem(0);
}

std::string FormPrivate::title()
{
    return mWidget ? mWidget->getCaption().toUTF8() : std::string();
}

std::string FormPrivate::getClipboard()
{
    return mWidget ? mWidget->getClipboard().toUTF8() : std::string();
}

void FormPrivate::setClipboard(std::string text)
{
    if (mWidget)
        mWidget->setClipboard(UString(text));
}

void FormPrivate::localeChanged(std::string locale)
{
    // A half may be the application's own, and take items out or the form with it.
    LifeNode life(this);
    for (std::size_t i = 0; life.isAlive() && i < mPairs.size(); ++i) {
        Item* item = mPairs[i].item.get();
        if (ItemPrivateIfc* half = item ? item->getPrivateImpl() : nullptr)
            half->localeChanged(locale);
    }
    if (!life.isAlive() || !mTitleInfo)
        return;
    showTranslatedTitle();
    updateFormSpellerLang();
}

// What the user does. A listener may delete the form.

void FormPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::RowMoved: selectionFieldChanged(); break;
    case EventType::LeftPressed: leftEvent(); break;
    case EventType::ValueCommitted:
        mSlot.slotFunc(dynamic_cast<FormItemMEG*>(event->payload()));
        formDisplayChanged();
        break;
    case EventType::SpellerConfirmed: spellerOk(); break;
    case EventType::FormRowChosen: clicked(); break;
    case EventType::DisplayModeChanged: formDisplayChanged(); break;
    case EventType::HighlightMoved: listDisplayChanged(); break;
    case EventType::SelectionListMoved: contextMenuChanged(); break;
    case EventType::SpellerCopied: clipboardChanged(); break;
    case EventType::LocaleChanged: localeChanged({}); break;
    default: break;
    }
}

void SlotItemObject::slotFunc(FormItemMEG* row)
{
    for (const FormPrivate::Pair& pair : mForm.mPairs) {
        Item* item = row && pair.row == row ? pair.item.get() : nullptr;
        Displayable* parent = item ? item->getParent() : nullptr;
        if (parent && displayableExists(parent))
            parent->callListeners(item);
    }
}

void FormPrivate::selectionFieldChanged()
{
    tell(Form::SELECTION_CHANGED_COMMAND());
}

void FormPrivate::leftEvent()
{
    tellAndShow(*this, Form::BACK_COMMAND(), mParent);
}

void FormPrivate::spellerOk()
{
    tell(Form::SAVE_COMMAND());
}

void FormPrivate::clicked()
{
    if (!mWidget)
        return;
    const auto found = mCommandRows.find(mWidget->currentRow());
    Command* command = found == mCommandRows.end() ? Form::OK_COMMAND() : found->second.get();
    tellAndShow(*this, command, mParent);
}

void FormPrivate::formDisplayChanged()
{
    generateDisplayChangedEvent();
}

void FormPrivate::listDisplayChanged()
{
    generateDisplayChangedEvent();
}

void FormPrivate::contextMenuChanged()
{
    tellAndShow(*this, Form::SELECTION_DISPLAY_COMMAND(), mParent);
}

void FormPrivate::clipboardChanged()
{
    tell(Form::CLIPBOARD_CHANGED_COMMAND());
}

void FormPrivate::tell(Command* command)
{
    postCommand(command, mParent);
}

}

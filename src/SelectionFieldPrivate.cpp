#include "SelectionFieldPrivate.h"

#include <DisplayAPI/MenuCommand.h>

#include "CommandText.h"
#include "CurrentApplication.h"
#include "GuiThread.h"

#include <ContextMenuMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <utility>

namespace DisplayAPI {

namespace {

/// The handle of a choice whose command has died, and whose address is another's now. No command stands there.
constexpr long NobodysAddress = -1;

long handleOf(const Command* command)
{
    return reinterpret_cast<long>(command);
}

std::optional<std::string> basicTextOf(const Living<Command>& command)
{
    return askCommand(command, [](const Command& living) { return living.getBasicText(); });
}

}

SelectionFieldPrivate::SelectionFieldPrivate(TranslationInfo* label, MenuCommand* value, Form* form)
    : mRow(new FormItemMEG(UString(mLabelInfo.show(label)),
        UString(basicTextOf(Living<Command>(value)).value_or(std::string())), FormItemIfc::SelectionField, false))
{
    assertGuiThread();
    init(form, true);
}

SelectionFieldPrivate::~SelectionFieldPrivate()
{
    assertGuiThread();
    // The row may outlive the back command.
    if (list())
        mRow->selectionList()->setBackHandle(0);
}

void SelectionFieldPrivate::init(const Form* form, bool hasBackRow)
{
    if (!VantoUApplication::getCurrentApplication() || !form)
        return;
    mBackCommand
        = std::make_unique<Command>(new TranslationInfo("", "Back", "?", mLabelInfo.translator()), Command::Back);
    auto* menu = new ContextMenuMEG(nullptr, hasBackRow, handleOf(mBackCommand.get()), mBackCommand->getText());
    menu->setDrawLineAtTop(false);
    mRow->setContextMenu(menu);
}

VantoListBoxMEG* SelectionFieldPrivate::list() const
{
    const ContextMenuMEG* menu = mRow ? mRow->selectionList() : nullptr;
    return menu ? menu->listBox : nullptr;
}

// Value

void SelectionFieldPrivate::setFieldContents(MenuCommand* command)
{
    if (const auto text = basicTextOf(Living<Command>(command)))
        showValue(*text);
}

void SelectionFieldPrivate::showValue(const std::string& value)
{
    if (mRow)
        mRow->setValueText(UString(value));
}

void SelectionFieldPrivate::setSelectionIndex(int index)
{
    if (mRow)
        mRow->setSelectionIndex(static_cast<unsigned int>(index));
}

int SelectionFieldPrivate::getSelectionIndex()
{
    return mRow ? static_cast<int>(mRow->getSelectionIndex()) : -1;
}

void SelectionFieldPrivate::setSelectionCommand(const MenuCommand* command)
{
    mSelected = Living<Command>(const_cast<MenuCommand*>(command));
    forgetDeadAt(command);
    if (mRow)
        mRow->setSelectionCommand(handleOf(command));
}

MenuCommand* SelectionFieldPrivate::getSelectionCommand()
{
    return static_cast<MenuCommand*>(selection().get());
}

/// The row knows address and index alone.
Living<Command> SelectionFieldPrivate::selection() const
{
    const auto* address = mRow ? reinterpret_cast<const Command*>(mRow->getSelectionCommand()) : nullptr;
    if (mSelected && mSelected.isAt(address))
        return mSelected;
    // It may have died, and another choice have its address.
    const std::size_t index = mRow ? mRow->getSelectionIndex() : FormItemMEG::NoSelection;
    if (index < mChoices.size() && mChoices[index].isAt(address))
        return mChoices[index];
    const auto found = std::find_if(mChoices.begin(), mChoices.end(),
        [address](const Living<Command>& choice) { return choice && choice.isAt(address); });
    return found == mChoices.end() ? Living<Command>() : *found;
}

// Choices

void SelectionFieldPrivate::appendSelection(MenuCommand* command)
{
    const Living<Command> choice(command);
    const auto texts
        = askCommand(choice, [](const Command& living) { return std::pair(living.getText(), living.getBasicText()); });
    if (!texts || !list())
        return;
    forgetDeadAt(command);
    mRow->addCommand(texts->first, texts->second, handleOf(command));
    mChoices.push_back(choice);
}

/// Another command has the address of a choice that has died: the row must not be taken for that one's.
void SelectionFieldPrivate::forgetDeadAt(const MenuCommand* address)
{
    for (std::size_t i = 0; list() && i < mChoices.size(); ++i) {
        VantoListBoxItemMEG* row = list()->item(static_cast<int>(i));
        if (row && mChoices[i].isAt(address) && !mChoices[i])
            row->setHandle(NobodysAddress);
    }
}

void SelectionFieldPrivate::clearSelections(MenuCommand* command)
{
    mSelected = selection();
    mChoices.clear();
    if (mRow)
        mRow->clear();
    showValue(basicTextOf(Living<Command>(command)).value_or(std::string()));
}

int SelectionFieldPrivate::getHighlightedIndex()
{
    return list() ? list()->currentIndex() : 0;
}

void SelectionFieldPrivate::displayCurrentSelection(bool display)
{
    if (mRow)
        mRow->displayCurrentSelection(display);
}

// Label and state

void SelectionFieldPrivate::setLabel(const std::string& label)
{
    if (mRow)
        mRow->setLabel(UString(label));
}

void SelectionFieldPrivate::localeChanged(std::string)
{
    if (mLabelInfo)
        setLabel(mLabelInfo.completeString());
    const int selected = getSelectionIndex();
    for (std::size_t i = 0; list() && i < mChoices.size(); ++i) {
        const int index = static_cast<int>(i);
        const auto text = basicTextOf(mChoices[i]);
        VantoListBoxItemMEG* row = list()->item(index);
        if (!text || !row)
            continue;
        row->setText(UString(*text));
        if (index == selected)
            mRow->setSelectionIndex(static_cast<unsigned int>(index));
    }
    if (TranslatorIfc* translator = mLabelInfo.translator(); translator && list())
        list()->translateBack(backText(translator));
}

void SelectionFieldPrivate::setInformAppOnOk(bool inform)
{
    if (mRow)
        mRow->setInformAppOnOk(inform);
}

void SelectionFieldPrivate::setReadOnlyMode(bool readOnly)
{
    if (mRow)
        mRow->setReadOnlyMode(readOnly);
}

bool SelectionFieldPrivate::getReadOnlyMode()
{
    return mRow && mRow->getReadOnlyMode();
}

}

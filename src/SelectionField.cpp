#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/SelectionField.h>
#include <DisplayAPI/SelectionFieldPrivateIfc.h>

#include "Road.h"
#include "SelectionFieldPrivate.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class SelectionField::Request : int {
    Create = 1,
    Destroy = 2,
    SetFieldContents = 3,
    SetSelectionIndex = 4,
    GetSelectionIndex = 5,
    SetSelectionCommand = 6,
    GetSelectionCommand = 7,
    AppendSelection = 8,
    ClearSelections = 9,
    SetInformAppOnOk = 10,
    SetReadOnlyMode = 11,
    GetReadOnlyMode = 12,
    GetHighlightedIndex = 13,
    DisplayCurrentSelection = 14,
    SetLabel = 15,
};

std::atomic<unsigned int> SelectionField::itemCount = 0;

SelectionField::SelectionField(
    TranslationInfo* label, PhonebookItem::IconType, MenuCommand* value, Form* form, bool flag)
    : SelectionField(label, value, form, flag)
{
}

SelectionField::SelectionField(TranslationInfo* label, MenuCommand* value, Form* form, bool)
{
    create(label, value, form);
}

SelectionField::~SelectionField()
{
    destroy();
}

void SelectionField::create(TranslationInfo* label, MenuCommand* value, Form* form)
{
    if (!Road::wait(this, Request::Create, given(label), value, form))
        return;
    mName = mType;
    mPrivate = std::make_unique<SelectionFieldPrivate>(label, value, form);
}

void SelectionField::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

ItemPrivateIfc* SelectionField::getPrivateImpl()
{
    return static_cast<SelectionFieldPrivate*>(mPrivate.get());
}

// Value

void SelectionField::setFieldContents(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetFieldContents, command))
        half->setFieldContents(command);
}

void SelectionField::setSelectionIndex(int index)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetSelectionIndex, index))
        half->setSelectionIndex(index);
}

int SelectionField::getSelectionIndex()
{
    int index = -1;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectionIndex, result(index)))
        index = half->getSelectionIndex();
    return index;
}

void SelectionField::setSelectionCommand(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetSelectionCommand, command))
        half->setSelectionCommand(command);
}

MenuCommand* SelectionField::getSelectionCommand()
{
    void* command = nullptr;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectionCommand, result(command)))
        command = half->getSelectionCommand();
    return static_cast<MenuCommand*>(command);
}

// Choices

void SelectionField::appendSelection(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::AppendSelection, command))
        half->appendSelection(command);
}

void SelectionField::clearSelections(MenuCommand* command)
{
    if (auto* half = Road::wait(this, mPrivate, Request::ClearSelections, command))
        half->clearSelections(command);
}

int SelectionField::getHighlightedIndex() const
{
    int index = 0;
    if (auto* half = Road::wait(this, mPrivate, Request::GetHighlightedIndex, result(index)))
        index = half->getHighlightedIndex();
    return index;
}

void SelectionField::displayCurrentSelection(bool display)
{
    if (auto* half = Road::wait(this, mPrivate, Request::DisplayCurrentSelection, display))
        half->displayCurrentSelection(display);
}

// Label and state

void SelectionField::setLabel(const std::string& label)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLabel, label))
        half->setLabel(label);
}

void SelectionField::setInformAppOnOk(bool inform)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetInformAppOnOk, inform))
        half->setInformAppOnOk(inform);
}

void SelectionField::setReadOnlyMode(bool readOnly)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetReadOnlyMode, readOnly))
        half->setReadOnlyMode(readOnly);
}

bool SelectionField::getReadOnlyMode()
{
    bool readOnly = false;
    if (auto* half = Road::wait(this, mPrivate, Request::GetReadOnlyMode, result(readOnly)))
        readOnly = half->getReadOnlyMode();
    return readOnly;
}

void SelectionField::localeChanged(std::string locale)
{
    if (mPrivate)
        mPrivate->localeChanged(locale);
}

// Without effect on this telephone

std::string SelectionField::getLabel()
{
    return {};
}

std::vector<MenuCommand*> SelectionField::getCommands() const
{
    return {};
}

void SelectionField::setContextMenuSuppressed() { }

// Road across threads

void SelectionField::processGuiRequest(GuiRequestEvent& event)
{
    auto* command = static_cast<MenuCommand*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create:
        create(static_cast<TranslationInfo*>(event.ptrParam1), static_cast<MenuCommand*>(event.ptrParam2),
            static_cast<Form*>(event.ptrParam3));
        break;
    case Request::Destroy: destroy(); break;
    case Request::SetFieldContents: setFieldContents(command); break;
    case Request::SetSelectionIndex: setSelectionIndex(event.intParam1); break;
    case Request::GetSelectionIndex: answer(event.intResult, getSelectionIndex()); break;
    case Request::SetSelectionCommand: setSelectionCommand(command); break;
    case Request::GetSelectionCommand: answer(event.ptrResult, getSelectionCommand()); break;
    case Request::AppendSelection: appendSelection(command); break;
    case Request::ClearSelections: clearSelections(command); break;
    case Request::SetInformAppOnOk: setInformAppOnOk(event.boolParam1); break;
    case Request::SetReadOnlyMode: setReadOnlyMode(event.boolParam1); break;
    case Request::GetReadOnlyMode: answer(event.boolResult, getReadOnlyMode()); break;
    case Request::GetHighlightedIndex: answer(event.intResult, getHighlightedIndex()); break;
    case Request::DisplayCurrentSelection: displayCurrentSelection(event.boolParam1); break;
    case Request::SetLabel: setLabel(event.stringParam1); break;
    }
    signalComplete(event);
}

}

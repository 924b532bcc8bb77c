#include <DisplayAPI/ExclusiveList.h>

#include "ExclusiveListPrivate.h"
#include "Road.h"

namespace DisplayAPI {

enum class ExclusiveList::Request : int {
    Create = 95,
    GetSelectedIndex = 96,
    IsSelected = 97,
    AddCommand = 98,
    RemoveCommand = 99,
    SetSelectedIndex = 100,
};

ExclusiveList::ExclusiveList()
    : List(true)
{
    mName = "ExclusiveList";
    create();
}

ExclusiveList::~ExclusiveList()
{
    destroy();
}

void ExclusiveList::create()
{
    if (Road::wait(this, Request::Create) && !mPrivate)
        mPrivate = std::make_unique<ExclusiveListPrivate>(this);
}

auto ExclusiveList::halfOf()
{
    return [this] { return dynamic_cast<ExclusiveListPrivate*>(mPrivate.get()); };
}

// Selection

void ExclusiveList::setSelectedIndex(int index)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetSelectedIndex, index))
        half->setSelectedIndex(index);
}

int ExclusiveList::getSelectedIndex()
{
    int index = -1;
    if (auto* half = Road::wait(this, mPrivate, Request::GetSelectedIndex, result(index)))
        index = half->getSelectedIndex();
    return index;
}

bool ExclusiveList::isSelected(int index)
{
    bool isSelected = false;
    if (auto* half = Road::wait(this, halfOf(), Request::IsSelected, index, result(isSelected)))
        isSelected = half->isSelected(index);
    return isSelected;
}

// Without effect

void ExclusiveList::addCommand(Command* command)
{
    Road::wait(this, Request::AddCommand, command);
}

void ExclusiveList::removeCommand(Command* command)
{
    Road::wait(this, Request::RemoveCommand, command);
}

void ExclusiveList::setWaitAnimation(bool) { }

// Road across threads

void ExclusiveList::processGuiRequest(GuiRequestEvent& event)
{
    const int type = event.getType();
    if (type < static_cast<int>(Request::Create) || type > static_cast<int>(Request::SetSelectedIndex))
        return List::processGuiRequest(event);
    auto* command = static_cast<Command*>(event.ptrParam1);
    switch (static_cast<Request>(type)) {
    case Request::Create: create(); break;
    case Request::GetSelectedIndex: answer(event.intResult, getSelectedIndex()); break;
    case Request::IsSelected: answer(event.boolResult, isSelected(event.intParam1)); break;
    case Request::AddCommand: addCommand(command); break;
    case Request::RemoveCommand: removeCommand(command); break;
    case Request::SetSelectedIndex: setSelectedIndex(event.intParam1); break;
    }
    signalComplete(event);
}

}

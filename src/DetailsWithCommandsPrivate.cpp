#include "DetailsWithCommandsPrivate.h"

#include <DisplayAPI/MenuCommand.h>

#include "CommandText.h"
#include "CurrentApplication.h"
#include "GuiThread.h"

#include <DetailsWithCommandListMEG.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>

#include <optional>

namespace DisplayAPI {

namespace {

constexpr int ArrowIconType = 39;

/// What a row shows of its command.
struct RowContent {
    CommandText shown;
    bool isReadOnly;
    bool hasArrow;
};

/// All of it in one step, in which the command can't die; empty-handed for one that has.
std::optional<RowContent> readRow(MenuCommand* command)
{
    CriticalSection section(Command::commandListMutex());
    std::optional<CommandText> shown = readCommand(command);
    // Another command may have got the address, one without a row of its own.
    const auto* living = shown ? dynamic_cast<MenuCommand*>(shown->command.get()) : nullptr;
    if (!living)
        return std::nullopt;
    const bool hasArrow = living->getIconType() == ArrowIconType || living->isPhoneBookActivated();
    return RowContent{std::move(*shown), living->isReadOnly(), hasArrow};
}

}

DetailsWithCommandsPrivate::DetailsWithCommandsPrivate(Displayable* parent)
    : mParent(parent)
    , mWidget(new DetailsWithCommandListMEG(nullptr))
{
    assertGuiThread();
    mWidget->setListener(this);
    joinApplication(this);
}

DetailsWithCommandsPrivate::~DetailsWithCommandsPrivate()
{
    assertGuiThread();
    leaveApplication(this);
    delete mWidget.get();
}

UWidget* DetailsWithCommandsPrivate::getWidget()
{
    return mWidget.get();
}

// Commands

void DetailsWithCommandsPrivate::setCommands(const std::vector<MenuCommand*>& commands)
{
    if (mWidget)
        mWidget->clearList();
    mCommands.clear();
    for (MenuCommand* command : commands)
        addCommand(command);
    generateDisplayChangedEvent();
}

void DetailsWithCommandsPrivate::addCommand(MenuCommand* command)
{
    const std::optional<RowContent> content = readRow(command);
    if (!content || !mWidget)
        return;
    // A text ends at its first NUL.
    const std::string text = content->shown.text.c_str();
    auto* row = new VantoListBoxItemMEG(UString::fromUTF8(text), 0, false);
    row->setReadonly(content->isReadOnly);
    row->setArrow(content->hasArrow);
    mWidget->addListItem(row);
    mCommands.emplace(row, content->shown.command);
}

int DetailsWithCommandsPrivate::getNumberOfCommands()
{
    return mWidget ? mWidget->getNumberOfCommands() : 0;
}

// Header

void DetailsWithCommandsPrivate::setSystemStatusText1(const std::string& text)
{
    if (mWidget)
        mWidget->setHeaderText(text);
}

// Life on the screen

void DetailsWithCommandsPrivate::show()
{
    if (!mWidget)
        return;
    if (auto* application = VantoUApplication::getCurrentApplication()) {
        application->windowManager()->requestFocus(mWidget.get());
        application->requestFullScreen();
    }
    mWidget->show();
}

void DetailsWithCommandsPrivate::lostFocus()
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->windowManager()->releaseFocus();
}

void DetailsWithCommandsPrivate::event(UEvent* event)
{
    if (auto* row = dynamic_cast<VantoListBoxItemMEG*>(event->source()))
        itemSelected(row);
}

void DetailsWithCommandsPrivate::itemSelected(VantoListBoxItemMEG* item)
{
    if (Command* command = findMenuCommand(item))
        postCommand(command, mParent);
}

Command* DetailsWithCommandsPrivate::findMenuCommand(VantoListBoxItemMEG* item) const
{
    // With the widget the rows have gone: another may have got the address of one.
    const auto found = mWidget ? mCommands.find(item) : mCommands.end();
    return found == mCommands.end() ? nullptr : found->second.get();
}

// Screen text

std::string DetailsWithCommandsPrivate::serialise()
{
    return mWidget ? mWidget->serialise().toUTF8() : std::string();
}

std::string DetailsWithCommandsPrivate::serialise(const std::vector<Rect>&)
{
    return {};
}

}

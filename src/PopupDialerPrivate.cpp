#include "PopupDialerPrivate.h"

#include <DisplayAPI/MenuCommand.h>

#include "IdleDisplayPrivate.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <Log.h>
#include <UApplication.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>
#include <VantoTextEditMEG.h>

#include <utility>

namespace DisplayAPI {

namespace {

constexpr const char* LogModule = "PopupDialerPrivate";
constexpr const char* LogFile = "src/PopupDialerPrivate.cpp";
constexpr int FaultLevel = 2;
constexpr int TraceLevel = 5;

const URect Glass(0, 0, 161, 30);

}

PopupDialerPrivate::PopupDialerPrivate(Displayable* owner, bool flag)
    : ChoicePopupPrivate(new PopupDialerMEG(nullptr, flag))
    , mOwner(owner)
{
    mWidget->setParent(this);
}

PopupDialerPrivate::~PopupDialerPrivate()
{
    uncoverParent();
}

// Lines

std::string PopupDialerPrivate::getLineEditText()
{
    return mWidget ? mWidget->getEditText().toUTF8() : std::string();
}

void PopupDialerPrivate::setMode(PopupDialer::eMode mode)
{
    switch (mode) {
    case PopupDialer::EDIT:
        if (mWidget)
            mWidget->setEditMode();
        return;
    case PopupDialer::LABEL:
        if (mWidget)
            mWidget->showLabel();
        return;
    }
    logAppUni(LogModule, LogFile, FaultLevel, __LINE__, "setMode: unknown mode %d", static_cast<int>(mode));
}

void PopupDialerPrivate::setEditMode()
{
    setMode(PopupDialer::EDIT);
}

void PopupDialerPrivate::setSysWindowText(std::string text, int line)
{
    if (line == 0 && text != mSysWindowLine0) {
        put(mText.field, text);
        mSysWindowLine0 = std::move(text);
    } else if (line == 1 && text != mSysWindowLine1) {
        put(mLine2.field, text);
        mSysWindowLine1 = std::move(text);
    }
}

void PopupDialerPrivate::localeChanged(std::string)
{
    readAgain({&mLine1Prefix, &mText, &mLine2, &mLineEdit});
    for (const Living<Command>& command : mCommands) {
        CommandRow* row = rowOf(command);
        const auto shown = row ? readCommand(command) : std::nullopt;
        if (shown)
            row->setText(UString::fromUTF8(shown->text));
    }
}

// Choices

void PopupDialerPrivate::addCommand(MenuCommand* command)
{
    const std::optional<CommandText> shown = readCommand(command);
    if (!shown || !list())
        return;
    list()->addItem(new CommandRow(command, *shown));
    mCommands.push_back(shown->command);
    generateDisplayChangedEvent();
}

void PopupDialerPrivate::setDefaultCommand(MenuCommand* command)
{
    makeDefault(command);
}

void PopupDialerPrivate::removeCommand(MenuCommand* command)
{
    if (const auto found = find(command); found != mCommands.end()) {
        const Living<Command> gone = *found;
        mCommands.erase(found);
        delete rowOf(gone);
    }
    generateDisplayChangedEvent();
}

CommandRow* PopupDialerPrivate::rowOf(const Living<Command>& command) const
{
    for (int i = 0; list() && i < list()->numItems(); ++i) {
        auto* row = dynamic_cast<CommandRow*>(list()->item(i));
        if (row && row->command() == command)
            return row;
    }
    return nullptr;
}

void PopupDialerPrivate::clearCommands()
{
    mCommands.clear();
    if (VantoListBoxMEG* rows = list()) {
        VantoListBoxItemMEG* current = rows->currentItem();
        if (rows->count() == 1 && current && !current->drawCMA())
            current->setVisible(false);
        rows->clear();
        if (!mWidget->getEditText().isEmpty())
            rows->addDeleteItem();
    }
    generateDisplayChangedEvent();
}

bool PopupDialerPrivate::selectionHasChanged()
{
    logAppUni(LogModule, LogFile, TraceLevel, __LINE__, "Has changed: %d ", mSelectionChanged);
    return std::exchange(mSelectionChanged, false);
}

// Life on the screen

void PopupDialerPrivate::setParentIdleDisplay(UWidget* idleDisplay)
{
    logAppUni(LogModule, LogFile, TraceLevel, __LINE__,
        "PopupDialerPrivate::setParentIdleDisplay() setting parent - %p", static_cast<void*>(idleDisplay));
    if (mParent.get() != idleDisplay)
        uncoverParent();
    mParent = idleDisplay;
    auto* screen = dynamic_cast<DisplayablePrivate*>(idleDisplay);
    if (screen && screen->getWidget() && mWidget)
        mWidget->show();
}

/// An idle screen that stayed covered by a dialer that has gone would take no keys any more.
void PopupDialerPrivate::uncoverParent()
{
    if (auto* idleDisplay = dynamic_cast<IdleDisplayPrivate*>(mParent.get()))
        idleDisplay->uncover();
}

void PopupDialerPrivate::show()
{
    if (!mWidget)
        return;
    UWindowManager::instance().clearScreen();
    mWidget->popupAsNotification();
}

// What the user does

void PopupDialerPrivate::setIgnoreKeypadEvents(bool ignore)
{
    if (mWidget)
        mWidget->setKeyHandler(ignore);
}

bool PopupDialerPrivate::keyEvent(UKeyEvent* key)
{
    // A widget that doesn't keep what it is given back would send the key round without end.
    if (!mParent || mIsHandingOn)
        return false;
    LifeNode life(this);
    mIsHandingOn = true;
    if (auto* idleDisplay = dynamic_cast<IdleDisplayPrivate*>(mParent.get()))
        idleDisplay->showDialer(true);
    mParent->keyEvent(key);
    if (life.isAlive())
        mIsHandingOn = false;
    return true;
}

void PopupDialerPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::PopupUp: cameUp(); break;
    case EventType::PopupDown:
    case EventType::SearchTextChanged:
        if (mParent)
            mParent->event(event);
        break;
    case EventType::EmptyLineLeft: leftBackEvent(); break;
    case EventType::EditTextChanged: textChanged(); break;
    case EventType::EditLineShown: textFieldShown(); break;
    case EventType::RowMoved: olistboxMovement(); break;
    case EventType::RowChosen:
        if (auto* row = dynamic_cast<VantoListBoxItemMEG*>(event->source()))
            tellChoice(dynamic_cast<CommandRow*>(row), mOwner);
        break;
    case EventType::DialerHint: refreshDiallerWidgets(); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

void PopupDialerPrivate::cameUp()
{
    refreshDiallerWidgets();
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
}

void PopupDialerPrivate::refreshDiallerWidgets()
{
    if (!mWidget)
        return;
    if (UWidget* editArea = mWidget->editArea)
        editArea->refresh();
    if (list()) {
        if (VantoListBoxItemMEG* row = list()->currentItem())
            row->refresh();
        list()->refresh();
    }
    mWidget->refresh();
}

void PopupDialerPrivate::leftBackEvent()
{
    postCommand(PopupDialer::BackCommand(), mOwner);
}

void PopupDialerPrivate::textChanged()
{
    mItemStateListeners.notify(&ItemStateListener::postItemStateChange, &mStateItem);
    generateDisplayChangedEvent();
}

void PopupDialerPrivate::textFieldShown()
{
    postCommand(PopupDialer::EditFieldShownCommand(), mOwner);
}

void PopupDialerPrivate::olistboxMovement()
{
    logAppUni(LogModule, LogFile, TraceLevel, __LINE__, "Movement");
    LifeNode life(this);
    generateDisplayChangedEvent();
    if (life.isAlive())
        mSelectionChanged = true;
}

// Screen text

std::string PopupDialerPrivate::serialise()
{
    if (!mWidget)
        return {};
    ScreenTextWriter writer;
    writer.object("PopupDialler");
    writer.startField("caption");
    if (const std::string prefix = getLine1PrefixText(); !prefix.empty()) {
        writer.value(prefix);
        writer.value(": ");
    }
    writer.value(firstLine());
    writer.endField();
    writeRows(writer, Rows::Visible);
    writer.endObject();
    return writer.take();
}

std::string PopupDialerPrivate::serialise(const std::vector<URect>& rects)
{
    if (!isWhollyIn(rects))
        return {};
    ScreenTextWriter writer;
    writer.object("PopupDialler");
    writer.field("caption", firstLine());
    writeRows(writer, Rows::All);
    writer.endObject();
    return writer.take();
}

std::string PopupDialerPrivate::firstLine() const
{
    return (mWidget->isEditVisible() ? mWidget->getEditText() : mWidget->getText()).toUTF8();
}

/// The rows on the glass without the one that deletes. Each keeps the number of its place in the list.
void PopupDialerPrivate::writeRows(ScreenTextWriter& writer, Rows rows) const
{
    for (int i = 0; list() && i < list()->numItems(); ++i) {
        const VantoListBoxItemMEG& row = *list()->item(i);
        const bool isWritten = rows == Rows::All || row.isVisible();
        if (!isWritten || row.getItemType() != VantoListBoxItemMEG::PlainRow || !Glass.contains(row.getRect()))
            continue;
        writer.startField("string" + std::to_string(i));
        writer.value(row.getText().toUTF8());
        if (rows == Rows::Visible)
            writer.value(" ");
        writer.endField();
    }
}

}

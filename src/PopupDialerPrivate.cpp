#include "PopupDialerPrivate.h"

#include <DisplayAPI/MenuCommand.h>

#include "CommandText.h"
#include "CurrentApplication.h"
#include "GuiThread.h"
#include "IdleDisplayPrivate.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <Log.h>
#include <UApplication.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoTextEditMEG.h>

#include <algorithm>
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
    : mOwner(owner)
    , mWidget(new PopupDialerMEG(this, flag))
{
    assertGuiThread();
    mWidget->setParent(this);
    joinApplication(this);
}

PopupDialerPrivate::~PopupDialerPrivate()
{
    assertGuiThread();
    uncoverParent();
}

// Lines

void PopupDialerPrivate::setLine1PrefixText(std::string text)
{
    write(&PopupDialerMEG::setLine1PrefixText, mLine1PrefixInfo.show(text));
}

void PopupDialerPrivate::setLine1PrefixText(TranslationInfo* text)
{
    write(&PopupDialerMEG::setLine1PrefixText, mLine1PrefixInfo.show(text));
}

void PopupDialerPrivate::setText(std::string text)
{
    write(&PopupDialerMEG::setText, mTextInfo.show(text));
}

void PopupDialerPrivate::setText(TranslationInfo* text)
{
    write(&PopupDialerMEG::setText, mTextInfo.show(text));
}

void PopupDialerPrivate::setLine2Text(std::string text)
{
    write(&PopupDialerMEG::setLine2Text, mLine2Info.show(text));
}

void PopupDialerPrivate::setLine2Text(TranslationInfo* text)
{
    write(&PopupDialerMEG::setLine2Text, mLine2Info.show(text));
}

std::string PopupDialerPrivate::getLineEditText()
{
    return mWidget ? mWidget->getEditText().toUTF8() : std::string();
}

void PopupDialerPrivate::setLineEditText(std::string text)
{
    writeEditLine(mLineEditInfo.show(text));
}

void PopupDialerPrivate::setLineEditText(TranslationInfo* text)
{
    writeEditLine(mLineEditInfo.show(text));
}

void PopupDialerPrivate::writeEditLine(const std::string& text)
{
    write(&PopupDialerMEG::setEditText, text);
    generateDisplayChangedEvent();
}

void PopupDialerPrivate::write(Field field, const std::string& text)
{
    if (mWidget)
        (mWidget->*field)(UString(text));
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
        write(&PopupDialerMEG::setText, text);
        mSysWindowLine0 = std::move(text);
    } else if (line == 1 && text != mSysWindowLine1) {
        write(&PopupDialerMEG::setLine2Text, text);
        mSysWindowLine1 = std::move(text);
    }
}

void PopupDialerPrivate::localeChanged(std::string)
{
    const std::pair<Field, const TranslationHolder&> lines[] = {
        {&PopupDialerMEG::setLine1PrefixText, mLine1PrefixInfo},
        {&PopupDialerMEG::setText, mTextInfo},
        {&PopupDialerMEG::setLine2Text, mLine2Info},
        {&PopupDialerMEG::setEditText, mLineEditInfo},
    };
    for (const auto& [field, line] : lines) {
        if (line)
            write(field, line.completeString());
    }
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
    mDefaultIndex = -1;
    if (const auto found = find(command); found != mCommands.end()) {
        mDefaultIndex = static_cast<int>(found - mCommands.begin());
    } else {
        // The notice of the new choice may delete this object.
        LifeNode life(this);
        addCommand(command);
        if (!life.isAlive())
            return;
        mDefaultIndex = static_cast<int>(mCommands.size()) - 1;
    }
    if (list())
        list()->setCurrentItem(mDefaultIndex);
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

/// A command that has died is still found by its address, unless another one lives there.
std::vector<Living<Command>>::iterator PopupDialerPrivate::find(MenuCommand* command)
{
    const Living<Command> living(command);
    return std::find_if(mCommands.begin(), mCommands.end(),
        [&](const Living<Command>& entry) { return living ? entry == living : entry.isAt(command); });
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

int PopupDialerPrivate::getSelectedIndex()
{
    return list() ? list()->currentIndex() : -1;
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

void PopupDialerPrivate::dismiss()
{
    // What the popup raises on its way down may delete this object.
    LifeNode life(this);
    if (mWidget)
        mWidget->dismiss();
    if (life.isAlive())
        widgetDismissed(this);
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
            listItemSelected(dynamic_cast<CommandRow*>(row));
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

void PopupDialerPrivate::listItemSelected(const CommandRow* row)
{
    LifeNode life(this);
    if (Command* command = row ? row->command().get() : nullptr)
        postCommand(command, mOwner);
    if (life.isAlive())
        generateDisplayChangedEvent();
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
    if (!mWidget)
        return {};
    const URect own = mWidget->getRect();
    if (std::none_of(rects.begin(), rects.end(), [&own](const URect& rect) { return rect.contains(own); }))
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

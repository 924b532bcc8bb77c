#include "PopupConfirmPrivate.h"

#include <DisplayAPI/MenuCommand.h>

#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <Semaphore.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <iterator>

namespace DisplayAPI {

namespace {

struct StateIcon {
    int state;
    unsigned short icon;
    const char* word; // null: no icon line
};

constexpr StateIcon StateIcons[] = {
    {PopupConfirm::Information, 21, "Info"},
    {PopupConfirm::Question, 19, "Question"},
    {PopupConfirm::Recall, 53, "Recall"},
    {PopupConfirm::Failure, 16, nullptr},
    {PopupConfirm::MobileUserChanges, 85, "Mobile User Changes"},
};

const StateIcon* iconOf(int state)
{
    auto found = std::find_if(
        std::begin(StateIcons), std::end(StateIcons), [state](const StateIcon& entry) { return entry.state == state; });
    return found == std::end(StateIcons) ? nullptr : found;
}

}

PopupConfirmPrivate::PopupConfirmPrivate(Displayable* parent)
    : ChoicePopupPrivate(new PopupDialogMEG)
    , mParent(parent)
{
    mWidget->setDownArrowDisplayable(true);
}

// Texts

void PopupConfirmPrivate::setLine1PrefixText(TranslationInfo* text)
{
    put(mLine1Prefix.field, mLine1Prefix.info.showBare(text));
    generateDisplayChangedEvent();
}

// The second line belongs to the list, so its text goes behind the question.
void PopupConfirmPrivate::appendToText(const std::string& text)
{
    if (mWidget)
        mWidget->setText(mWidget->getText() + UString(" " + text));
    generateDisplayChangedEvent();
}

void PopupConfirmPrivate::setState(PopupConfirm::PopupState state)
{
    mState = state;
    if (const StateIcon* icon = iconOf(state); icon && mWidget)
        mWidget->setStateIcon(icon->icon, 0);
    generateDisplayChangedEvent();
}

void PopupConfirmPrivate::localeChanged(std::string)
{
    if (!list())
        return;
    readAgain({&mLine1Prefix, &mText, &mLine2Prefix, &mLine2});
    updateRows();
}

void PopupConfirmPrivate::updateRows()
{
    TranslatorIfc* translator = nullptr;
    {
        CriticalSection section(Command::commandListMutex());
        // By command: a removed one has left its row behind, so positions may differ.
        for (int i = 0; i < list()->numItems(); ++i) {
            auto* row = dynamic_cast<CommandRow*>(list()->item(i));
            if (!row || std::find(mCommands.begin(), mCommands.end(), row->command()) == mCommands.end())
                continue;
            if (const auto shown = readCommand(row->command()))
                row->setText(UString(shown->text));
        }
        if (const auto first = mCommands.empty() ? std::nullopt : readCommand(mCommands.front()))
            translator = first->translator;
    }
    translateBack(translator);
}

void PopupConfirmPrivate::translateBack(TranslatorIfc* translator)
{
    list()->translateBack(translator ? backText(translator) : UString());
}

// Choices

void PopupConfirmPrivate::addCommand(Command* command)
{
    const std::optional<CommandText> shown = readCommand(command);
    if (!shown || !list())
        return;
    if (shown->type == Command::Menu) {
        list()->addItem(new CommandRow(command, *shown));
        mCommands.push_back(shown->command);
        if (mCommands.size() == 1 && shown->isTranslated)
            translateBack(shown->translator);
    }
    generateDisplayChangedEvent();
}

void PopupConfirmPrivate::setDefaultCommand(Command* command)
{
    makeDefault(command);
}

void PopupConfirmPrivate::removeCommand(Command* command)
{
    if (const auto found = find(command); found != mCommands.end())
        mCommands.erase(found);
    generateDisplayChangedEvent();
}

void PopupConfirmPrivate::clearCommands()
{
    if (list())
        list()->clear();
    mCommands.clear();
    generateDisplayChangedEvent();
}

// Life on the screen

void PopupConfirmPrivate::show()
{
    if (!list())
        return;
    list()->setCurrentItem(mDefaultIndex);
    mWidget->popupAsNotification();
}

void PopupConfirmPrivate::setTimeout(int milliseconds)
{
    if (mWidget)
        mWidget->setTimeout(milliseconds);
}

void PopupConfirmPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::PopupUp: popupCameUp(); break;
    case EventType::PopupDown: popupWentDown(); break;
    case EventType::RowMoved:
        if (auto* application = VantoUApplication::getCurrentApplication()) {
            application->windowManager()->clearScreen();
            application->refreshPopup();
        }
        break;
    case EventType::PopupRowMoved:
        if (dynamic_cast<VantoListBoxItemMEG*>(event->source()))
            selectionMoved();
        break;
    case EventType::RowChosen:
        if (auto* row = dynamic_cast<CommandRow*>(event->source()))
            tellChoice(row, mParent);
        break;
    case EventType::LeftPressed: backSelected(); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

void PopupConfirmPrivate::popupCameUp()
{
    auto* application = VantoUApplication::getCurrentApplication();
    if (!application)
        return;
    application->requestFullScreen();
    application->windowManager()->releaseFocus();
    application->windowManager()->requestFocus(mWidget);
    application->refreshPopup();
}

void PopupConfirmPrivate::popupWentDown()
{
    auto* application = VantoUApplication::getCurrentApplication();
    if (application && application->getAppName() == "CallViewPhonelet") {
        application->releaseFullScreen();
        application->windowManager()->releaseFocus();
    }
    windowHiddenAfterTimeout();
}

void PopupConfirmPrivate::windowHiddenAfterTimeout()
{
    // The screen below comes back first, which may delete this object.
    LifeNode life(this);
    widgetDismissed(this);
    if (life.isAlive())
        postCommand(PopupConfirm::HIDDEN_COMMAND(), mParent);
}

void PopupConfirmPrivate::selectionMoved()
{
    if (mWidget)
        mWidget->setTimeout(mWidget->getTimeout());
    mSelectionChanged = true;
    generateDisplayChangedEvent();
}

void PopupConfirmPrivate::backSelected()
{
    postCommand(&mBackCommand, mParent);
}

// Screen text

std::string PopupConfirmPrivate::serialise()
{
    if (!list())
        return {};
    ScreenTextWriter writer;
    writer.object("PopupDialog");
    if (const StateIcon* icon = iconOf(mState); icon && icon->word)
        writer.field("icon", icon->word);
    writeText(writer, "caption");
    writer.blocks(list()->screenText().toUTF8());
    writer.endObject();
    return writer.take();
}

std::string PopupConfirmPrivate::serialise(const std::vector<URect>& rects)
{
    if (!list() || !isWhollyIn(rects))
        return {};
    ScreenTextWriter writer;
    writer.object("PopupDialog");
    if (const StateIcon* icon = iconOf(mState); icon && icon->word && mState != PopupConfirm::MobileUserChanges)
        writer.field("icon", icon->word);
    writeText(writer, "string0");
    writer.blocks(list()->screenText(rects).toUTF8());
    writer.endObject();
    return writer.take();
}

void PopupConfirmPrivate::writeText(ScreenTextWriter& writer, const char* key) const
{
    const std::string line1Prefix = mWidget->getLine1PrefixText().toUTF8();
    const std::string line2Prefix = mWidget->getLine2PrefixText().toUTF8();
    writer.startField(key);
    if (!line1Prefix.empty()) {
        writer.value(line1Prefix);
        writer.value(": ");
    }
    writer.value(ScreenTextWriter::flattened(mWidget->getText().toUTF8()));
    writer.value(" ");
    if (!line2Prefix.empty()) {
        writer.value(line2Prefix);
        writer.value(": ");
    }
    writer.value(mWidget->getLine2Text().toUTF8());
    writer.endField();
}

}

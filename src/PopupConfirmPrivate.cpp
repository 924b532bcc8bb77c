#include "PopupConfirmPrivate.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/MenuCommand.h>

#include "ApplicationListener.h"
#include "AssertGuiThread.h"
#include "BuiltInTexts.h"
#include "CommandText.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <PopupCallMEG.h>
#include <Semaphore.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>

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

UString fromUTF8(const std::string& text)
{
    return UString::fromUTF8(text);
}

}

PopupConfirmPrivate::PopupConfirmPrivate(Displayable* parent)
    : mParent(parent)
{
    create();
}

PopupConfirmPrivate::PopupConfirmPrivate(bool)
    : mParent(nullptr)
{
    create();
}

PopupConfirmPrivate::~PopupConfirmPrivate()
{
    assertGuiThread();
    if (mOwnsWidget)
        delete mWidget.get();
    mBackCommand.reset();
    for (TranslationHolder* line : {&mLine1PrefixInfo, &mTextInfo, &mLine2PrefixInfo, &mLine2Info})
        line->forget();
    leaveApplication(this);
}

void PopupConfirmPrivate::create()
{
    assertGuiThread();
    mWidget = new PopupDialogMEG;
    mBackCommand = std::make_unique<Command>("", Command::Back);
    mWidget->setListener(this);
    mWidget->setDownArrowDisplayable(true);
    joinApplication(this);
}

UWidget* PopupConfirmPrivate::getWidget()
{
    return mWidget.get();
}

VantoListBoxMEG* PopupConfirmPrivate::list() const
{
    return mWidget ? mWidget->listBox : nullptr;
}

// Texts

void PopupConfirmPrivate::setLine1PrefixText(const std::string& text)
{
    mLine1PrefixInfo.forget();
    write(&PopupNotificationMEG::setLine1PrefixText, text);
}

void PopupConfirmPrivate::setLine1PrefixText(TranslationInfo* text)
{
    mLine1PrefixInfo.take(text);
    write(&PopupNotificationMEG::setLine1PrefixText, mLine1PrefixInfo.string());
}

void PopupConfirmPrivate::setText(const std::string& text)
{
    mTextInfo.forget();
    write(&PopupNotificationMEG::setText, text);
}

void PopupConfirmPrivate::setText(TranslationInfo* text)
{
    mTextInfo.take(text);
    write(&PopupNotificationMEG::setText, mTextInfo.completeString());
}

void PopupConfirmPrivate::setLine2PrefixText(const std::string& text)
{
    mLine2PrefixInfo.forget();
    write(&PopupNotificationMEG::setLine2PrefixText, text);
}

void PopupConfirmPrivate::setLine2PrefixText(TranslationInfo* text)
{
    mLine2PrefixInfo.take(text);
    write(&PopupNotificationMEG::setLine2PrefixText, mLine2PrefixInfo.completeString());
}

void PopupConfirmPrivate::setLine2Text(const std::string& text)
{
    mLine2Info.forget();
    appendToText(text);
}

void PopupConfirmPrivate::setLine2Text(TranslationInfo* text)
{
    mLine2Info.take(text);
    appendToText(mLine2Info.completeString());
}

// The second line belongs to the list, so its text goes behind the question.
void PopupConfirmPrivate::appendToText(const std::string& text)
{
    if (mWidget)
        mWidget->setText(mWidget->getText() + fromUTF8(" " + text));
    generateDisplayChangedEvent();
}

void PopupConfirmPrivate::write(Field field, const std::string& text)
{
    if (mWidget)
        (mWidget.get()->*field)(fromUTF8(text));
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
    if (!mWidget || !mWidget->listBox)
        return;
    if (mLine1PrefixInfo)
        mWidget->setLine1PrefixText(fromUTF8(mLine1PrefixInfo.completeString()));
    if (mTextInfo)
        mWidget->setText(fromUTF8(mTextInfo.completeString()));
    if (mLine2PrefixInfo)
        mWidget->setLine2PrefixText(fromUTF8(mLine2PrefixInfo.completeString()));
    if (mLine2Info)
        mWidget->setLine2Text(fromUTF8(mLine2Info.completeString()));
    updateRows();
}

void PopupConfirmPrivate::updateRows()
{
    TranslatorIfc* translator = nullptr;
    {
        CriticalSection section(Command::commandListMutex());
        for (Command* command : mCommands) {
            if (!Command::exists(command))
                continue;
            // By handle: a removed command has left its row behind, so positions may differ.
            for (int row = 0; row < list()->numItems(); ++row) {
                if (list()->item(row)->getHandle() == reinterpret_cast<long>(command))
                    list()->item(row)->setText(fromUTF8(command->getText()));
            }
            if (command == mCommands.front() && command->getTranslationInfo())
                translator = command->getTranslationInfo()->translator();
        }
    }
    list()->translateBack(translator ? backText(translator) : UString());
}

// Choices

void PopupConfirmPrivate::addCommand(Command* command)
{
    const std::optional<std::string> text = livingCommandText(command);
    if (!text || !list())
        return;
    if (command->getType() == Command::Menu) {
        const auto handle = reinterpret_cast<long>(command);
        list()->addItem(new VantoListBoxItemMEG(fromUTF8(*text), handle, false));
        mCommands.push_back(command);
        if (mCommands.size() == 1)
            setBackTranslator(command);
    }
    generateDisplayChangedEvent();
}

void PopupConfirmPrivate::setBackTranslator(Command* command)
{
    if (const TranslationInfo* info = command->getTranslationInfo())
        list()->translateBack(info->translator() ? backText(info->translator()) : UString());
}

void PopupConfirmPrivate::setDefaultCommand(Command* command)
{
    mDefaultIndex = -1;
    auto found = std::find(mCommands.begin(), mCommands.end(), command);
    if (found != mCommands.end()) {
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

void PopupConfirmPrivate::removeCommand(Command* command)
{
    auto found = std::find(mCommands.begin(), mCommands.end(), command);
    if (found != mCommands.end())
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

int PopupConfirmPrivate::getSelectedIndex()
{
    return list() ? list()->currentIndex() : -1;
}

bool PopupConfirmPrivate::selectionHasChanged()
{
    return std::exchange(mSelectionChanged, false);
}

// Life on the screen

void PopupConfirmPrivate::show()
{
    if (!list())
        return;
    list()->setCurrentItem(mDefaultIndex);
    mWidget->popupAsNotification();
}

void PopupConfirmPrivate::dismiss()
{
    // What the popup raises on its way down may delete this object.
    LifeNode life(this);
    if (mWidget)
        mWidget->dismiss();
    if (life.isAlive())
        widgetDismissed(this);
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
        if (auto* item = dynamic_cast<VantoListBoxItemMEG*>(event->source()))
            listItemSelected(item);
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
    application->windowManager()->requestFocus(mWidget.get());
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

void PopupConfirmPrivate::listItemSelected(VantoListBoxItemMEG* item)
{
    // A listener that overrides the posting may delete this object.
    LifeNode life(this);
    auto* command = reinterpret_cast<Command*>(item->getHandle());
    if (Command::exists(command))
        postCommand(command, mParent);
    if (life.isAlive())
        generateDisplayChangedEvent();
}

void PopupConfirmPrivate::backSelected()
{
    postCommand(mBackCommand.get(), mParent);
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
    if (!list())
        return {};
    const URect own = mWidget->getRect();
    if (std::none_of(rects.begin(), rects.end(), [&own](const URect& rect) { return rect.contains(own); }))
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

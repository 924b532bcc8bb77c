#include "ContextMenuPrivate.h"

#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/MenuCommand.h>

#include "CommandText.h"
#include "ContextMenuText.h"
#include "CurrentApplication.h"
#include "GuiThread.h"
#include "TellAndShow.h"
#include "WidgetRects.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr unsigned short HeadsetIcon = 90;
constexpr unsigned short SpeakerIcon = 102;
constexpr unsigned short MuteIcon = 46;
constexpr unsigned short GroupIcon = 50;
constexpr int GroupIconType = 8;

/// The icon types of the commands that count.
bool isPlainIconType(int type)
{
    return type == 0 || (type >= 2 && type <= 7) || type == 51 || type == 52;
}

}

std::vector<UGlobal::Key> ContextMenuPrivate::missedKeys;

ContextMenuPrivate::ContextMenuPrivate(ContextMenu* owner, bool hasBackRow)
    : mOwner(owner)
    , mHasBackRow(hasBackRow)
{
    assertGuiThread();
    create();
    joinApplication(this);
}

ContextMenuPrivate::~ContextMenuPrivate()
{
    assertGuiThread();
    delete mWidget.get();
}

void ContextMenuPrivate::create()
{
    mDefaultIndex = 0;
    mCommands.clear();
    mWidget = new ContextMenuMEG(nullptr, mHasBackRow, reinterpret_cast<long>(&mBackCommand), "");
    mWidget->listBox->setListener(this);
}

void ContextMenuPrivate::setWidget(UWidget*)
{
    delete mWidget.get();
    create();
}

// Rows

void ContextMenuPrivate::addCommand(
    Command* command, Command*, bool flag, bool withStatusIcon, const std::string& statusName)
{
    const std::optional<CommandText> shown = readCommand(command);
    if (!shown)
        return;
    if (shown->type == Command::Menu && list()) {
        addRow(*shown, flag, withStatusIcon ? markStatus(statusName) : 0);
        countCommands(mCommandCount + 1);
    }
    generateDisplayChangedEvent();
}

/// Marks where the voice of the call is. Returns the icon of the row.
unsigned short ContextMenuPrivate::markStatus(const std::string& statusName)
{
    const bool isHeadset = statusName == "HeadSet";
    const bool isSpeaker = statusName == "Speaker";
    const bool isMute = statusName == "Mute";
    if (!isHeadset && !isSpeaker && !isMute)
        return 0;
    mWidget->setHeadSetStatus(isHeadset);
    mWidget->setLoudSpeakerStatus(isSpeaker);
    mWidget->setMuteStatus(isMute);
    return isHeadset ? HeadsetIcon : isSpeaker ? SpeakerIcon : MuteIcon;
}

void ContextMenuPrivate::addCommandWithIcon(MenuCommand* command)
{
    std::optional<CommandText> shown;
    int iconType = 0;
    {
        // One step with the text: the command can't die meanwhile.
        CriticalSection section(Command::commandListMutex());
        shown = readCommand(command);
        if (shown)
            iconType = command->getIconType();
    }
    if (!shown)
        return;
    if (shown->type == Command::Menu && list() && (iconType == GroupIconType || isPlainIconType(iconType))) {
        addRow(*shown, false, iconType == GroupIconType ? GroupIcon : 0);
        if (iconType != GroupIconType)
            countCommands(mCommandCount + 1);
    }
    generateDisplayChangedEvent();
}

void ContextMenuPrivate::addRow(const CommandText& shown, bool flag, unsigned short icon)
{
    const auto handle = reinterpret_cast<unsigned long>(shown.command.get());
    mCommands.push_back(shown.command);
    mWidget->addCommand(shown.text, handle, flag, false, icon);
}

void ContextMenuPrivate::countCommands(unsigned int count)
{
    mCommandCount = count;
    mOwner->setCommandCount(count);
}

void ContextMenuPrivate::clearCommands()
{
    if (list())
        list()->clear();
    mCommands.clear();
    countCommands(0);
    generateDisplayChangedEvent();
}

int ContextMenuPrivate::indexOf(const Command* command) const
{
    const auto found = std::find_if(mCommands.begin(), mCommands.end(),
        [command](const Living<Command>& entry) { return command && entry.get() == command; });
    return found == mCommands.end() ? -1 : static_cast<int>(found - mCommands.begin());
}

/// The command that a row stands for, if it lives.
Command* ContextMenuPrivate::commandOf(const VantoListBoxItemMEG* row) const
{
    if (!row || !mWidget)
        return nullptr;
    if (row == mWidget->backRow())
        return const_cast<Command*>(&mBackCommand);
    const int index = list() ? list()->indexOf(row) : -1;
    if (index < 0 || index >= static_cast<int>(mCommands.size()))
        return nullptr;
    return mCommands[static_cast<std::size_t>(index)].get();
}

void ContextMenuPrivate::setDefaultCommand(MenuCommand* command)
{
    if (!Command::exists(command))
        return;
    mDefaultIndex = indexOf(command);
    if (mDefaultIndex < 0) {
        // The notice of the new row may delete this object.
        LifeNode life(this);
        addCommand(command, nullptr, false, false, "");
        if (!life.isAlive())
            return;
        mDefaultIndex = static_cast<int>(mCommands.size()) - 1;
    }
    if (list())
        list()->setCurrentItem(mDefaultIndex);
}

void ContextMenuPrivate::setBackTranslator(TranslatorIfc* translator)
{
    mBackTranslator = translator;
    if (translator && list())
        list()->translateBack(UString(TranslationInfo("Back", translator).getCompleteString()));
}

Command* ContextMenuPrivate::getSelectedCommand()
{
    return list() ? commandOf(list()->currentItem()) : nullptr;
}

int ContextMenuPrivate::getSelectedIndex()
{
    return list() ? list()->currentIndex() : -1;
}

bool ContextMenuPrivate::selectionHasChanged()
{
    return std::exchange(mSelectionChanged, false);
}

void ContextMenuPrivate::setCommandText(Command* command, const std::string& text, bool flag)
{
    const int index = indexOf(command);
    if (index < 0 || !mWidget)
        return;
    {
        CriticalSection section(Command::commandListMutex());
        if (Command::exists(command))
            command->setLabel(text);
    }
    mWidget->setItemText(index, text, flag);
}

void ContextMenuPrivate::setRightArrowEqualsOK(bool equals)
{
    if (list())
        list()->setRightArrowEqualsOK(equals);
}

void ContextMenuPrivate::localeChanged(std::string)
{
    if (!list())
        return;
    // The count has 8 bits on this telephone: a menu of 256 rows is left as it is.
    const auto count = static_cast<std::uint8_t>(list()->numItems());
    for (std::size_t i = 0; i < count && i < mCommands.size(); ++i) {
        if (const auto shown = readCommand(mCommands[i]))
            list()->item(static_cast<int>(i))->setText(UString(shown->text));
    }
}

// Life on the screen

void ContextMenuPrivate::gainOwnership()
{
    mOwnsWidget = true;
    killAutoHideTimer();
}

void ContextMenuPrivate::show()
{
    mFPKPressedNeedsDialNumber = false;
    if (!list())
        return;
    list()->setCurrentItem(mDefaultIndex);
    mWidget->slideIn();
    resetAutoHideTimer();
}

void ContextMenuPrivate::resetAutoHideTimer()
{
    killAutoHideTimer();
    if (!mWidget || !mWidget->isVisible() || mAutoHideTimeout <= 0)
        return;
    mAutoHideTimer.setInterval(1000ULL * static_cast<unsigned long long>(mAutoHideTimeout));
    mAutoHideTimer.start();
}

void ContextMenuPrivate::setAutoHideTimeout(int seconds)
{
    if (seconds == mAutoHideTimeout)
        return;
    mAutoHideTimeout = seconds;
    resetAutoHideTimer();
}

void ContextMenuPrivate::timerEvent(UTimerEvent* event)
{
    if (event->id() == mAutoHideTimer.id())
        dismiss();
}

void ContextMenuPrivate::dismiss()
{
    killAutoHideTimer();
    // The notice, and a listener that overrides the posting, may delete this object.
    LifeNode life(this);
    widgetDismissed(this);
    if (life.isAlive())
        postCommand(&mDismissCommand, mOwner);
    if (!life.isAlive())
        return;
    slideOut();
    connectDisplayChangedSignal(nullptr);
}

void ContextMenuPrivate::lostFocus()
{
    slideOut();
}

void ContextMenuPrivate::slideOut()
{
    killAutoHideTimer();
    if (mWidget)
        mWidget->slideOut();
}

void ContextMenuPrivate::pushBack()
{
    if (mWidget)
        mWidget->pushBack();
}

void ContextMenuPrivate::setHeight(int lines)
{
    if (mWidget)
        mWidget->setHeight(lines);
}

// What the list box tells

void ContextMenuPrivate::event(UEvent* event)
{
    const auto* row = dynamic_cast<VantoListBoxItemMEG*>(event->source());
    switch (event->type) {
    case EventType::RowMoved:
    case EventType::PopupRowMoved: listMoved(); break;
    case EventType::RowChosen: rowChosen(row); break;
    case EventType::LeftPressed: arrowPressed(mBackCommand); break;
    case EventType::RightPressed: arrowPressed(mRightCommand); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

void ContextMenuPrivate::listMoved()
{
    resetAutoHideTimer();
    mSelectionChanged = true;
    generateDisplayChangedEvent();
}

void ContextMenuPrivate::rowChosen(const VantoListBoxItemMEG* row)
{
    resetAutoHideTimer();
    // Read before the agent hears of it, since it may take the row away.
    const Living<Command> command(commandOf(row));
    if (tellAgent(EventType::RowChosen))
        tellAndShow(*this, command.get(), mOwner);
}

void ContextMenuPrivate::arrowPressed(Command& command)
{
    resetAutoHideTimer();
    if (tellAgent(EventType::MenuMoved))
        postCommand(&command, mOwner);
}

/// Returns whether this object still lives.
bool ContextMenuPrivate::tellAgent(std::uint16_t type)
{
    return emit(type, this);
}

// Screen text

std::string ContextMenuPrivate::serialise()
{
    return serialise(mWidget.get());
}

std::string ContextMenuPrivate::serialise(const ContextMenuMEG* menu) const
{
    return contextMenuText(menu);
}

std::string ContextMenuPrivate::serialise(const std::vector<Rect>& rects)
{
    return serialise(widgetRects(rects));
}

std::string ContextMenuPrivate::serialise(const std::vector<URect>& rects) const
{
    const bool isInside = mWidget && isWhollyIn(mWidget->getRect(), rects);
    return isInside ? contextMenuText(mWidget.get()) : std::string();
}

}

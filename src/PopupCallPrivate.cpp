#include "PopupCallPrivate.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/MenuCommand.h>

#include "PartyText.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <UWindowManager.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr unsigned short ForwardedIcon = 8;
constexpr unsigned short GroupIcon = 50;
constexpr unsigned short ArrowIcon = 55;
constexpr unsigned short LampIcon = 78;
constexpr int ConnectingPeriod = 1000; // milliseconds

/// The icons of the priorities normal, urgent and direct; none where the icon stays as it is.
struct PriorityIcons {
    unsigned short normal = 0;
    unsigned short urgent = 0;
    unsigned short direct = 0;

    unsigned short of(int priority) const
    {
        return priority == PopupCall::URGENT ? urgent : priority == PopupCall::DIRECT ? direct : normal;
    }
};

constexpr PriorityIcons None{0, 0, 0};
constexpr PriorityIcons Ringing{14, 73, 48};
constexpr PriorityIcons Always14{14, 14, 14};

enum class Line2 {
    Clear,
    WithoutIcons,
    Unchanged,
};

struct StateLook {
    PopupCall::CallState state;
    Line2 line2;
    PriorityIcons line1Icon;
    PriorityIcons stateIcon;
    const char* word;
};

constexpr StateLook StateLooks[] = {
    {PopupCall::RINGING, Line2::Clear, None, Ringing, "Ringing"},
    {PopupCall::CONNECTING, Line2::Clear, None, None, "Connecting"},
    {PopupCall::BUSY, Line2::Clear, None, {17, 17, 17}, "Busy"},
    {PopupCall::UNOBTAINABLE, Line2::Clear, None, {38, 38, 38}, "Unobtainable"},
    {PopupCall::INCOMING, Line2::Unchanged, Ringing, None, "Incoming"},
    {PopupCall::GROUP_CALL, Line2::WithoutIcons, {50, 73, 50}, None, "GroupCall"},
    {PopupCall::DSS, Line2::Clear, {48, 74, 48}, None, "DSS"},
    {PopupCall::HOLD_TIMEOUT, Line2::Clear, {49, 75, 49}, None, "HoldTimeout"},
    {PopupCall::RINGING_KEEP_LINE2, Line2::WithoutIcons, Ringing, None, "Ringing"},
    {PopupCall::RECALL, Line2::Clear, {53, 76, 53}, None, "Recall"},
    {PopupCall::CALL_BACK, Line2::Clear, {6, 6, 6}, None, "CallBack"},
    {PopupCall::RINGING_BLF, Line2::Unchanged, Always14, None, "Ringing"},
    {PopupCall::RINGING_GROUP, Line2::Unchanged, Always14, None, "Ringing"},
};

const StateLook* lookOf(PopupCall::CallState state)
{
    const auto found = std::find_if(
        std::begin(StateLooks), std::end(StateLooks), [state](const StateLook& entry) { return entry.state == state; });
    return found == std::end(StateLooks) ? nullptr : found;
}

std::string withColon(const UString& prefix)
{
    return prefix.isEmpty() ? std::string() : prefix.toUTF8() + ": ";
}

/// The same as in other popups, but that a withheld number without a name is called so.
NameAndNumber caller(const CallPartyIdentifier& party)
{
    if (!party.name.empty() || party.number != CallPartyIdentifier::WithheldNumber)
        return firstParty(party);
    TranslatorIfc* translator = DisplayablePrivate::commonTranslator;
    return {translator ? translator->translate("CVQVTDispIF.Number.Unavailable") : std::string(), {}};
}

}

PopupCallPrivate::PopupCallPrivate(PopupCall* owner)
    : ChoicePopupPrivate(VantoUApplication::getCurrentApplication() ? new PopupCallMEG : nullptr)
    , mOwner(owner)
{
    if (!mWidget)
        return;
    mWidget->listBox->setListener(this);
    mWidget->setDownArrowDisplayable(true);
    mWidget->listBox->setRightArrowEqualsOK(true);
}

// Parties

void PopupCallPrivate::setPopupCallDetails(CallPartyIdentifier* party, CallPartyIdentifier* second,
    ForwardedCallType type, const std::string& auxText, TranslationInfo* auxInfo)
{
    const std::unique_ptr<CallPartyIdentifier> owned(party);
    const std::unique_ptr<CallPartyIdentifier> ownedSecond(second);
    const bool isHeld = auxInfo && mAux.info.holds(auxInfo);
    showForwarding(type);
    if (!party) {
        if (!isHeld)
            delete auxInfo;
        return;
    }
    // The subscriber may delete this object, or set another text, while the translation is on its way.
    std::unique_ptr<TranslationInfo> aux(isHeld ? mAux.info.release() : auxInfo);
    LifeNode life(this);
    showParties(*party, second);
    if (!second) {
        mIconWord1.clear();
        mIconWord2.clear();
    }
    generateDisplayChangedEvent();
    if (!life.isAlive())
        return;
    if (aux)
        setAuxText(aux.release());
    else
        setAuxText(auxText);
}

void PopupCallPrivate::showForwarding(ForwardedCallType type)
{
    struct Look {
        ForwardedCallType type;
        unsigned short line2Icon1;
        unsigned short line2Icon2;
    };
    constexpr Look looks[] = {
        {FORWARDED_ALWAYS, 0, 0},
        {FORWARDED_ON_BUSY, ForwardedIcon, 17},
        {FORWARDED_ON_DND, ForwardedIcon, 2},
        {FORWARDED_NO_ANSWER, ForwardedIcon, 14},
        {FORWARDED_FOR, ForwardedIcon, ArrowIcon},
    };
    for (const Look& look : looks) {
        if (look.type != type || !mWidget)
            continue;
        mWidget->setLine2Icon1(look.line2Icon1);
        mWidget->setLine2Icon2(look.line2Icon2);
        if (type != FORWARDED_ALWAYS)
            mWidget->setStateIcon(0, 0);
    }
    mForwardedWord = type == FORWARDED_ALWAYS || type == FORWARDED_NO_ANSWER ? "Forwarded\n" : "";
    mForwardedSecondWord = type == FORWARDED_NO_ANSWER ? "Incoming\n" : "";
    if (type == FORWARDED_ON_DND)
        mIconWord2 = "DND";
    else if (type == FORWARDED_FOR)
        mIconWord2 = "=>";
}

void PopupCallPrivate::showParties(const CallPartyIdentifier& party, const CallPartyIdentifier* second)
{
    if (!mWidget)
        return;
    if (second)
        mWidget->setLine2Icon1(ForwardedIcon);
    else
        mWidget->setLine2Text(UString());
    DisplayAPI::showParties(*mWidget, caller(party), second);
}

// Texts

void PopupCallPrivate::setLine2PrefixText(const std::string& text)
{
    if (!ignoreLine2Text())
        setLine(mLine2Prefix, text);
}

void PopupCallPrivate::setLine2PrefixText(TranslationInfo* text)
{
    if (!ignoreLine2Text())
        setLine(mLine2Prefix, text);
    else if (!mLine2Prefix.info.holds(text))
        delete text;
}

void PopupCallPrivate::setLine2Text(const std::string& text)
{
    if (!ignoreLine2Text())
        writeLine2(mLine2.info.show(text));
}

void PopupCallPrivate::setLine2Text(TranslationInfo* text)
{
    if (!ignoreLine2Text())
        writeLine2(mLine2.info.show(text));
    else if (!mLine2.info.holds(text))
        delete text;
}

/// Most states have no second line.
bool PopupCallPrivate::ignoreLine2Text() const
{
    switch (mState) {
    case PopupCall::INCOMING:
    case PopupCall::GROUP_CALL:
    case PopupCall::RINGING_BLF:
    case PopupCall::RINGING_GROUP: return false;
    default: return true;
    }
}

void PopupCallPrivate::writeLine2(const std::string& text)
{
    // An empty one would change nothing, but take from a party's number that it is never cut.
    if (mWidget && mState == PopupCall::INCOMING && !text.empty())
        mWidget->setText(UString::fromUTF8(text) + mWidget->getText());
    put(mLine2.field, text);
    generateDisplayChangedEvent();
}

void PopupCallPrivate::localeChanged(std::string)
{
    readAgain({&mAux, &mLine1Prefix, &mText, &mLine2Prefix, &mLine2});
    // By command: a row of line 2 shifts the others.
    for (int i = 0; list() && i < list()->numItems(); ++i) {
        if (auto* row = dynamic_cast<CommandRow*>(list()->item(i))) {
            if (const auto shown = readCommand(row->command()))
                row->setText(UString::fromUTF8(shown->text));
        }
    }
}

// State

void PopupCallPrivate::setState(PopupCall::CallState state, PopupCall::CallPriority priority)
{
    mState = state;
    if (state == PopupCall::INCOMING)
        mLine2Pending = true;
    if (const StateLook* look = lookOf(state); look && mWidget) {
        if (look->line2 == Line2::Clear)
            clearLine2();
        if (look->line2 != Line2::Unchanged)
            mWidget->setLine2Icon(false);
        const bool hasIcon = state != PopupCall::RINGING_KEEP_LINE2
            || (priority >= PopupCall::NORMAL && priority <= PopupCall::DIRECT);
        if (hasIcon)
            mWidget->setLine1Icon1(look->line1Icon.of(priority));
        if (state == PopupCall::CONNECTING)
            mWidget->setStateIconAnimation({45, 43, 44}, ConnectingPeriod);
        else
            mWidget->setStateIcon(look->stateIcon.of(priority), 0);
        if (state == PopupCall::RINGING_BLF || state == PopupCall::RINGING_GROUP) {
            mWidget->setLine2Icon1(state == PopupCall::RINGING_BLF ? LampIcon : GroupIcon);
            mWidget->setLine2Icon2(ArrowIcon);
        }
    }
    generateDisplayChangedEvent();
}

void PopupCallPrivate::clearLine2()
{
    mWidget->setLine2Text(UString());
    mWidget->setLine2PrefixText(UString());
}

void PopupCallPrivate::setImage(Image* image)
{
    if (image)
        mImage = image;
}

// Choices

void PopupCallPrivate::addCommand(MenuCommand* command)
{
    const std::optional<CommandText> shown = readCommand(command);
    if (!shown || !list())
        return;
    if (std::exchange(mLine2Pending, false) && !mWidget->getLine2Text().isEmpty())
        addLine2Row();
    list()->addItem(new CommandRow(command, *shown));
    if (list()->numItems() >= 2 || mWidget->countLines() >= 2)
        mWidget->setListScrollable(true);
    mCommands.push_back(shown->command);
    generateDisplayChangedEvent();
}

void PopupCallPrivate::addLine2Row()
{
    auto* row = new VantoListBoxItemMEG(mWidget->getLine2Text(), 0, false);
    if (const unsigned short icon = mWidget->getLine2Icon1())
        row->setIcon(icon);
    list()->insertItem(row, 0);
}

void PopupCallPrivate::setDefaultCommand(MenuCommand* command)
{
    if (list() && Command::exists(command))
        makeDefault(command);
}

void PopupCallPrivate::clearCommands()
{
    if (list())
        list()->clear();
    mCommands.clear();
    generateDisplayChangedEvent();
}

CommandListener* PopupCallPrivate::listenerAt(int index) const
{
    CommandListener* found = nullptr;
    mCommandListeners.forEach([&](CommandListener* listener) {
        if (index-- == 0)
            found = listener;
    });
    return found;
}

// Life on the screen

void PopupCallPrivate::show()
{
    auto* application = VantoUApplication::getCurrentApplication();
    if (!application || !list())
        return;
    UWindowManager* manager = application->windowManager();
    const bool hasText = !mWidget->getText().isEmpty();
    if (hasText || !mWidget->getLine1PrePrefixText().isEmpty())
        application->requestFullScreen();
    if (mWidget->getLine2Icon1() != ForwardedIcon)
        list()->setCurrentItem(mDefaultIndex);
    manager->clearScreen();
    if (mState == PopupCall::INCOMING) {
        mWidget->popupAsNotification();
        mWidget->setVisible(true);
    } else {
        mWidget->popupAsCall();
    }
    if (hasText) {
        manager->releaseFocus();
        manager->requestFocus(mWidget);
        mWidget->refresh();
    } else if (application->isIdleDisplayActive()) {
        manager->requestFocus(mWidget);
    }
}

void PopupCallPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::PopupDown: popupWentDown(); break;
    case EventType::RowMoved: selectionMoved(); break;
    case EventType::PopupRowMoved: line2GaveWay(); break;
    // The row of line 2 has no command.
    case EventType::RowChosen: tellChoice(dynamic_cast<CommandRow*>(event->source()), mOwner); break;
    case EventType::LeftPressed: postCommand(&mBackCommand, mOwner); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

void PopupCallPrivate::popupWentDown()
{
    // The screen below comes back, which may delete this object.
    widgetDismissed(this);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->windowManager()->releaseFocus();
}

void PopupCallPrivate::line2GaveWay()
{
    LifeNode life(this);
    setLine2Text("");
    if (life.isAlive())
        setLine2PrefixText("");
    if (life.isAlive())
        selectionMoved();
}

void PopupCallPrivate::selectionMoved()
{
    mSelectionChanged = true;
    generateDisplayChangedEvent();
}

// Screen text

std::string PopupCallPrivate::serialise()
{
    if (!list())
        return {};
    ScreenTextWriter writer;
    writer.object("PopupCall");
    if (mState != PopupCall::INCOMING || !mImage)
        writer.field("icon0", stateWord());
    std::string choice;
    if (isChoiceWritten()) {
        list()->setSerialisedNotificationText(mWidget->getLine2Text().toUTF8());
        list()->setSerialisedNotificationIcon(mForwardedWord);
        list()->setSerialisedNotificationSecondIcon(mForwardedSecondWord);
        choice = list()->screenText().toUTF8();
    }
    writer.field("caption", caption(!choice.empty()));
    if (choice.empty() && !mWidget->getLine2Text().isEmpty())
        writer.field("string1", line2());
    writer.blocks(choice);
    writer.endObject();
    return writer.take();
}

std::string PopupCallPrivate::serialise(const std::vector<URect>& rects)
{
    return isWhollyIn(rects) ? serialise() : std::string();
}

bool PopupCallPrivate::isChoiceWritten() const
{
    return mState != PopupCall::GROUP_CALL && mState != PopupCall::RINGING_BLF && mState != PopupCall::RINGING_GROUP;
}

/// Two states say more than their word, and their icon words stay for the states behind them.
std::string PopupCallPrivate::stateWord()
{
    if (mState == PopupCall::RINGING_BLF || mState == PopupCall::RINGING_GROUP) {
        mIconWord1 = mState == PopupCall::RINGING_BLF ? "BLF" : "GroupCall";
        mIconWord2 = "=>";
    }
    const StateLook* look = lookOf(mState);
    return look ? look->word : "unknown";
}

std::string PopupCallPrivate::caption(bool hasChoice) const
{
    std::string caption = withColon(mWidget->getLine1PrePrefixText()) + withColon(mWidget->getLine1PrefixText());
    // Only beside a text the prefixes are made one line, too.
    if (const std::string text = mWidget->getText().toUTF8(); !text.empty())
        caption = ScreenTextWriter::flattened(caption + text);
    // The icon lines stand inside the caption; what follows the last of them goes on there.
    if (!mIconWord1.empty() && !hasChoice)
        caption += "\nicon0:" + mIconWord1;
    if (!mIconWord2.empty() && mIconWord2 != "=>")
        caption += (mIconWord1.empty() ? "\nicon0:" : "\nicon1:") + mIconWord2;
    if (mState != PopupCall::GROUP_CALL)
        caption += withColon(mWidget->getLine2PrefixText());
    return caption;
}

std::string PopupCallPrivate::line2() const
{
    std::string line = mIconWord2 == "=>" ? "=> " : "";
    if (mState == PopupCall::GROUP_CALL)
        line += withColon(mWidget->getLine2PrefixText());
    return line + mWidget->getLine2Text().toUTF8();
}

}

#include "PopupNotificationPrivate.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/MenuCommand.h>

#include "PartyText.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <UEvent.h>
#include <UWindowManager.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace DisplayAPI {

namespace {

constexpr unsigned short ForwardedIcon = 8;
constexpr unsigned short BusyIcon = 17;
constexpr unsigned short RingingIcon = 14;
constexpr unsigned short ArrowIcon = 55;

struct TypeIcon {
    PopupNotification::InfoType type;
    unsigned short icon;
    const char* word;
    bool hasWordInRects = true;
};

constexpr TypeIcon TypeIcons[] = {
    {PopupNotification::NONE, 0, "None"},
    {PopupNotification::SUCCESS, 22, "Success"},
    {PopupNotification::ERROR, 16, "Error"},
    {PopupNotification::INFO, 21, "Info"},
    {PopupNotification::BLF, 78, "BLF", false},
    {PopupNotification::FORWARDED, ForwardedIcon, "Forwarded"},
    {PopupNotification::WARNING, 20, "Warning"},
    {PopupNotification::USER_ACTION, 21, "UserAction"},
    {PopupNotification::USB, 0, "USB"},
    {PopupNotification::MOBILE_USER_SAVING, 81, "Mobile User Saving", false},
    {PopupNotification::MOBILE_USER_FAILED, 82, "Mobile User Failed", false},
};

const TypeIcon* iconOf(PopupNotification::InfoType type)
{
    const auto found = std::find_if(
        std::begin(TypeIcons), std::end(TypeIcons), [type](const TypeIcon& entry) { return entry.type == type; });
    return found == std::end(TypeIcons) ? nullptr : found;
}

}

PopupNotificationPrivate::PopupNotificationPrivate(Displayable* owner)
    : PopupPrivate(new PopupNotificationMEG)
    , mOwner(owner)
{
}

// Texts

void PopupNotificationPrivate::setText(TranslationInfo* text)
{
    const std::string shown = mText.info.show(text);
    if (mWidget) {
        mWidget->setText(UString::fromUTF8(shown));
        mWidget->setVisible(false);
    }
    generateDisplayChangedEvent();
}

void PopupNotificationPrivate::setLine2Text(const std::string& text)
{
    if (mWidget && !text.empty() && !mWidget->getText().isEmpty())
        mWidget->setIsSplit(true);
    setLine(mLine2, text);
}

void PopupNotificationPrivate::localeChanged(std::string)
{
    readAgain({&mLine1Prefix, &mText, &mLine2Prefix, &mLine2});
}

// Icons and kinds

void PopupNotificationPrivate::setType(PopupNotification::InfoType type)
{
    mType = type;
    if (const TypeIcon* icon = iconOf(type); icon && mWidget && type != PopupNotification::USB)
        mWidget->setLine1Icon1(icon->icon);
}

void PopupNotificationPrivate::setLine2Icon(PopupNotification::IconElemType icon)
{
    mLine2Arrow = icon == PopupNotification::ARROW;
    if (mWidget)
        mWidget->setLine2Icon1(mLine2Arrow ? ArrowIcon : 0);
    generateDisplayChangedEvent();
}

void PopupNotificationPrivate::setForwardNotification(
    CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type)
{
    const std::unique_ptr<CallPartyIdentifier> owned(party);
    const std::unique_ptr<CallPartyIdentifier> ownedSecond(second);
    mType = PopupNotification::FORWARDED;
    if (mWidget) {
        mWidget->setLine1Icon1(ForwardedIcon);
        mWidget->setLine1Icon2(type == FORWARDED_ON_BUSY || type == FORWARDED_ON_DND ? BusyIcon
                : type == FORWARDED_NO_ANSWER                                        ? RingingIcon
                                                                                     : 0);
        mWidget->setLine2Icon1(ArrowIcon);
    }
    if (!party)
        return;
    if (mWidget)
        showParties(*mWidget, firstParty(*party), second);
    generateDisplayChangedEvent();
}

// Life on the screen

void PopupNotificationPrivate::show()
{
    if (!mWidget)
        return;
    if (mType == PopupNotification::FORWARDED)
        mWidget->setIsSplit(true);
    mWidget->updatePopupNotificationCoordinates();
    mWidget->popupAsNotification();
}

void PopupNotificationPrivate::setTimeout(int milliseconds)
{
    if (mWidget)
        mWidget->setTimeout(milliseconds);
}

void PopupNotificationPrivate::setDismissible(bool dismissible)
{
    if (mWidget)
        mWidget->setDismissible(dismissible);
}

void PopupNotificationPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::PopupUp: popupCameUp(); break;
    case EventType::PopupDown: popupWentDown(); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

void PopupNotificationPrivate::popupCameUp()
{
    mWidget->updatePopupNotificationCoordinates();
    mWidget->setVisible(true);
    auto* application = VantoUApplication::getCurrentApplication();
    if (!application)
        return;
    if (mWidget->isTwoLine())
        application->requestFullScreen();
    if (application->isIdleDisplayActive())
        application->windowManager()->requestFocus(mWidget);
}

void PopupNotificationPrivate::popupWentDown()
{
    if (!windowHiddenAfterTimeout())
        return;
    giveBackTheGlass();
    generateDisplayChangedEvent();
}

/// Returns whether this object still lives.
bool PopupNotificationPrivate::windowHiddenAfterTimeout()
{
    // The screen below comes back first, which may delete this object, and so may a listener that overrides the
    // posting.
    LifeNode life(this);
    widgetDismissed(this);
    if (life.isAlive())
        postCommand(PopupNotification::HIDDEN_COMMAND(), mOwner);
    return life.isAlive();
}

void PopupNotificationPrivate::giveBackTheGlass()
{
    auto* application = VantoUApplication::getCurrentApplication();
    if (!application)
        return;
    if (mWidget && mWidget->isTwoLine() && application->getAppName() != "LDAPPhonelet")
        application->releaseFullScreen();
    if (application->isIdleDisplayActive() || application->isSearchableListActive())
        application->windowManager()->releaseFocus();
}

// Screen text

std::string PopupNotificationPrivate::serialise()
{
    return mWidget ? block(Form::Whole) : std::string();
}

std::string PopupNotificationPrivate::serialise(const std::vector<URect>& rects)
{
    return isWhollyIn(rects) ? block(Form::InRects) : std::string();
}

std::string PopupNotificationPrivate::block(Form form) const
{
    ScreenTextWriter writer;
    writer.object("PopupNotification");
    writer.startField("icon0");
    // A word that is left out takes the end of its line along.
    if (const TypeIcon* icon = iconOf(mType); icon && (form == Form::Whole || icon->hasWordInRects)) {
        writer.value(icon->word);
        writer.endField();
    }
    writer.field("string0", line1());
    if (const std::string line = line2(form); !line.empty())
        writer.field("string1", line);
    if (const UString line3 = mWidget->getLine3Text(); !line3.isEmpty())
        writer.field("string2", line3.toUTF8());
    writer.endObject();
    return writer.take();
}

std::string PopupNotificationPrivate::line1() const
{
    std::string line = mWidget->getLine1PrefixText().toUTF8();
    if (!line.empty())
        line += ": ";
    const std::string text = mWidget->getText().toUTF8();
    // Only beside a text the prefix is made one line, too.
    return text.empty() ? line : ScreenTextWriter::flattened(line + text);
}

std::string PopupNotificationPrivate::line2(Form form) const
{
    std::string line = form == Form::Whole && mType == PopupNotification::FORWARDED ? "=> " : "";
    if (const UString prefix = mWidget->getLine2PrefixText(); !prefix.isEmpty())
        line += prefix.toUTF8() + ": ";
    if (form == Form::Whole && mLine2Arrow)
        line += " => ";
    return line + mWidget->getLine2Text().toUTF8();
}

}

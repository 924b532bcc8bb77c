#include "IdleDisplayPrivate.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/PopupDialer.h>

#include "CurrentApplication.h"
#include "ExistingDisplayables.h"
#include "GuiThread.h"
#include "PopupDialerPrivate.h"

#include <ContextMenuMEG.h>
#include <EventTypes.h>
#include <HardwareVersion.h>
#include <UApplication.h>
#include <UEvent.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <cstdint>
#include <utility>

namespace DisplayAPI {

using MEG = IdleDisplayMEG;

namespace {

/// Where a range ends; the toolkit's rectangles have room for 16 bits of it.
int behind(int first, int size)
{
    return static_cast<std::int16_t>(static_cast<long long>(first) + size);
}

}

const IdleDisplayPrivate::TextField IdleDisplayPrivate::ForwardingAddress{
    &MEG::getForwardingAddress, &MEG::setForwardingAddress};
const IdleDisplayPrivate::TextField IdleDisplayPrivate::ServerForwardingAddress{
    &MEG::getServerBasedForwardingAddress, &MEG::setServerBasedForwardingAddress};
const IdleDisplayPrivate::TextField IdleDisplayPrivate::EmergencyText{&MEG::getEmergencyString, &MEG::setEmergencyText};
const IdleDisplayPrivate::TextField IdleDisplayPrivate::Logo{&MEG::getLogo, &MEG::setLogo};

IdleDisplayPrivate::IdleDisplayPrivate(IdleDisplay* owner, const std::string& text)
    : mOwner(owner)
    , mWidget(new IdleDisplayMEG(UString(text), true))
{
    assertGuiThread();
    joinApplication(this);
    mWidget->setListener(this);
}

IdleDisplayPrivate::~IdleDisplayPrivate()
{
    assertGuiThread();
}

VantoListBoxMEG* IdleDisplayPrivate::menu() const
{
    const ContextMenuMEG* menu = mWidget ? mWidget->getContextMenu() : nullptr;
    return menu ? menu->listBox : nullptr;
}

// The notice of a new value comes before the value, and may be the end of widget or screen

bool IdleDisplayPrivate::survivesNotice(bool isChanged)
{
    LifeNode life(this);
    if (isChanged)
        generateDisplayChangedEvent();
    return life.isAlive() && mWidget;
}

template <typename Value>
void IdleDisplayPrivate::write(Field<Value> field, Value value)
{
    if (mWidget && survivesNotice((mWidget->*field.get)() != value))
        (mWidget->*field.set)(value);
}

void IdleDisplayPrivate::write(const TextField& field, const std::string& text)
{
    if (mWidget && survivesNotice((mWidget->*field.get)().toUTF8() != text))
        (mWidget->*field.set)(UString(text));
}

// Notes

void IdleDisplayPrivate::addSystemMessage(std::string text)
{
    addSystemMessage(new TranslationInfo(text, nullptr));
}

void IdleDisplayPrivate::addSystemMessage(TranslationInfo* text)
{
    if (!text)
        return;
    mSystemMessages.emplace_back(text);
    if (mWidget)
        mWidget->addSystemMessage(UString(text->getCompleteString()));
}

void IdleDisplayPrivate::clearSystemMessages()
{
    mSystemMessages.clear();
    if (mWidget)
        mWidget->clearSystemMessages();
}

void IdleDisplayPrivate::setMissedCalls(int count)
{
    write<int>({&MEG::getMissedCalls, &MEG::setMissedCalls}, count);
}

void IdleDisplayPrivate::setMessages(int count)
{
    write<int>({&MEG::getMessages, &MEG::setMessages}, count);
}

void IdleDisplayPrivate::setCallBack(bool shown)
{
    write<bool>({&MEG::getCallBack, &MEG::setCallBack}, shown);
}

void IdleDisplayPrivate::setEmergencyText(std::string text)
{
    write(EmergencyText, mEmergencyInfo.show(text));
}

void IdleDisplayPrivate::setEmergencyText(TranslationInfo* text)
{
    write(EmergencyText, mEmergencyInfo.show(text));
}

void IdleDisplayPrivate::displayMobileUserIcon(bool shown)
{
    if (!mWidget)
        return;
    mWidget->displayMobileUserIcon(shown);
    mWidget->status1 = 1;
}

// Forwarding

void IdleDisplayPrivate::setForwardingIconVisible(bool visible)
{
    write<bool>({&MEG::getForwardingIconVisible, &MEG::setForwardingIconVisible}, visible);
}

void IdleDisplayPrivate::setForwardingAddress(std::string address)
{
    write(ForwardingAddress, mForwardingInfo.show(address));
}

void IdleDisplayPrivate::setForwardingAddress(TranslationInfo* address)
{
    write(ForwardingAddress, mForwardingInfo.show(address));
}

void IdleDisplayPrivate::setForwardingAddress(TranslationInfo* info, CallPartyIdentifier* party)
{
    std::string text = info ? info->getCompleteString() : std::string();
    if (party)
        text += (HardwareVersion::is_RX40_any() ? "" : " ") + party->displayText;
    // The one that is held may be this one: the text form must not delete it.
    TranslationHolder kept = std::exchange(mForwardingInfo, TranslationHolder());
    LifeNode life(this);
    setForwardingAddress(std::move(text));
    kept.take(info);
    if (life.isAlive())
        mForwardingInfo = std::move(kept);
}

void IdleDisplayPrivate::setServerBasedForwardingAddress(std::string address)
{
    write(ServerForwardingAddress, mServerForwardingInfo.show(address));
}

void IdleDisplayPrivate::setServerBasedForwardingAddress(TranslationInfo* address)
{
    write(ServerForwardingAddress, mServerForwardingInfo.show(address));
}

// Whose telephone it is

void IdleDisplayPrivate::changeLogo(std::string logo)
{
    write(Logo, logo);
}

void IdleDisplayPrivate::setCurrentPhoneNumber(std::string number)
{
    if (mWidget)
        mWidget->setCurrentPhoneNumber(UString(number));
}

void IdleDisplayPrivate::setDisplayIdUnicode(std::string id)
{
    if (mWidget)
        mWidget->setDisplayIdUnicode(UString(id));
}

void IdleDisplayPrivate::setUseDisplayId(bool use)
{
    if (mWidget)
        mWidget->setUseDisplayId(use);
}

void IdleDisplayPrivate::setBrandingText(std::string text)
{
    if (mWidget)
        mWidget->setLogoText(UString(text));
    generateDisplayChangedEvent();
}

// Menu

void IdleDisplayPrivate::addMenuCommand(std::string text)
{
    if (!menu())
        return;
    mWidget->getContextMenu()->addCommand(text, 0, false, false, 0);
    mWidget->refresh();
    generateDisplayChangedEvent();
}

void IdleDisplayPrivate::clearMenuCommands()
{
    if (!menu())
        return;
    menu()->clear();
    mWidget->refresh();
    generateDisplayChangedEvent();
}

std::optional<std::size_t> IdleDisplayPrivate::menuSize() const
{
    return menu() ? std::optional(static_cast<std::size_t>(menu()->count())) : std::nullopt;
}

void IdleDisplayPrivate::fireMenuCommand(int index)
{
    if (displayableExists(mOwner))
        mOwner->fireMenuCommand(index);
}

bool IdleDisplayPrivate::isCMActiveOnIdleScreen()
{
    return mWidget && mWidget->contextMenuActive != 0;
}

// Life on the screen

void IdleDisplayPrivate::gainOwnership()
{
    if (mWidget)
        mWidget->setVisible(false);
    mOwnership.gainOwnership();
}

void IdleDisplayPrivate::show()
{
    // A dialer that another screen has replaced went without a word.
    if (const PopupDialerPrivate* half = mDialerCoversIdle ? dialer() : nullptr; half && !half->dialerWidget()->isUp())
        uncover();
    if (mWidget)
        mWidget->show();
}

void IdleDisplayPrivate::hide()
{
    if (mWidget)
        mWidget->hide();
}

void IdleDisplayPrivate::lostFocus()
{
    ContextMenuMEG* open = mWidget ? mWidget->getContextMenu() : nullptr;
    if (!open)
        return;
    open->slideOut();
    mWidget->contextMenuActive = 0;
}

void IdleDisplayPrivate::localeChanged(std::string locale)
{
    if (!mWidget)
        return;
    if (mServerForwardingInfo)
        mWidget->setServerBasedForwardingAddress(UString(mServerForwardingInfo.completeString()));
    readForwardingAgain();
    mWidget->clearSystemMessages();
    for (const auto& message : mSystemMessages)
        mWidget->addSystemMessage(UString(message->getCompleteString()));
    if (displayableExists(mOwner))
        mOwner->localeChanged(std::move(locale));
}

/// What stands behind the first blank is the party.
void IdleDisplayPrivate::readForwardingAgain()
{
    if (!mForwardingInfo)
        return;
    const std::string shown = mWidget->getForwardingAddress().toUTF8();
    const std::size_t blank = shown.find(' ');
    const std::string party = blank == std::string::npos ? std::string() : shown.substr(blank + 1);
    mWidget->setForwardingAddress(UString(mForwardingInfo.string() + " " + party));
}

void IdleDisplayPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::PopupDown: dialerGivesGlass(); break;
    case EventType::SearchTextChanged: dialerTakesGlass(); break;
    case EventType::RowChosen: rowChosen(*event); break;
    case EventType::DialerHint:
        if (mWidget)
            mWidget->setVisible(false);
        break;
    case EventType::ContentChanged: contentChanged(); break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

void IdleDisplayPrivate::dialerTakesGlass()
{
    if (mWidget) {
        mWidget->setBottomFullSize();
        mWidget->prepareForDiallerScreen(false);
    }
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
    mDialerCoversIdle = true;
}

void IdleDisplayPrivate::dialerGivesGlass()
{
    if (mWidget) {
        mWidget->setSmallSize(true);
        mWidget->prepareForDiallerScreen(true);
    }
    auto* application = VantoUApplication::getCurrentApplication();
    if (application && application->isIdleDisplayActive())
        application->releaseFullScreen();
    mDialerCoversIdle = false;
}

void IdleDisplayPrivate::uncover()
{
    if (mDialerCoversIdle)
        dialerGivesGlass();
}

void IdleDisplayPrivate::rowChosen(UEvent& event)
{
    const auto* row = dynamic_cast<VantoListBoxItemMEG*>(event.source());
    const int index = row && menu() ? menu()->indexOf(row) : -1;
    if (index < 0)
        return;
    LifeNode life(this);
    fireMenuCommand(index);
    if (index == 0 && life.isAlive() && mWidget) {
        mWidget->status1 = 0;
        mWidget->status2 = 0;
    }
}

void IdleDisplayPrivate::contentChanged()
{
    if (mDialerCoversIdle && mWidget)
        mWidget->prepareForDiallerScreen(false);
    generateDisplayChangedEvent();
}

// Keys

bool IdleDisplayPrivate::keyEvent(UKeyEvent* key)
{
    // A dialer that doesn't keep its key would send it round without end.
    if (!mShowDialerOnKey || mIsHandingOn)
        return false;
    LifeNode life(this);
    mIsHandingOn = true;
    handOn(*key);
    if (life.isAlive())
        mIsHandingOn = false;
    return true;
}

PopupDialerPrivate* IdleDisplayPrivate::dialer()
{
    PopupDialer* handle = displayableExists(mOwner) ? mOwner->getDialer() : nullptr;
    return dynamic_cast<PopupDialerPrivate*>(handle ? handle->getPrivateImpl() : nullptr);
}

void IdleDisplayPrivate::handOn(UKeyEvent& key)
{
    PopupDialerPrivate* half = dialer();
    if (!half)
        return;
    UKeyEvent forDialer(key.key(), key.state());
    UPointer<PopupDialerMEG> widget = half->dialerWidget();
    if (half->hasCommands())
        half->show();
    if (!widget)
        return;
    widget->isMyKey(true);
    widget->keyEvent(&forDialer);
}

// Screen text

std::string IdleDisplayPrivate::serialise()
{
    return mWidget && !mDialerCoversIdle ? mWidget->serialise().toUTF8() : std::string();
}

std::string IdleDisplayPrivate::serialise(const std::vector<Rect>& rects)
{
    if (!mWidget || mDialerCoversIdle)
        return {};
    std::vector<URect> parts;
    parts.reserve(rects.size());
    for (const Rect& rect : rects)
        parts.emplace_back(
            rect.left(), rect.top(), behind(rect.left(), rect.width()), behind(rect.top(), rect.height()));
    std::string text = mWidget->serialise(parts).toUTF8();
    return text.find("string0:") == std::string::npos ? std::string() : text;
}

}

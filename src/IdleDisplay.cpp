#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/IdleDisplayPrivateIfc.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupDialer.h>

#include "CommandText.h"
#include "ExistingDisplayables.h"
#include "HeldDialer.h"
#include "IdleDisplayPrivate.h"
#include "LastingCommand.h"
#include "Road.h"

#include <TranslationInfo.h>

#include <algorithm>
#include <utility>

namespace DisplayAPI {

enum class IdleDisplay::Request : int {
    Create = 0,
    Destroy = 1,
    SetMessages = 2,
    SetMissedCalls = 3,
    SetForwardingAddress = 4,
    SetForwardingTranslation = 5,
    SetForwardingParty = 6,
    SetServerForwardingAddress = 7,
    SetServerForwardingTranslation = 8,
    AddCommand = 9,
    ClearCommands = 10,
    SetDefaultMenuCommand = 11,
    Hide = 12,
    AddSystemMessage = 13,
    AddSystemTranslation = 14,
    ClearSystemMessages = 15,
    ChangeLogo = 16,
    SetBrandingText = 17,
    SetSystemWindowSize = 18,
    SetSystemWindowText = 19,
    ShowDiallerOnInitialKeyEvent = 20,
    AddDialer = 21,
    GetDialer = 22,
    SetForwardingIconVisible = 23,
    SetCurrentPhoneNumber = 24,
    SetDisplayIdUnicode = 25,
    SetUseDisplayId = 26,
    DisplayMobileUserIcon = 27,
    IsCMActiveOnIdleScreen = 28,
};

IdleDisplay::IdleDisplay(const std::string& text)
    : mDialer(std::make_unique<HeldDialer>())
{
    // Here, since the creation is not waited for.
    mName = "IdleDisplay";
    create(text);
}

IdleDisplay::~IdleDisplay()
{
    destroy();
    // Behind the loop's end the GUI thread could not do it.
    if (mDialerOwned)
        delete mDialer->get();
}

void IdleDisplay::create(const std::string& text)
{
    if (Road::post(this, Request::Create, text))
        mPrivate = std::make_unique<IdleDisplayPrivate>(this, text);
}

void IdleDisplay::destroy()
{
    if (isGuiThread())
        cleanUp();
    Road::end(this, mPrivate, Request::Destroy);
}

void IdleDisplay::cleanUp()
{
    bindDialer(nullptr);
}

DisplayablePrivateIfc* IdleDisplay::getPrivateImpl()
{
    return mPrivate.get();
}

// Notes

void IdleDisplay::setMessages(int count)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetMessages, count))
        half->setMessages(count);
}

void IdleDisplay::setMissedCalls(int count)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetMissedCalls, count))
        half->setMissedCalls(count);
}

void IdleDisplay::addSystemMessage(const std::string& text)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddSystemMessage, text))
        half->addSystemMessage(text);
}

void IdleDisplay::addSystemMessage(TranslationInfo* text)
{
    if (auto* half = Road::post(this, mPrivate, Request::AddSystemTranslation, given(text)))
        half->addSystemMessage(text);
}

void IdleDisplay::clearSystemMessages()
{
    if (auto* half = Road::post(this, mPrivate, Request::ClearSystemMessages))
        half->clearSystemMessages();
}

// Forwarding

void IdleDisplay::setForwardingAddress(const std::string& address)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetForwardingAddress, address))
        half->setForwardingAddress(address);
}

void IdleDisplay::setForwardingAddress(TranslationInfo* address)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetForwardingTranslation, given(address)))
        half->setForwardingAddress(address);
}

void IdleDisplay::setForwardingAddress(TranslationInfo* info, CallPartyIdentifier* party)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetForwardingParty, given(info), party))
        half->setForwardingAddress(info, party);
}

void IdleDisplay::clearForwardingAddress()
{
    setForwardingAddress(std::string());
}

void IdleDisplay::setForwardingIconVisible(bool visible)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetForwardingIconVisible, visible))
        half->setForwardingIconVisible(visible);
}

void IdleDisplay::setServerBasedForwardingAddress(const std::string& address)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetServerForwardingAddress, address))
        half->setServerBasedForwardingAddress(address);
}

void IdleDisplay::setServerBasedForwardingAddress(TranslationInfo* address)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetServerForwardingTranslation, given(address)))
        half->setServerBasedForwardingAddress(address);
}

void IdleDisplay::clearServerBasedForwardingAddress()
{
    setServerBasedForwardingAddress(std::string());
}

// Whose telephone it is

void IdleDisplay::setCurrentPhoneNumber(const std::string& number)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetCurrentPhoneNumber, number))
        half->setCurrentPhoneNumber(number);
}

void IdleDisplay::setDisplayIdUnicode(const std::string& id)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetDisplayIdUnicode, id))
        half->setDisplayIdUnicode(id);
}

void IdleDisplay::setUseDisplayId(bool use)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetUseDisplayId, use))
        half->setUseDisplayId(use);
}

void IdleDisplay::displayMobileUserIcon(bool shown, int number)
{
    if (auto* half = Road::wait(this, mPrivate, Request::DisplayMobileUserIcon, shown, number))
        half->displayMobileUserIcon(shown);
}

void IdleDisplay::changeLogo(const std::string& logo)
{
    if (auto* half = Road::post(this, mPrivate, Request::ChangeLogo, logo))
        half->changeLogo(logo);
}

void IdleDisplay::setBrandingText(const std::string& text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetBrandingText, text))
        half->setBrandingText(text);
}

// Menu. The commands change first and their rows follow, since each row gives a notice in which both must agree

void IdleDisplay::addCommand(Command* command)
{
    if (Road::wait(this, mPrivate, Request::AddCommand, command))
        addCommandImpl(command);
}

void IdleDisplay::addCommandImpl(Command* command)
{
    const Living<Command> added(command);
    if (!added || !mPrivate)
        return;
    mCommands.push_back(added);
    showMissingRows();
}

void IdleDisplay::setCommands(const std::vector<MenuCommand*>& commands)
{
    // Each notice may delete the screen.
    const Living<Displayable> self(this);
    clearCommands();
    for (MenuCommand* command : commands) {
        if (self)
            addCommand(command);
    }
}

void IdleDisplay::clearCommands()
{
    if (Road::wait(this, mPrivate, Request::ClearCommands))
        clearCommandsImpl();
}

void IdleDisplay::clearCommandsImpl()
{
    mCommands.clear();
    mCommandCount = 0;
    if (mPrivate)
        mPrivate->clearMenuCommands();
}

/// A notice may add commands, clear them, begin this anew, or delete the screen.
void IdleDisplay::showMissingRows()
{
    auto* half = static_cast<IdleDisplayPrivate*>(mPrivate.get());
    LifeNode life(half);
    while (life.isAlive()) {
        const auto rows = half->menuSize();
        mCommandCount = static_cast<int>(mCommands.size());
        if (!rows || *rows >= mCommands.size())
            return;
        const auto next = mCommands.begin() + static_cast<std::ptrdiff_t>(*rows);
        if (const auto shown = readCommand(*next))
            half->addMenuCommand(shown->text);
        else
            mCommands.erase(next);
    }
}

void IdleDisplay::localeChanged(std::string)
{
    if (!mPrivate)
        return;
    std::erase_if(mCommands, [](const Living<Command>& command) { return !command; });
    LifeNode life(mPrivate.get());
    mPrivate->clearMenuCommands();
    if (life.isAlive())
        showMissingRows();
}

void IdleDisplay::setDefaultMenuCommand(MenuCommand* command)
{
    auto* half = Road::wait(this, mPrivate, Request::SetDefaultMenuCommand, command);
    if (!half)
        return;
    const Living<Command> entry(command);
    auto found = std::find(mCommands.begin(), mCommands.end(), entry);
    if (found == mCommands.end()) {
        LifeNode life(half);
        addCommand(command);
        if (!life.isAlive())
            return;
        found = std::find(mCommands.begin(), mCommands.end(), entry);
    }
    half->setDefaultMenuCommandIndex(static_cast<int>(found - mCommands.begin()));
}

bool IdleDisplay::isCMActiveOnIdleScreen() const
{
    bool isActive = false;
    if (auto* half = Road::wait(this, mPrivate, Request::IsCMActiveOnIdleScreen, result(isActive)))
        isActive = half->isCMActiveOnIdleScreen();
    return isActive;
}

// Listeners

void IdleDisplay::addCommandListener(CommandListener* listener)
{
    mCommandListeners.add(listener);
}

void IdleDisplay::removeCommandListener(CommandListener* listener)
{
    mCommandListeners.remove(listener);
}

void IdleDisplay::fireMenuCommand(int index)
{
    if (index < 0 || index >= static_cast<int>(mCommands.size()))
        return;
    if (Command* command = mCommands[static_cast<std::size_t>(index)].get())
        tell(command);
}

void IdleDisplay::fireBackCommand()
{
    tell(BACK_COMMAND());
}

void IdleDisplay::tell(Command* command)
{
    const Living<Command> posted(command);
    mCommandListeners.forEach([&](CommandListener* listener) {
        // An overridden post may delete screen and command; nobody shall be told of a dead one.
        if (posted && displayableExists(this))
            listener->postCommandAction(command, this);
    });
}

Command* IdleDisplay::BACK_COMMAND()
{
    static Command* command = lastingCommand(Command::Back);
    return command;
}

// Dialer

void IdleDisplay::showDiallerOnInitialKeyEvent(bool show)
{
    if (auto* half = Road::post(this, mPrivate, Request::ShowDiallerOnInitialKeyEvent, show))
        static_cast<IdleDisplayPrivate*>(half)->showDialer(show);
}

void IdleDisplay::addDialer(PopupDialer* dialer)
{
    if (Road::post(this, Request::AddDialer, dialer) && (!dialer || displayableExists(dialer)))
        bindDialer(dialer);
}

PopupDialer* IdleDisplay::getDialer()
{
    void* dialer = nullptr;
    if (Road::wait(this, Request::GetDialer, result(dialer))) {
        if (!mDialer->get()) {
            auto* own = new PopupDialer(true, 3);
            bindDialer(own);
            mDialerOwned = mDialer->get() == own;
            if (!mDialerOwned)
                delete own;
        }
        dialer = mDialer->get();
    }
    return static_cast<PopupDialer*>(dialer);
}

/// Lets the dialer go, unless it is this one, and takes another, or none.
void IdleDisplay::bindDialer(PopupDialer* dialer)
{
    // The notice of a dialer that leaves the glass may delete the screen, or bring another dialer.
    LifeNode life(mPrivate.get());
    const bool hasHalf = life.isAlive();
    if (mDialer->get() != dialer)
        deleteDiallerIfNecessary();
    if (hasHalf && !life.isAlive())
        return;
    if (mDialer->get() == nullptr)
        *mDialer = HeldDialer(dialer);
    if (PopupDialerPrivateIfc* half = mDialer->half())
        half->setParentIdleDisplay(mPrivate.get());
}

void IdleDisplay::deleteDiallerIfNecessary()
{
    const HeldDialer gone = std::exchange(*mDialer, HeldDialer());
    const bool isOwned = std::exchange(mDialerOwned, false);
    if (PopupDialerPrivateIfc* half = gone.half())
        half->setParentIdleDisplay(nullptr);
    if (isOwned)
        delete gone.get();
}

// Life on the screen

void IdleDisplay::hide()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Hide))
        half->hide();
}

// Without effect on this telephone

void IdleDisplay::setSystemWindowSize(int lines)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSystemWindowSize, lines))
        half->setSystemWindowSize(lines);
}

void IdleDisplay::setSystemWindowText(int line, const std::string& text)
{
    if (auto* half = Road::post(this, mPrivate, Request::SetSystemWindowText, line, text))
        half->setSystemWindowText(line, text);
}

void IdleDisplay::setServerBasedForwardingAddress(TranslationInfo*, CallPartyIdentifier*) { }

void IdleDisplay::setUsedWithTab(bool, Displayable*) { }

void IdleDisplay::setAsListenerForUnhandledKeypadEvents() { }

// Road across threads

void IdleDisplay::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* party = static_cast<CallPartyIdentifier*>(event.ptrParam2);
    auto* command = static_cast<Command*>(event.ptrParam1);
    auto* menuCommand = static_cast<MenuCommand*>(event.ptrParam1);
    auto* dialer = static_cast<PopupDialer*>(event.ptrParam1);
    const int number = event.intParam1;
    const bool flag = event.boolParam1;

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(text); break;
    case Request::Destroy: destroy(); break;
    case Request::SetMessages: setMessages(number); break;
    case Request::SetMissedCalls: setMissedCalls(number); break;
    case Request::SetForwardingAddress: setForwardingAddress(text); break;
    case Request::SetForwardingTranslation: setForwardingAddress(translation); break;
    case Request::SetForwardingParty: setForwardingAddress(translation, party); break;
    case Request::SetServerForwardingAddress: setServerBasedForwardingAddress(text); break;
    case Request::SetServerForwardingTranslation: setServerBasedForwardingAddress(translation); break;
    case Request::AddCommand: addCommand(command); break;
    case Request::ClearCommands: clearCommands(); break;
    case Request::SetDefaultMenuCommand: setDefaultMenuCommand(menuCommand); break;
    case Request::Hide: hide(); break;
    case Request::AddSystemMessage: addSystemMessage(text); break;
    case Request::AddSystemTranslation: addSystemMessage(translation); break;
    case Request::ClearSystemMessages: clearSystemMessages(); break;
    case Request::ChangeLogo: changeLogo(text); break;
    case Request::SetBrandingText: setBrandingText(text); break;
    case Request::SetSystemWindowSize: setSystemWindowSize(number); break;
    case Request::SetSystemWindowText: setSystemWindowText(number, text); break;
    case Request::ShowDiallerOnInitialKeyEvent: showDiallerOnInitialKeyEvent(flag); break;
    case Request::AddDialer: addDialer(dialer); break;
    case Request::GetDialer: answer(event.ptrResult, getDialer()); break;
    case Request::SetForwardingIconVisible: setForwardingIconVisible(flag); break;
    case Request::SetCurrentPhoneNumber: setCurrentPhoneNumber(text); break;
    case Request::SetDisplayIdUnicode: setDisplayIdUnicode(text); break;
    case Request::SetUseDisplayId: setUseDisplayId(flag); break;
    case Request::DisplayMobileUserIcon: displayMobileUserIcon(flag, number); break;
    case Request::IsCMActiveOnIdleScreen: answer(event.boolResult, isCMActiveOnIdleScreen()); break;
    }
    signalComplete(event);
}

}

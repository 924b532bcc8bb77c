#include "IdleScreen.h"

#include <utility>

using namespace DisplayAPI;

namespace {

constexpr const char* OwnNumber = "4711";
constexpr const char* Brand = "DisplayAPI";

const char* onOrOff(bool isOn)
{
    return isOn ? "on" : "off";
}

}

IdleScreen::IdleScreen(IdleDisplay& idle, Screens& screens, Languages& languages, TellDesktop tellDesktop)
    : mIdle(idle)
    , mScreens(screens)
    , mLanguages(languages)
    , mTellDesktop(std::move(tellDesktop))
    , mToDirectory(languages.text("Directory", "?"), 1)
    , mToLog(languages.text("Call log", "?"), 2)
    , mToMessages(languages.text("Messages", "?"), 3)
    , mToCalls(languages.text("Calls", "?"), 4)
    , mRedial(languages.text("Redial", "?"), 5)
    , mToSettings(languages.text("Settings", "?"), 6)
    , mUnlock(languages.text("Unlock", "?"), 7)
    , mCall(languages.text("Call", "?"), 8)
{
    mIdle.setCurrentPhoneNumber(OwnNumber);
    mIdle.setBrandingText(Brand);
    mTellDesktop("number", OwnNumber);
    mTellDesktop("name", Brand);
    mIdle.addCommandListener(this);
    mDialer.setLine1PrefixText(languages.text("Dial"));
    mDialer.addCommand(&mCall);
    mDialer.addCommandListener(this);
    mDialer.addItemStateListener(this);
    mIdle.addDialer(&mDialer);
    fillMenu();
    writeNotes();
}

// What it tells

void IdleScreen::setMissedCalls(int count)
{
    mIdle.setMissedCalls(count);
    mTellDesktop("missed", std::to_string(count));
}

void IdleScreen::setMessages(int count)
{
    mIdle.setMessages(count);
    mTellDesktop("messages", std::to_string(count));
}

void IdleScreen::setForwarding(const std::string& number)
{
    mIdle.setForwardingAddress(number);
    mIdle.setForwardingIconVisible(!number.empty());
    mTellDesktop("forwarding", number);
}

void IdleScreen::setDoNotDisturb(bool on)
{
    mIsDoNotDisturb = on;
    mTellDesktop("dnd", onOrOff(on));
    writeNotes();
}

void IdleScreen::setRingerOff(bool off)
{
    mIsRingerOff = off;
    mTellDesktop("ringer", onOrOff(!off));
    writeNotes();
}

void IdleScreen::setUser(const std::string& name)
{
    mUser = name;
    mTellDesktop("name", name.empty() ? Brand : name);
    mIdle.setDisplayIdUnicode(name.empty() ? OwnNumber : name);
    writeBrand();
}

void IdleScreen::showName(bool shown)
{
    mIsNameShown = shown;
    mIdle.setUseDisplayId(shown);
    writeBrand();
}

/// The name stands on one side alone.
void IdleScreen::writeBrand()
{
    mIdle.setBrandingText(mUser.empty() || mIsNameShown ? Brand : mUser);
}

void IdleScreen::setLocked(bool locked)
{
    mIsLocked = locked;
    mTellDesktop("lock", onOrOff(locked));
    mIdle.showDiallerOnInitialKeyEvent(!locked);
    fillMenu();
    writeNotes();
}

void IdleScreen::writeNotes()
{
    mIdle.clearSystemMessages();
    mIdle.addSystemMessage(mLanguages.text(mIsLocked ? "Locked: press OK" : "Press OK for the menu"));
    if (mIsDoNotDisturb)
        mIdle.addSystemMessage(mLanguages.text("Do not disturb"));
    if (mIsRingerOff)
        mIdle.addSystemMessage(mLanguages.text("Ringer off"));
}

void IdleScreen::fillMenu()
{
    if (mIsLocked)
        return mIdle.setCommands({&mUnlock});
    mIdle.setCommands({&mToDirectory, &mToLog, &mToMessages, &mToCalls});
    if (!mLastNumber.empty())
        mIdle.addCommand(&mRedial);
    mIdle.addCommand(&mToSettings);
}

// What the user does

void IdleScreen::itemStateChanged(Item*)
{
    // From now on the dialer's text is read, too.
    if (mScreens.isIdleOnTop())
        mScreens.showOver(mDialer);
}

void IdleScreen::commandAction(Command* command, Displayable*)
{
    if (command == PopupDialer::BackCommand())
        closeDialer();
    else if (command == &mCall)
        call();
    else if (command == &mRedial)
        redial();
    else
        choose(command);
}

void IdleScreen::choose(Command* command)
{
    const struct {
        const MenuCommand& command;
        Place place;
    } ways[] = {
        {mToDirectory, Place::Directory},
        {mToLog, Place::CallLog},
        {mToMessages, Place::Messages},
        {mToCalls, Place::Calls},
        {mToSettings, Place::Settings},
        {mUnlock, Place::Unlocking},
    };
    for (const auto& way : ways) {
        if (command == &way.command)
            return onOpen(way.place);
    }
}

/// Without a number, OK offers the last one.
void IdleScreen::call()
{
    const std::string number = mDialer.getLineEditText();
    if (mIsLocked)
        return closeDialer();
    if (number.empty())
        return redial();
    closeDialer();
    mLastNumber = number;
    fillMenu();
    onDial(number);
}

void IdleScreen::redial()
{
    mDialer.setLineEditText(mLastNumber);
    mDialer.setEditMode();
    mScreens.showOver(mDialer);
}

void IdleScreen::closeDialer()
{
    // In this order: a number that is typed when the dialer has gone is a new one.
    mDialer.setLineEditText("");
    mDialer.dismiss();
}

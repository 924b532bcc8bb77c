#include "Telephone.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/Display.h>

using namespace DisplayAPI;

SpokenLanguage::SpokenLanguage(Display& display, Languages& languages)
    : mDisplay(display)
{
    mDisplay.setTranslator(&languages);
}

SpokenLanguage::~SpokenLanguage()
{
    mDisplay.setTranslator(nullptr);
}

Telephone::Telephone(Display& display, IdleScreen::TellDesktop tellDesktop)
    : mDisplay(display)
    , mTellDesktop(std::move(tellDesktop))
    , mSpokenLanguage(display, mLanguages)
    , mScreens(display, mIdleDisplay)
    , mNotices(mScreens, mLanguages)
    , mQuestion(mScreens, mLanguages)
    , mMenu(mScreens, mLanguages)
    , mDetails(mScreens, mLanguages)
    , mPin(mScreens, mLanguages, mNotices)
    , mIdle(mIdleDisplay, mScreens, mLanguages, mTellDesktop)
    , mCalls(mScreens, mLanguages, mNotices, mExchange)
    , mLog(mScreens, mLanguages, mClock, mMenu, mDetails, mQuestion, logAnswers())
    , mMail(mScreens, mLanguages, mClock, mMenu, mQuestion, mNotices, mailAnswers())
    , mDirectory(mScreens, mLanguages, mDetails, mQuestion, mNotices, [this](const auto& number) { dial(number); })
    , mForwarding(mScreens, mLanguages, forwardingAnswers())
    , mSettings(mScreens, mLanguages, mNotices, mPin, settingsAnswers())
{
    connectParts();
}

void Telephone::run()
{
    mScreens.showIdle();
    mDisplay.show();
    mDisplay.exec();
}

void Telephone::speak(const std::string& code)
{
    const std::string chosen = code.empty() ? mLanguages.next() : code;
    if (!mLanguages.speak(chosen))
        return;
    mDisplay.localeChanged(chosen);
    mTellDesktop("language", chosen);
}

// What the parts want of each other

void Telephone::connectParts()
{
    mIdle.onOpen = [this](IdleScreen::Place place) { open(place); };
    mIdle.onDial = [this](const std::string& number) { dial(number); };
    mCalls.onEnded = [this](const CallScreens::EndedCall& ended) { logCall(ended); };
    mCalls.onForwarded = [this](const CallService::Party& caller) { log(caller, CallLog::Kind::Forwarded); };
    mCalls.mayDial = [this] { return !mIdle.isLocked(); };
    mCalls.onMessage = [this](const CallService::Message& message) { mMail.add(message); };
}

CallLog::Answers Telephone::logAnswers()
{
    return {
        [this](const std::string& number) { dial(number); },
        [this](const CallService::Party& party) { mDirectory.enter(party, [this] { mLog.open(); }); },
        [this] { mIdle.setMissedCalls(0); },
    };
}

VoiceMail::Answers Telephone::mailAnswers()
{
    return {
        [this](const std::string& number) { dial(number); },
        [this](int count) { mIdle.setMessages(count); },
    };
}

Forwarding::Answers Telephone::forwardingAnswers()
{
    return {
        [this](CallService::Diversion kind, const std::string& number) {
            mExchange.forward(kind, number);
            if (kind == CallService::Diversion::Always)
                mIdle.setForwarding(number);
        },
        [this] { mSettings.open(); },
    };
}

Settings::Answers Telephone::settingsAnswers()
{
    return {
        .speak = [this](const std::string& code) { speak(code); },
        .setTwelveHours = 
            [this](bool on) {
                mClock.setTwelveHours(on);
                mTellDesktop("clock", on ? "12" : "24");
            },
        .setDoNotDisturb =
            [this](bool on) {
                mExchange.setDoNotDisturb(on);
                mIdle.setDoNotDisturb(on);
            },
        .forward = [this] { mForwarding.open(); },
        .lock = [this] { setLocked(true); },
        .forms = {
            .call = [this](const std::string& name) { mIdle.setUser(name); },
            .showName = [this](bool shown) { mIdle.showName(shown); },
            .setVolume = [this](int volume) { mIdle.setRingerOff(volume == 0); },
        },
    };
}

void Telephone::open(IdleScreen::Place place)
{
    switch (place) {
    case IdleScreen::Place::Directory: return mDirectory.open();
    case IdleScreen::Place::CallLog: return mLog.open();
    case IdleScreen::Place::Messages: return mMail.open();
    case IdleScreen::Place::Calls:
        if (!mCalls.showCalls())
            mNotices.show(PopupNotification::INFO, "No calls");
        return;
    case IdleScreen::Place::Settings: return mSettings.open();
    case IdleScreen::Place::Unlocking: return mPin.ask([this] { setLocked(false); });
    }
}

/// Calls from any screen. Whoever has withheld his number can't be called.
void Telephone::dial(const std::string& number)
{
    if (number.empty() || number == CallPartyIdentifier::WithheldNumber)
        return mNotices.show(PopupNotification::WARNING, "No number");
    mCalls.dial(number);
}

void Telephone::logCall(const CallScreens::EndedCall& ended)
{
    using Kind = CallService::Kind;
    const Kind kind = ended.call.kind;
    // What rings elsewhere is nobody's missed call here.
    if (!ended.wasConnected && (kind == Kind::LinePickUp || kind == Kind::GroupPickUp || kind == Kind::CallBack))
        return;
    // The other half of a forwarding tells of itself.
    if (ended.call.cause == CallService::Cause::Diverted)
        return;
    log(ended.call.party,
        !ended.call.isIncoming() ? CallLog::Kind::Dialled
            : ended.wasConnected ? CallLog::Kind::Taken
                                 : CallLog::Kind::Missed);
}

void Telephone::log(const CallService::Party& party, CallLog::Kind kind)
{
    mLog.add(party, kind);
    mIdle.setMissedCalls(mLog.missed());
}

void Telephone::setLocked(bool locked)
{
    mIdle.setLocked(locked);
    mScreens.showIdle();
    mNotices.show(PopupNotification::SUCCESS, locked ? "Locked" : "Unlocked");
}

#pragma once

#include "ActionMenu.h"
#include "CallLog.h"
#include "CallScreens.h"
#include "Clock.h"
#include "Details.h"
#include "Directory.h"
#include "Exchange.h"
#include "Forwarding.h"
#include "IdleScreen.h"
#include "Languages.h"
#include "Notices.h"
#include "PinGuard.h"
#include "Question.h"
#include "Screens.h"
#include "Settings.h"
#include "VoiceMail.h"

#include <DisplayAPI/IdleDisplay.h>

#include <string>

namespace DisplayAPI {
class Display;
}

/// The language of the library's own texts, as long as this lives: before the first screen until behind the last.
class SpokenLanguage {
public:
    SpokenLanguage(DisplayAPI::Display& display, Languages& languages);
    ~SpokenLanguage();

private:
    DisplayAPI::Display& mDisplay;
};

/// A whole telephone: the idle screen, and the ways from there to calls, call log, directory and settings.
class Telephone final {
public:
    Telephone(DisplayAPI::Display& display, IdleScreen::TellDesktop tellDesktop);

    /// Shows the idle screen until the display is shut down. Threads: GUI thread.
    void run();

    // What comes from outside. Threads: any but the GUI thread

    /// Somebody calls: "NAME NUMBER", a number, or an empty text for whoever comes next.
    void ring(const std::string& caller) { mExchange.ring(caller); }

    /// Somebody, as above, leaves a voice message.
    void leaveMessage(const std::string& caller) { mExchange.leaveMessage(caller); }

    /// The other end of the newest call hangs up.
    void hangUpThere() { mExchange.hangUpThere(); }

    /// Speaks another language, by its code, or the next one for an empty text.
    void speak(const std::string& code);

private:
    void connectParts();
    CallLog::Answers logAnswers();
    VoiceMail::Answers mailAnswers();
    Forwarding::Answers forwardingAnswers();
    Settings::Answers settingsAnswers();
    void open(IdleScreen::Place place);
    void dial(const std::string& number);
    void logCall(const CallScreens::EndedCall& ended);
    void log(const CallService::Party& party, CallLog::Kind kind);
    void setLocked(bool locked);

    DisplayAPI::Display& mDisplay;
    IdleScreen::TellDesktop mTellDesktop;
    Languages mLanguages;
    SpokenLanguage mSpokenLanguage;
    Clock mClock;
    Exchange mExchange;
    DisplayAPI::IdleDisplay mIdleDisplay{"telephone"};
    Screens mScreens;
    Notices mNotices;
    Question mQuestion;
    ActionMenu mMenu;
    Details mDetails;
    PinGuard mPin;
    IdleScreen mIdle;
    CallScreens mCalls;
    CallLog mLog;
    VoiceMail mMail;
    Directory mDirectory;
    Forwarding mForwarding;
    Settings mSettings;
};

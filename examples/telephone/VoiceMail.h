#pragma once

#include "ActionMenu.h"
#include "CallService.h"
#include "Clock.h"
#include "Languages.h"
#include "Notices.h"
#include "Question.h"
#include "Screens.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/PopupProgress.h>
#include <DisplayAPI/Timer.h>

#include <ctime>
#include <functional>
#include <string>
#include <vector>

/// The voice messages, the newest first: who has left them, and what can be done with them. Playing one takes as long
/// as it is; a new one is bold until it has been played.
class VoiceMail final : public DisplayAPI::CommandListener {
public:
    struct Answers {
        std::function<void(const std::string& number)> dial;
        std::function<void(int count)> counted; // how many are new
    };

    VoiceMail(Screens& screens, Languages& languages, Clock& clock, ActionMenu& menu, Question& question,
        Notices& notices, Answers answers);

    void add(const CallService::Message& message);
    void open();

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

private:
    struct Entry {
        int id = 0;
        CallService::Message message;
        std::time_t moment = 0;
        bool isNew = true;
    };

    void fill();
    void count();
    void offer(const Entry& entry);
    void play(const Entry& entry);
    void playOn();
    void remove(const Entry& entry);
    void removeAll();

    Screens& mScreens;
    Languages& mLanguages;
    Clock& mClock;
    ActionMenu& mMenu;
    Question& mQuestion;
    Notices& mNotices;
    Answers mAnswers;
    std::vector<Entry> mEntries; // one for each row
    int mLastId = 0;
    DisplayAPI::List mList{0}; // owns its rows

    // What is played

    int mPlayedId = 0;
    int mPlayedSeconds = 0;
    int mLength = 0;
    DisplayAPI::PopupProgress mProgress;
    DisplayAPI::Command mSecond{"", DisplayAPI::Command::Select};
    DisplayAPI::Timer mTimer{0};
};

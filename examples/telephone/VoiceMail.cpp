#include "VoiceMail.h"

#include "PartyTexts.h"

#include <DisplayAPI/CallLogMainItem.h>

#include <algorithm>
#include <utility>

using namespace DisplayAPI;

namespace {

constexpr int Second = 1'000; // milliseconds

std::string durationOf(int seconds)
{
    const std::string rest = std::to_string(seconds % 60);
    return std::to_string(seconds / 60) + (rest.size() < 2 ? ":0" : ":") + rest;
}

}

VoiceMail::VoiceMail(Screens& screens, Languages& languages, Clock& clock, ActionMenu& menu, Question& question,
    Notices& notices, Answers answers)
    : mScreens(screens)
    , mLanguages(languages)
    , mClock(clock)
    , mMenu(menu)
    , mQuestion(question)
    , mNotices(notices)
    , mAnswers(std::move(answers))
{
    mList.setTitle(languages.text("Messages"));
    mList.addCommandListener(this);
    mProgress.setType(PopupProgress::PROGRESS);
    mTimer.addCommand(&mSecond);
    mTimer.addCommandListener(this);
}

void VoiceMail::add(const CallService::Message& message)
{
    mEntries.insert(mEntries.begin(), {++mLastId, message, Clock::now(), true});
    count();
    if (mScreens.isShown(mList))
        fill();
    mNotices.show(PopupNotification::INFO, "New message", shortNameOf(message.party, mLanguages));
}

void VoiceMail::count()
{
    mAnswers.counted(static_cast<int>(
        std::count_if(mEntries.begin(), mEntries.end(), [](const Entry& entry) { return entry.isNew; })));
}

// The list

void VoiceMail::open()
{
    fill();
    mScreens.show(mList);
}

void VoiceMail::fill()
{
    const int row = std::max(0, mList.getSelectedIndex());
    mList.clear();
    for (const Entry& entry : mEntries) {
        auto* party = new CallPartyIdentifier(rowOf(entry.message.party, mLanguages));
        mList.append(new CallLogMainItem(party, mClock.momentOf(entry.moment), 1, entry.isNew, true));
    }
    if (mEntries.empty())
        mList.append(mLanguages.text("No messages"));
    mList.setSelectedIndex(std::min(row, std::max(0, static_cast<int>(mEntries.size()) - 1)));
}

void VoiceMail::commandAction(Command* command, Displayable*)
{
    if (command == &mSecond)
        return playOn();
    if (command == List::BACK_COMMAND())
        return mScreens.showIdle();
    const auto row = static_cast<std::size_t>(mList.getSelectedIndex());
    if (row >= mEntries.size())
        return;
    if (command == List::SELECT_COMMAND() || command == List::RIGHT_COMMAND())
        offer(mEntries[row]);
}

void VoiceMail::offer(const Entry& entry)
{
    mMenu.open({
        {"Play", [this, entry] { play(entry); }},
        {"Call", [this, number = entry.message.party.number] { mAnswers.dial(number); }},
        {"Delete", [this, entry] { remove(entry); }},
        {"Delete all", [this] { removeAll(); }},
    });
}

// A message

void VoiceMail::play(const Entry& entry)
{
    mPlayedId = entry.id;
    mPlayedSeconds = 0;
    mLength = entry.message.seconds;
    mProgress.setText(shortNameOf(entry.message.party, mLanguages));
    mProgress.setCurrentStageText(durationOf(mLength));
    mProgress.updateProgressBar(0);
    mScreens.showOver(mProgress);
    mTimer.start(Second);
}

void VoiceMail::playOn()
{
    ++mPlayedSeconds;
    if (mPlayedSeconds < mLength) {
        mProgress.setCurrentStageText(durationOf(mLength - mPlayedSeconds));
        return mProgress.updateProgressBar(mPlayedSeconds * 100 / mLength);
    }
    mTimer.stop();
    mProgress.dismiss();
    for (Entry& entry : mEntries)
        entry.isNew = entry.isNew && entry.id != mPlayedId;
    count();
    if (mScreens.isShown(mList))
        fill();
}

void VoiceMail::remove(const Entry& entry)
{
    mQuestion.ask("Delete", shortNameOf(entry.message.party, mLanguages), [this, id = entry.id] {
        std::erase_if(mEntries, [id](const Entry& each) { return each.id == id; });
        count();
        open();
    });
}

void VoiceMail::removeAll()
{
    mQuestion.ask("Delete all", "", [this] {
        mEntries.clear();
        count();
        open();
    });
}

#include "SettingsForms.h"

#include <cstdlib>
#include <utility>

using namespace DisplayAPI;

namespace {

constexpr int LongestName = 16;

}

SettingsForms::SettingsForms(
    Screens& screens, Languages& languages, Notices& notices, Answers answers, std::function<void()> leave)
    : mScreens(screens)
    , mNotices(notices)
    , mAnswers(std::move(answers))
    , mLeave(std::move(leave))
    , mNumberShown(languages.text("Number"), 1)
    , mNameShown(languages.text("Name"), 2)
    , mClassic(languages.text("Classic"), 3)
    , mChime(languages.text("Chime"), 4)
    , mBirds(languages.text("Birds"), 5)
    , mName(new TextField(languages.text("Name"), {}, nullptr, TextField::AnyText, false))
    , mShown(new SelectionField(languages.text("Shown at rest"), &mNumberShown, &mUser, false))
    , mVolume(new SliderItem(languages.text("Volume")))
    , mTone(new SelectionField(languages.text("Tone"), &mClassic, &mRinging, false))
{
    mUser.setTitle(languages.text("User"));
    mName->setMaxFieldLength(LongestName);
    for (MenuCommand* shown : {&mNumberShown, &mNameShown})
        mShown->appendSelection(shown);
    mUser.append(mName);
    mUser.append(mShown);

    mRinging.setTitle(languages.text("Ringing"));
    mVolume->setMaxValue(std::to_string(LoudestVolume));
    mVolume->setValue(std::to_string(LoudestVolume / 2));
    for (MenuCommand* tone : {&mClassic, &mChime, &mBirds})
        mTone->appendSelection(tone);
    mRinging.append(mVolume);
    mRinging.append(mTone);

    mUser.addCommandListener(this);
    mRinging.addCommandListener(this);
    mRinging.addItemStateListener(this);
}

void SettingsForms::openUser()
{
    mUser.setSelected(mName);
    mScreens.show(mUser);
}

void SettingsForms::openRinging()
{
    mRinging.setSelected(mVolume);
    mScreens.show(mRinging);
}

void SettingsForms::itemStateChanged(Item* item)
{
    if (item == mVolume)
        mAnswers.setVolume(std::atoi(mVolume->getValue().c_str()));
}

void SettingsForms::commandAction(Command* command, Displayable* displayable)
{
    if (command == Form::BACK_COMMAND())
        return mLeave();
    if (command == Form::SAVE_COMMAND())
        mAnswers.call(mName->getString());
    if (command != Form::SELECTION_CHANGED_COMMAND())
        return;
    if (displayable == &mUser)
        mAnswers.showName(mShown->getSelectionCommand() == &mNameShown);
    else if (const MenuCommand* tone = mTone->getSelectionCommand())
        mNotices.show(PopupNotification::INFO, "Ring tone", tone->getText());
}

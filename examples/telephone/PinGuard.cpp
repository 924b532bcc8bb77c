#include "PinGuard.h"

#include "Clock.h"

#include <DisplayAPI/PopupDialer.h>

#include <utility>

using namespace DisplayAPI;

namespace {

constexpr std::size_t ShortestPin = 4;
constexpr std::size_t LongestPin = 8;
constexpr int MostWrong = 3;
constexpr int WaitTime = 30;              // seconds
constexpr int EntryTime = 30'000;         // milliseconds
constexpr TextField::FieldType Digits{5}; // lets the keys write digits alone

}

PinGuard::PinGuard(Screens& screens, Languages& languages, Notices& notices)
    : mScreens(screens)
    , mLanguages(languages)
    , mNotices(notices)
    , mField(languages.text("PIN"), {}, nullptr, TextField::Number, false)
    , mEntry(&mField, false)
    , mOk(languages.text("OK", "?"), 1)
{
    // The first type stays with the keys, the second with what is shown.
    mEntry.setFieldType(Digits);
    mEntry.setFieldType(TextField::Password);
    mEntry.setTextEditMode(PopupTextFieldPrivateIfc::NumericOnly);
    mEntry.setTimeout(EntryTime);
    mEntry.addCommand(&mOk);
    mEntry.addCommandListener(this);
}

void PinGuard::ask(std::function<void()> then)
{
    if (!hasPin())
        return then();
    const std::time_t wait = mWaitUntil - Clock::now();
    if (wait > 0)
        return mNotices.show(PopupNotification::WARNING, "Please wait", std::to_string(wait) + " s");
    mThen = std::move(then);
    open(Step::Check);
}

void PinGuard::change(std::function<void()> then)
{
    mThen = std::move(then);
    open(Step::New);
}

void PinGuard::open(Step step)
{
    mStep = step;
    mEntry.clearText();
    mEntry.setLabel(mLanguages.text(step == Step::Check ? "PIN" : step == Step::New ? "New PIN" : "Repeat the PIN"));
    mScreens.showOver(mEntry);
}

void PinGuard::commandAction(Command* command, Displayable*)
{
    if (command == PopupDialer::BackCommand())
        return mEntry.dismiss();
    if (command != &mOk)
        return;
    const std::string digits = mEntry.getText();
    mEntry.dismiss();
    take(digits);
}

void PinGuard::take(const std::string& digits)
{
    if (mStep == Step::Check)
        return check(digits);
    if (mStep == Step::New) {
        if (digits.size() < ShortestPin || digits.size() > LongestPin)
            return refuse("4 to 8 digits, please");
        mNewPin = digits;
        return open(Step::Repeat);
    }
    if (digits != mNewPin)
        return refuse("Not the same PIN");
    mPin = digits;
    std::exchange(mThen, [] {})();
}

void PinGuard::check(const std::string& digits)
{
    if (digits == mPin) {
        mWrong = 0;
        return std::exchange(mThen, [] {})();
    }
    if (++mWrong >= MostWrong) {
        mWrong = 0;
        mWaitUntil = Clock::now() + WaitTime;
    }
    refuse("Wrong PIN");
}

void PinGuard::refuse(const char* key)
{
    mNotices.show(PopupNotification::ERROR, key);
}

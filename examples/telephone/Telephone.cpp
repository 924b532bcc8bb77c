#include "Telephone.h"

#include <DisplayAPI/Display.h>

using namespace DisplayAPI;

Telephone::Telephone(Display& display)
    : mDisplay(display)
    , mCalls(display, mLanguages, mExchange, mIdle)
    , mLog(
          display, mLanguages, [this](const auto& number) { mCalls.dial(number); }, [this] { showIdle(); })
    , mDirectory(
          display, mLanguages, [this](const auto& number) { mCalls.dial(number); }, [this] { showIdle(); })
    , mForwarding(
          display, mLanguages, [this](const auto& number) { forward(number); }, [this] { mSettings.open(); })
    , mSettings(display, mLanguages, answers())
    , mToCalls(mLanguages.text("Calls", "?"), 1)
    , mToLog(mLanguages.text("Call log", "?"), 2)
    , mToDirectory(mLanguages.text("Directory", "?"), 3)
    , mToSettings(mLanguages.text("Settings", "?"), 4)
{
    mDisplay.setTranslator(&mLanguages);
    mIdle.setCurrentPhoneNumber("4711");
    mIdle.setBrandingText("DisplayAPI");
    for (Command* command : {&mToDirectory, &mToLog, &mToCalls, &mToSettings})
        mIdle.addCommand(command);
    mIdle.addCommandListener(this);
    mCalls.onEnded = [this](const CallScreens::EndedCall& ended) { logCall(ended); };
    greet();
}

Telephone::~Telephone()
{
    mDisplay.setTranslator(nullptr);
}

void Telephone::run()
{
    mDisplay.setCurrent(&mIdle);
    mDisplay.show();
    mDisplay.exec();
}

void Telephone::greet()
{
    mIdle.clearSystemMessages();
    mIdle.addSystemMessage(mLanguages.text("Press OK for the menu"));
}

void Telephone::speak(const std::string& code)
{
    const std::string chosen = code.empty() ? mLanguages.next() : code;
    if (mLanguages.speak(chosen))
        mDisplay.localeChanged(chosen);
}

Settings::Answers Telephone::answers()
{
    return {
        [this](const auto& code) { speak(code); },
        [this](const auto& name) { mIdle.setBrandingText(name); },
        [this] { mForwarding.open(); },
        [this] { showIdle(); },
    };
}

void Telephone::forward(const std::string& number)
{
    mIdle.setForwardingAddress(number);
    mIdle.setForwardingIconVisible(!number.empty());
}

void Telephone::showIdle()
{
    mDisplay.setCurrent(&mIdle);
}

void Telephone::logCall(const CallScreens::EndedCall& ended)
{
    mLog.add(ended.call, ended.call.isIncoming && !ended.wasConnected);
    mIdle.setMissedCalls(mLog.missed());
}

void Telephone::commandAction(Command* command, Displayable*)
{
    if (command == &mToCalls)
        mCalls.showConnected();
    if (command == &mToDirectory)
        mDirectory.open();
    if (command == &mToSettings)
        mSettings.open();
    if (command == &mToLog) {
        mLog.open();
        mIdle.setMissedCalls(mLog.missed());
    }
}

#include "Settings.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/TreeNode.h>

#include <utility>

using namespace DisplayAPI;

namespace {

enum Row : int {
    UserRow = 1,
    RingingRow,
    DoNotDisturbRow,
    ForwardingRow,
    LanguageRow,
    ClockRow,
    TwentyFourHoursRow,
    TwelveHoursRow,
    SecurityRow,
    LockRow,
    ChangePinRow,
    NoPinRow,
    HelpRow,
    FirstLanguageRow = 100,
};

}

Settings::Settings(Screens& screens, Languages& languages, Notices& notices, PinGuard& pin, Answers answers)
    : mScreens(screens)
    , mLanguages(languages)
    , mNotices(notices)
    , mPin(pin)
    , mAnswers(std::move(answers))
    , mForms(screens, languages, notices, mAnswers.forms, [this] { open(); })
{
    mTree.setTreeName(languages.text("Settings"));
    addNodes();
    mTree.addCommandListener(this);
    mHelp.setTitle(languages.text("Help"));
    mHelp.addCommandListener(this);
}

void Settings::addNodes()
{
    const auto text = [this](const char* key) { return mLanguages.text(key); };
    mTree.addNode(text("User"), UserRow);
    mTree.addNode(text("Ringing"), RingingRow);
    mTree.addNode(text("Do not disturb"), DoNotDisturbRow);
    mTree.addNode(text("Forwarding"), ForwardingRow);
    TreeNode* language = mTree.addNode(text("Language"), LanguageRow);
    int row = FirstLanguageRow;
    for (const std::string& code : Languages::codes())
        language->addNode(Languages::nameOf(code), row++);
    TreeNode* clock = mTree.addNode(text("Clock"), ClockRow);
    clock->addNode(text("24 hours"), TwentyFourHoursRow);
    clock->addNode(text("12 hours"), TwelveHoursRow);
    mSecurity = mTree.addNode(text("Security"), SecurityRow);
    mSecurity->addNode(text("Lock"), LockRow);
    mSecurity->addNode(text("Change PIN"), ChangePinRow);
    mSecurity->addNode(text("No PIN"), NoPinRow);
    mSecurity->setProtected(true);
    mTree.addNode(text("Help"), HelpRow);
}

/// Whoever has left the settings from inside the protected branch is asked again.
void Settings::open()
{
    mTree.collapseNode(mSecurity);
    mScreens.show(mTree);
}

void Settings::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mHelp)
        return open();
    if (command->getType() == Command::Back)
        return mScreens.showIdle();
    if (const TreeNode* node = mTree.getSelected())
        choose(*node);
}

void Settings::choose(const TreeNode& node)
{
    switch (node.getId()) {
    case UserRow: return mForms.openUser();
    case RingingRow: return mForms.openRinging();
    case DoNotDisturbRow: return switchDoNotDisturb();
    case ForwardingRow: return mAnswers.forward();
    case TwentyFourHoursRow: return chooseClock(false);
    case TwelveHoursRow: return chooseClock(true);
    case SecurityRow: return mPin.ask([this] { mTree.expandNode(mSecurity, true); });
    case HelpRow: return openHelp();
    default: break;
    }
    if (node.getId() >= FirstLanguageRow)
        chooseLanguage(node.getId() - FirstLanguageRow);
    else
        chooseInSecurity(node.getId());
}

void Settings::chooseLanguage(int row)
{
    const auto language = static_cast<std::size_t>(row);
    if (language < Languages::codes().size())
        mAnswers.speak(Languages::codes()[language]);
}

void Settings::chooseClock(bool hasTwelveHours)
{
    mAnswers.setTwelveHours(hasTwelveHours);
    mNotices.show(PopupNotification::SUCCESS, "Saved");
}

/// Only who has a PIN can unlock the telephone again, so one is asked for first.
void Settings::chooseInSecurity(int row)
{
    const auto saved = [this] { mNotices.show(PopupNotification::SUCCESS, "Saved"); };
    if (row == LockRow && mPin.hasPin())
        mAnswers.lock();
    else if (row == LockRow)
        mPin.change(mAnswers.lock);
    if (row == ChangePinRow)
        mPin.change(saved);
    if (row == NoPinRow) {
        mPin.clear();
        saved();
    }
}

void Settings::switchDoNotDisturb()
{
    mIsDoNotDisturb = !mIsDoNotDisturb;
    mAnswers.setDoNotDisturb(mIsDoNotDisturb);
    mNotices.show(PopupNotification::INFO, "Do not disturb", mLanguages.translate(mIsDoNotDisturb ? "On" : "Off"));
}

void Settings::openHelp()
{
    mHelp.setText(mLanguages.translate("Digits dial. OK opens the menu. Left goes back."), false);
    mScreens.show(mHelp);
}

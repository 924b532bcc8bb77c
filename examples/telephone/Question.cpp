#include "Question.h"

#include <utility>

using namespace DisplayAPI;

namespace {

constexpr int AnswerTime = 20'000; // milliseconds

}

Question::Question(Screens& screens, Languages& languages)
    : mScreens(screens)
    , mLanguages(languages)
    , mNo(languages.text("No", "?"), 1)
    , mYes(languages.text("Yes", "?"), 2)
{
}

/// A new popup each time, since a text on the second line is appended to those before.
void Question::ask(const std::string& key, const std::string& about, std::function<void()> yes)
{
    if (mPopup)
        mPopup->dismiss();
    mAct = std::move(yes);
    mPopup = std::make_unique<PopupConfirm>(true);
    mPopup->setState(PopupConfirm::Question);
    mPopup->setText(mLanguages.text(key, "?"));
    if (!about.empty())
        mPopup->setLine2Text(about);
    mPopup->addCommand(&mNo);
    mPopup->addCommand(&mYes);
    mPopup->setDefaultCommand(&mNo);
    mPopup->setTimeout(AnswerTime);
    mPopup->addCommandListener(this);
    mScreens.showOver(*mPopup);
}

void Question::commandAction(Command* command, Displayable*)
{
    if (command == PopupConfirm::HIDDEN_COMMAND())
        return;
    mPopup->dismiss();
    if (command == &mYes)
        std::exchange(mAct, [] {})();
}

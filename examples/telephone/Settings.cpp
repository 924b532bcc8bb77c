#include "Settings.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/TreeNode.h>

using namespace DisplayAPI;

namespace {

enum Row : int {
    UserRow = 1,
    RingingRow,
    ForwardingRow,
    LanguageRow,
    HelpRow,
    FirstLanguageRow = 100,
};

constexpr int LongestPin = 8;

}

Settings::Settings(Display& display, Languages& languages, Answers answers)
    : mDisplay(display)
    , mLanguages(languages)
    , mAnswers(std::move(answers))
    , mClassic(languages.text("Classic"), 1)
    , mChime(languages.text("Chime"), 2)
    , mBirds(languages.text("Birds"), 3)
    , mName(new TextField(languages.text("Name"), {}, nullptr, TextField::AnyText, false))
    , mPin(new TextField(languages.text("PIN"), {}, nullptr, TextField::Password, false))
    , mVolume(new SliderItem(languages.text("Volume")))
    , mTone(new SelectionField(languages.text("Tone"), &mClassic, &mRinging, false))
{
    mTree.setTreeName(languages.text("Settings"));
    mTree.addNode(languages.text("User"), UserRow);
    mTree.addNode(languages.text("Ringing"), RingingRow);
    mTree.addNode(languages.text("Forwarding"), ForwardingRow);
    TreeNode* language = mTree.addNode(languages.text("Language"), LanguageRow);
    int row = FirstLanguageRow;
    for (const std::string& code : Languages::codes())
        language->addNode(Languages::nameOf(code), row++);
    mTree.addNode(languages.text("Help"), HelpRow);

    mUser.setTitle(languages.text("User"));
    mPin->setMaxFieldLength(LongestPin);
    mUser.append(mName);
    mUser.append(mPin);
    mRinging.setTitle(languages.text("Ringing"));
    mVolume->setMaxValue("10");
    mVolume->setValue("5");
    for (MenuCommand* tone : {&mClassic, &mChime, &mBirds})
        mTone->appendSelection(tone);
    mRinging.append(mVolume);
    mRinging.append(mTone);

    mTree.addCommandListener(this);
    mHelp.addCommandListener(this);
    mUser.addCommandListener(this);
    mRinging.addCommandListener(this);
}

void Settings::open()
{
    mDisplay.setCurrent(&mTree);
}

void Settings::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mHelp || command == Form::BACK_COMMAND())
        return mDisplay.setCurrent(&mTree);
    if (command == Form::SAVE_COMMAND())
        mAnswers.call(mName->getString());
    if (displayable != &mTree)
        return;
    if (command->getType() == Command::Back)
        return mAnswers.leave();
    if (const TreeNode* node = mTree.getSelected())
        choose(node->getId());
}

void Settings::choose(int row)
{
    switch (row) {
    case UserRow: return mDisplay.setCurrent(&mUser);
    case RingingRow: return mDisplay.setCurrent(&mRinging);
    case ForwardingRow: return mAnswers.forward();
    case HelpRow: return openHelp();
    default: break;
    }
    const auto language = static_cast<std::size_t>(row - FirstLanguageRow);
    if (row >= FirstLanguageRow && language < Languages::codes().size())
        mAnswers.speak(Languages::codes()[language]);
}

void Settings::openHelp()
{
    mHelp.setTitle(mLanguages.text("Help"));
    mHelp.setText(mLanguages.translate("Digits dial. OK opens the menu. Left goes back."), false);
    mDisplay.setCurrent(&mHelp);
}

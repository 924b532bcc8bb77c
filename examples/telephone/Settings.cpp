#include "Settings.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/TreeNode.h>

using namespace DisplayAPI;

namespace {

enum Row : int {
    UserRow = 1,
    LanguageRow,
    HelpRow,
    FirstLanguageRow = 100,
};

}

Settings::Settings(
    Display& display, Languages& languages, std::function<void(const std::string&)> speak, std::function<void()> leave)
    : mDisplay(display)
    , mLanguages(languages)
    , mSpeak(std::move(speak))
    , mLeave(std::move(leave))
{
    mTree.setTreeName(languages.text("Settings"));
    TreeNode* language = mTree.addNode(languages.text("Language"), LanguageRow);
    int row = FirstLanguageRow;
    for (const std::string& code : Languages::codes())
        language->addNode(Languages::nameOf(code), row++);
    mTree.addNode(languages.text("Help"), HelpRow);
    mTree.addCommandListener(this);
    mHelp.addCommandListener(this);
}

void Settings::open()
{
    mDisplay.setCurrent(&mTree);
}

void Settings::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mHelp)
        return mDisplay.setCurrent(&mTree);
    if (command->getType() == Command::Back)
        return mLeave();
    if (TreeNode* node = mTree.getSelected())
        choose(node->getId());
}

void Settings::choose(int row)
{
    if (row == HelpRow) {
        mHelp.setTitle(mLanguages.text("Help"));
        mHelp.setText(mLanguages.translate("Digits dial. OK opens the menu. Left goes back."), false);
        mDisplay.setCurrent(&mHelp);
    }
    const auto language = static_cast<std::size_t>(row - FirstLanguageRow);
    if (row >= FirstLanguageRow && language < Languages::codes().size())
        mSpeak(Languages::codes()[language]);
}

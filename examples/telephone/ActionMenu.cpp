#include "ActionMenu.h"

#include <utility>

using namespace DisplayAPI;

namespace {

constexpr int MenuTime = 10; // seconds

}

ActionMenu::ActionMenu(Screens& screens, Languages& languages)
    : mScreens(screens)
    , mLanguages(languages)
{
    mMenu.setAutoHideTimeout(MenuTime);
    mMenu.addCommandListener(this);
}

void ActionMenu::open(std::vector<Choice> choices)
{
    mMenu.clearCommands();
    mCommands.clear();
    mChoices = std::move(choices);
    for (const Choice& choice : mChoices) {
        mCommands.push_back(std::make_unique<MenuCommand>(mLanguages.text(choice.key, "?"), mCommands.size()));
        mMenu.addCommand(mCommands.back().get(), nullptr, false, false, "");
    }
    mScreens.showOver(mMenu);
}

void ActionMenu::commandAction(Command* command, Displayable*)
{
    // A menu that went by itself tells of that only.
    if (command->getType() == Command::Dismiss)
        return;
    for (std::size_t i = 0; i < mCommands.size(); ++i) {
        if (mCommands[i].get() != command)
            continue;
        const auto act = mChoices[i].act; // which may open the menu anew
        mMenu.dismiss();
        return act();
    }
    if (command->getType() == Command::Back)
        mMenu.dismiss();
}

#include "Details.h"

#include <DisplayAPI/ListItem.h>

#include <utility>

using namespace DisplayAPI;

Details::Details(Screens& screens, Languages& languages)
    : mScreens(screens)
    , mLanguages(languages)
{
    mList.addCommandListener(this);
}

void Details::show(const std::string& title, const std::vector<std::string>& facts, std::vector<Choice> choices,
    std::function<void()> leave)
{
    mFacts = facts.size();
    mChoices = std::move(choices);
    mLeave = std::move(leave);
    mList.clear();
    mList.setTitle(title);
    for (const std::string& fact : facts)
        mList.append(fact);
    for (const Choice& choice : mChoices)
        mList.append(mLanguages.text(choice.key, "?"));
    mList.setSelectedIndex(0);
    mScreens.show(mList);
}

void Details::commandAction(Command* command, Displayable*)
{
    // Copies, since what follows may show other details.
    if (command == List::BACK_COMMAND()) {
        const auto leave = mLeave;
        return leave();
    }
    if (command != List::SELECT_COMMAND())
        return;
    const auto row = static_cast<std::size_t>(mList.getSelectedIndex());
    if (row < mFacts || row - mFacts >= mChoices.size())
        return;
    const auto act = mChoices[row - mFacts].act;
    act();
}

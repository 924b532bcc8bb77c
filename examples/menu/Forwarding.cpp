#include "Forwarding.h"

#include "Words.h"

#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/Command.h>
#include <DisplayAPI/Display.h>

#include <memory>

using namespace DisplayAPI;

Forwarding::Forwarding(Display& display, Displayable& menu, Words& words)
    : mDisplay(display)
    , mMenu(menu)
{
    const std::unique_ptr<TranslationInfo> to(words.text("to"));
    mList.setTitle(words.text("Forwarding"));
    for (const auto& [name, number] :
        {std::pair("All calls", "4712"), std::pair("On busy", "Carol 4713"), std::pair("On no answer", "4714")}) {
        auto* item = new CallForwardItem(CallLogMainItem::NoIcon, words.text(name), false, false);
        item->setTextBranch(number, to.get(), {});
        mList.append(item);
    }
    mList.addCommandListener(this);
}

void Forwarding::show()
{
    mDisplay.setCurrent(&mList);
}

void Forwarding::commandAction(Command* command, Displayable*)
{
    if (command->getType() == Command::Back)
        mDisplay.setCurrent(&mMenu);
    if (auto* item = dynamic_cast<CallForwardItem*>(mList.getSelected()); item && command->getType() == Command::Select)
        item->swapCheck();
}

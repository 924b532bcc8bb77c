#include "CallTabs.h"

#include "Words.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/Form.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/TextField.h>
#include <DisplayAPI/Tree.h>
#include <DisplayAPI/TreeNode.h>

using namespace DisplayAPI;

CallTabs::CallTabs(Display& display, Displayable& menu, Words& words)
    : mDisplay(display)
    , mMenu(menu)
    , mWords(words)
{
    mTabs.addCommandListener(this);
    addMissedCalls();
    addMessages();
    addMailbox();
}

void CallTabs::addMissedCalls()
{
    mMissed = new List(0);
    for (const char* party : {"Bob 4712", "Carol 4713"})
        mMissed->append(party);
    mMissed->addCommandListener(this);
    mTabs.addTab(mWords.text("Missed calls"), mMissed, false);
}

void CallTabs::addMessages()
{
    mMessages = new Tree;
    mMessages->setTreeIcon(Tree::Messages);
    TreeNode* fresh = mMessages->addNode(mWords.text("New"), 0);
    for (const char* party : {"Anna 09:12", "Bob 10:42"})
        fresh->addNode(party, 0);
    mMessages->addNode(mWords.text("Old"), 0)->addNode("Carol 17:30", 0);
    mMessages->addCommandListener(this);
    mTabs.addTab(mWords.text("Messages"), mMessages, false);
}

void CallTabs::addMailbox()
{
    mMailbox = new Form(Form::Proportion0);
    auto* number = new TextField(mWords.label("Number"), {}, nullptr, TextField::DialNumber, false);
    number->setString("4799");
    mMailbox->append(number);
    auto* code = new TextField(mWords.label("Code"), {}, nullptr, TextField::Password, false);
    code->setString("1234");
    mMailbox->append(code);
    mMailbox->addCommandListener(this);
    mTabs.addTab(mWords.text("Mailbox"), mMailbox, false);
}

void CallTabs::show()
{
    mTabs.showTabList();
    mDisplay.setCurrent(&mTabs);
}

void CallTabs::commandAction(Command* command, Displayable* displayable)
{
    if (command == TabScreen::OK())
        mTabs.setCurrentTabIndex(mTabs.getCurrentTabIndex());
    else if (command == TabScreen::BACK_COMMAND())
        mDisplay.setCurrent(&mMenu);
    else if (displayable != &mTabs && command->getType() == Command::Back)
        show(); // from the screen of a tab
}

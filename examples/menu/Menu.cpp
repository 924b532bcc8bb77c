#include "Menu.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/TreeNode.h>

using namespace DisplayAPI;

namespace {

enum Entry {
    Branch,
    Setting,
    CallsTab,
    ForwardingRow,
    English,
    German,
    Restart,
    About,
};
constexpr int NoticeTime = 3000; // milliseconds

}

Menu::Menu(Display& display)
    : mDisplay(display)
{
    mTree.setTreeName(mWords.text("Menu"));
    mTree.setTreeIcon(Tree::Menu);
    mTree.addCommandListener(this);
    mTree.addNode(mWords.text("Calls"), CallsTab);
    mTree.addNode(mWords.text("Forwarding"), ForwardingRow);
    addSettings();
    addAdministration();
    mTree.addNode(mWords.text("About"), About);

    mQuestion.setState(PopupConfirm::Question);
    mQuestion.setText(mWords.text("For administrators only"));
    mQuestion.addCommand(&mEnter);
    mQuestion.addCommand(&mCancel);
    mQuestion.addCommandListener(this);
    mNotice.setTimeout(NoticeTime);
}

void Menu::addSettings()
{
    TreeNode* settings = mTree.addNode(mWords.text("Settings"), Branch);
    TreeNode* melody = settings->addNode(mWords.text("Melody"), Branch);
    for (const char* name : {"Silver", "Bell"})
        melody->addNode(mWords.text(name), Setting);
    TreeNode* display = settings->addNode(mWords.text("Display"), Branch);
    for (const char* name : {"Bright", "Dark"})
        display->addNode(mWords.text(name), Setting);
    TreeNode* language = settings->addNode(mWords.text("Language"), Branch);
    language->addNode("English", English);
    language->addNode("Deutsch", German);
}

void Menu::addAdministration()
{
    mAdministration = mTree.addNode(mWords.text("Administration"), Branch);
    mAdministration->setProtected(true);
    mAdministration->addNode(mWords.text("Address"), Setting);
    mAdministration->addNode(mWords.text("Restart"), Restart);
}

void Menu::run()
{
    mDisplay.setCurrent(&mTree);
    mDisplay.show();
    mDisplay.exec();
}

void Menu::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mTree && command->getType() == Command::Select) {
        if (const TreeNode* node = mTree.getSelected())
            choose(*node);
    }
    if (displayable == &mTree && command->getType() == Command::Right)
        mDisplay.setCurrent(&mQuestion);
    if (displayable == &mQuestion && command != PopupConfirm::HIDDEN_COMMAND()) {
        mQuestion.dismiss();
        if (command == &mEnter)
            mTree.expandNode(mAdministration, true);
    }
}

void Menu::choose(const TreeNode& node)
{
    switch (node.getId()) {
    case CallsTab: mCalls.show(); break;
    case ForwardingRow: mForwarding.show(); break;
    case English: setLanguage(Words::English); break;
    case German: setLanguage(Words::German); break;
    case Restart: notify(PopupNotification::WARNING, mWords.text("Restart"), "10:42"); break;
    case About: notify(PopupNotification::INFO, mWords.text("About"), "Menu 1.0"); break;
    default: notify(PopupNotification::SUCCESS, mWords.text("Saved"), node.getText()); break;
    }
}

void Menu::setLanguage(Words::Language language)
{
    mWords.setLanguage(language);
    mDisplay.localeChanged(language == Words::German ? "de_DE" : "en_US");
}

void Menu::notify(PopupNotification::InfoType type, TranslationInfo* first, const std::string& second)
{
    mNotice.setType(type);
    mNotice.setText(first);
    mNotice.setLine2Text(second);
    mDisplay.setCurrent(&mNotice);
}

#include "Gallery.h"

#include <TreeItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>

namespace {

using namespace Gallery;

TreeItemMEG* call(BranchMEG::IconType icon, const std::string& party)
{
    return new TreeItemMEG(icon, text(party), true, true);
}

const Exhibit calls("calls", R"(
    advance 42s
    shot two
    press DOWN
    shot second
    advance 3600s
    shot hour
)",
    [](Stage& stage) {
        VantoListBoxMEG* list = stage.add<VantoListBoxWithTitleMEG>()->list();
        list->addItem(call(BranchMEG::CallActive, "Bob 4712"));
        list->addItem(call(BranchMEG::CallHeldByThisEnd, "Carol 4713"));
    });

const Exhibit oneCall("call", R"(
    advance 42s
    shot connected
)",
    [](Stage& stage) {
        TreeItemMEG* bob = call(BranchMEG::CallActive, "Bob 4712");
        bob->setSecondLineText(text("for Sales"));
        bob->branch->setCallSecurityState(BranchMEG::SecureCall);
        stage.add<VantoListBoxWithTitleMEG>()->list()->addItem(bob);
    });

const Exhibit conference("conference", R"(
    advance 301s
    shot title
    press DOWN
    shot member
)",
    [](Stage& stage) {
        TreeItemMEG* title = call(BranchMEG::CallActive, "Conference");
        title->setTreeType(TreeItemMEG::ConferenceType);
        for (const char* member : {"Bob 4712", "Carol 4713"}) {
            TreeItemMEG* row = call(BranchMEG::CallActive, member);
            row->setTreeType(TreeItemMEG::ConferenceType);
            title->addChildItem(row);
        }
        stage.add<VantoListBoxWithTitleMEG>()->list()->addItem(title);
    });

}

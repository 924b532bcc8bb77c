#include "Gallery.h"

#include <CallRowsMEG.h>
#include <ExpandingListMEG.h>
#include <TabScreenMEG.h>
#include <TwoLineDisplay.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>
#include <VantoTextBoxMEG.h>

namespace {

using namespace Gallery;

// Icons of a tree: the menu itself, a branch, inside a branch.
constexpr std::uint16_t Menu = 57;
constexpr std::uint16_t Branch = 39;
constexpr std::uint16_t Inside = 40;

/// A display with a line above a row; the number 0 is no icon.
void addDisplay(Stage& stage, std::uint16_t icon, const std::string& name, std::uint16_t rowIcon,
    const std::string& row, int arrows)
{
    auto* display = stage.add<TwoLineDisplay>();
    display->addIcon(0, icon);
    display->addText(0, text(name));
    display->addText(0, text(":"));
    display->addIcon(1, rowIcon);
    display->addText(1, text(row));
    display->setScrollIndication(arrows != TwoLineDisplay::NoArrow);
    display->setArrowMode(arrows);
}

const Exhibit top("tree", "shot top",
    [](Stage& stage) { addDisplay(stage, Menu, "Menu", Branch, "Settings", TwoLineDisplay::ArrowDown); });

const Exhibit inside("tree-inside", "shot row",
    [](Stage& stage) { addDisplay(stage, Inside, "Settings", 0, "Language", TwoLineDisplay::ArrowBoth); });

const Exhibit back("tree-back", "shot row",
    [](Stage& stage) { addDisplay(stage, Inside, "Settings", 0, "Back?", TwoLineDisplay::ArrowUp); });

const Exhibit longNames("tree-long", "shot row", [](Stage& stage) {
    addDisplay(stage, Menu, "A name that is longer than the line", Branch, "A branch with a name as long",
        TwoLineDisplay::ArrowDown);
});

const Exhibit tab("tab", "shot content", [](Stage& stage) {
    auto* tabs = stage.add<TabScreenMEG>();
    tabs->setTitle(text("Missed calls"));
    auto* content = new VantoListBoxWithTitleMEG;
    content->setTitle(text("Hidden title"));
    for (const char* party : {"Bob 4712", "Carol 4713"}) {
        auto* row = new CallLogListItemMEG(
            text(party), {}, CallLogListItemMEG::IconType{4}, text("2026-03-01 10:42"), 2, false, false, false, 0);
        row->setArrow(true);
        content->list()->addItem(row);
    }
    tabs->setCurrent(content);
});

const Exhibit tabOfText("tab-text", R"(
    shot first
    press DOWN
    shot second
)",
    [](Stage& stage) {
        auto* tabs = stage.add<TabScreenMEG>();
        tabs->setTitle(text("Help"));
        auto* content = new VantoTextBoxMEG;
        content->setText(text("Press OK to start the call. Left goes back."), false);
        tabs->setCurrent(content);
    });

const Exhibit tabOfTree("tab-tree", "shot row", [](Stage& stage) {
    auto* tabs = stage.add<TabScreenMEG>();
    tabs->setTitle(text("Settings"));
    auto* content = new TwoLineDisplay;
    content->addText(0, text("Menu:"));
    content->addIcon(1, Branch);
    content->addText(1, text("Ringer"));
    tabs->setCurrent(content);
});

const Exhibit tabList("tab-list", R"(
    shot first
    press DOWN
    shot second
)",
    [](Stage& stage) {
        auto* tabs = stage.add<TabScreenMEG>();
        auto* titles = new VantoListBoxWithTitleMEG;
        titles->setTitle(text("Menu"));
        addRows(*titles->list(), {"Missed calls", "Answered calls", "Dialled calls"});
        tabs->setCurrent(titles);
    });

const Exhibit expanding("expanding", R"(
    shot row
    press DOWN
    shot branch
    press DOWN
    shot icon
    press DOWN
    shot long
    press DOWN
    shot rest
    press DOWN
    shot text
)",
    [](Stage& stage) {
        using Row = CallForwardListItemMEG;
        auto* list = stage.add<ExpandingListMEG>();
        list->setTitle(text("Forwarding"));
        list->setListener(stage.listener());
        auto* all = new Row(Row::IconType{4}, text("All calls"), false);
        all->check();
        all->setBranchText(text("to: 0987654"));
        list->addTopLevelItem(all);
        auto* busy = new Row(Row::IconType{5}, text("On busy"), false);
        busy->setCFIconVisible(true);
        busy->setBranchText(text("to: Carol Miller, Example Ltd., Berlin"));
        list->addTopLevelItem(busy);
        auto* text = new Row(Gallery::text("No reply"));
        text->setArrow(true);
        list->addTopLevelItem(text);
    });

const Exhibit expandingWithoutTitle("expanding-plain", R"(
    shot row
    press DOWN
    shot branch
    press DOWN
    shot next
)",
    [](Stage& stage) {
        using Row = CallForwardListItemMEG;
        auto* list = stage.add<ExpandingListMEG>();
        for (const char* name : {"All calls", "On busy"}) {
            auto* row = new Row(Row::IconType{4}, text(name), false);
            row->setBranchText(text("to: 0987654"));
            list->addTopLevelItem(row);
        }
    });

const Exhibit endlessBar("endless-bar", R"(
    shot start
    advance 600ms
    shot early
    advance 600ms
    shot middle
    advance 600ms
    shot late
    advance 600ms
    shot again
)",
    [](Stage& stage) {
        auto* widget = stage.add<VantoListBoxWithTitleMEG>();
        widget->setTitle(text("Update"));
        auto* row = new InfiniteBarItemMEG;
        row->setText(text("Searching"));
        widget->list()->addItem(row);
        row->startInfiniteProgressBar();
    });

}

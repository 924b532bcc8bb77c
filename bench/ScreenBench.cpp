#include "Benchmarks.h"
#include "InkFont.h"
#include "Phone.h"
#include "Report.h"

#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/ExpandingTreeList.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/TabScreen.h>
#include <DisplayAPI/Tree.h>
#include <DisplayAPI/TreeNode.h>

#include <UApplication.h>
#include <UWindowManager.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

using namespace DisplayAPI;

namespace {

thread_local long tAllocations = 0;

}

// Counts what the measured thread allocates.
void* operator new(std::size_t size)
{
    ++tAllocations;
    if (void* block = std::malloc(size ? size : 1))
        return block;
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

namespace {

/// The screen text of a list with two questions over it.
double serialiseStackOfThree(const std::string& mode, long rounds)
{
    Phone phone;
    double time = 0;
    phone.onGui([&] {
        List list(0);
        list.setTitle("Speaker");
        list.append(std::string("HeadSet"));
        list.append(std::string("Loudspeaker"));
        MenuCommand yes("Yes?", 1);
        MenuCommand no("No?", 2);
        PopupConfirm first(true);
        PopupConfirm second(true);
        for (PopupConfirm* popup : {&first, &second}) {
            popup->setText("Delete the entry of this caller?");
            popup->addCommand(&yes);
            popup->addCommand(&no);
        }
        phone.display().setCurrent({&list, &first, &second});
        const std::vector<Rect> rects = *phone.display().getDisplayedRects();
        const long allocationsBefore = tAllocations;
        const double begin = nowInNanoseconds();
        for (long round = 0; round < rounds; ++round)
            benchmark::DoNotOptimize(phone.display().serialiseByRect(rects, ""));
        time = (nowInNanoseconds() - begin) / static_cast<double>(rounds);
        Report::addFigure(mode, "allocations of serialiseByRect, stack of three",
            static_cast<double>(tAllocations - allocationsBefore) / static_cast<double>(rounds), "allocations", 20);
        phone.display().setCurrent(nullptr);
    });
    Report::addFigure(mode, "serialiseByRect, stack of three", time / 1000, "us", 10);
    return time;
}

/// The time of an append, on the way to a list of so many rows. The rows are made block by block, so that the figure is
/// the list's own work and not the memory's, which has long forgotten a row that was made 100,000 rows ago.
double appendRows(long rows)
{
    constexpr long Block = 50;
    Phone phone;
    double time = 0;
    phone.onGui([&] {
        List list(0);
        phone.display().setCurrent(&list);
        std::vector<ListItem*> items;
        for (long row = 0; row < rows; row += static_cast<long>(items.size())) {
            items.clear();
            while (static_cast<long>(items.size()) < std::min(Block, rows - row))
                items.push_back(new ListItem("Row", false));
            const double begin = nowInNanoseconds();
            for (ListItem* item : items)
                list.append(item);
            time += nowInNanoseconds() - begin;
        }
        phone.display().setCurrent(nullptr);
    });
    return time / static_cast<double>(rows);
}

/// A key press and the notice that follows it, with so many other screens alive.
double keyAmongScreens(long living)
{
    Phone phone;
    double time = 0;
    constexpr int Presses = 2000;
    phone.onGui([&] {
        List list(0);
        list.append(std::string("HeadSet"));
        list.append(std::string("Loudspeaker"));
        std::vector<std::unique_ptr<List>> others;
        for (long i = 0; i < living; ++i)
            others.push_back(std::make_unique<List>(0));
        phone.display().setCurrent(&list);
        const double begin = nowInNanoseconds();
        for (int i = 0; i < Presses; ++i) {
            UApplication::instance()->postKey(UGlobal::KeyDown, UGlobal::KeyPressed);
            UApplication::instance()->processEvents();
        }
        time = (nowInNanoseconds() - begin) / Presses;
        phone.display().setCurrent(nullptr);
    });
    return time;
}

/// Branches of nine children each, so many nodes in all, and the last branch current.
void growTree(Tree& tree, long nodes)
{
    constexpr long InBranch = 10;
    for (long branch = 0; branch < nodes / InBranch; ++branch) {
        TreeNode* node = tree.addNode("Settings", static_cast<int>(branch));
        for (int child = 1; child < InBranch; ++child)
            node->addNode("Language", child);
    }
    tree.setSelectedIndex(tree.getNodeCount() - 1);
}

/// The index of the current row behind so many nodes.
double selectInTree(long nodes, long rounds)
{
    Phone phone;
    double time = 0;
    phone.onGui([&] {
        Tree tree;
        growTree(tree, nodes);
        const double begin = nowInNanoseconds();
        for (long round = 0; round < rounds; ++round)
            benchmark::DoNotOptimize(tree.getSelectedIndex());
        time = (nowInNanoseconds() - begin) / static_cast<double>(rounds);
    });
    return time;
}

/// A key on the screen that is shown, pressed and released, to the finished frame and the notice.
double pressKey(int key, long rounds)
{
    const InkFont font;
    UWindowManager::instance().setFont(&font);
    UApplication& application = *UApplication::instance();
    const double begin = nowInNanoseconds();
    for (long round = 0; round < rounds; ++round) {
        application.postKey(key, UGlobal::KeyPressed);
        application.postKey(key, UGlobal::KeyReleased);
        application.processEvents();
    }
    const double time = nowInNanoseconds() - begin;
    UWindowManager::instance().setFont(nullptr);
    return time / static_cast<double>(rounds);
}

/// A key on the screen that `make(display)` makes and shows.
template <typename Make>
double keyOn(Make make, long rounds)
{
    Phone phone;
    double time = 0;
    phone.onGui([&] {
        const auto screen = make(phone.display());
        time = pressKey(UGlobal::KeyDown, rounds);
        phone.display().setCurrent(nullptr);
    });
    return time;
}

auto showTree(Display& display, long nodes)
{
    auto tree = std::make_unique<Tree>();
    growTree(*tree, nodes);
    display.setCurrent(tree.get());
    return tree;
}

auto showTab(Display& display, long rows)
{
    auto tabs = std::make_unique<TabScreen>(TabScreen::IconType{}, false);
    auto* list = new List(0);
    for (long row = 0; row < rows; ++row)
        list->append(std::string("Anna Miller"));
    tabs->addTab("Missed calls", list, false);
    display.setCurrent(tabs.get());
    tabs->setCurrentTabIndex(0);
    return tabs;
}

/// Each row unfolds under the highlight.
auto showForwarding(Display& display, long rows)
{
    auto list = std::make_unique<ExpandingTreeList>(true);
    for (long row = 0; row < rows; ++row) {
        auto* item = new CallForwardItem(CallLogMainItem::NoIcon, nullptr, false, false);
        item->setTextBranch("0987654", nullptr, {});
        list->append(item);
    }
    display.setCurrent(list.get());
    return list;
}

}

void registerScreenBenchmarks(const std::string& mode)
{
    registerRounds(
        mode, "serialiseByRect, stack of three", 20'000, [mode] { return serialiseStackOfThree(mode, 20'000); });
    registerRatio(mode, "List::append to 10 rows", 10, Report::NoLimit, [] { return appendRows(10); });
    registerRatio(mode, "List::append to 1,000 rows", 1000, Report::NoLimit, [] { return appendRows(1000); });
    registerRatio(mode, "List::append to 100,000 rows", 100'000, Report::NoLimit, [] { return appendRows(100'000); });
    registerRatio(mode, "key press with 10 screens alive", 2000, Report::NoLimit, [] { return keyAmongScreens(10); });
    registerRatio(
        mode, "key press with 10,000 screens alive", 2000, Report::NoLimit, [] { return keyAmongScreens(10'000); });
    registerRatio(mode, "Tree::getSelectedIndex behind 100 nodes", 20'000, Report::NoLimit,
        [] { return selectInTree(100, 20'000); });
    registerRatio(mode, "Tree::getSelectedIndex behind 1,000 nodes", 2000, Report::NoLimit,
        [] { return selectInTree(1000, 2000); });
    registerRatio(mode, "Tree::getSelectedIndex behind 10,000 nodes", 200, Report::NoLimit,
        [] { return selectInTree(10'000, 200); });
    const auto registerKey = [&mode](const char* name, auto show) {
        registerRatio(mode, std::string("key to frame, ") + name, 2000, Report::NoLimit,
            [show] { return keyOn([show](Display& display) { return show(display, 10'000); }, 2000); });
    };
    registerKey("Tree of 10,000 nodes", showTree);
    registerKey("tab with a List of 10,000 rows", showTab);
    registerKey("ExpandingTreeList of 10,000 rows", showForwarding);
}

#include "Benchmarks.h"
#include "Phone.h"
#include "Report.h"

#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/CallLogMainItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/ContextMenu.h>
#include <DisplayAPI/Desktop.h>
#include <DisplayAPI/DetailsWithCommands.h>
#include <DisplayAPI/ExclusiveList.h>
#include <DisplayAPI/ExpandingTreeList.h>
#include <DisplayAPI/Form.h>
#include <DisplayAPI/IdleDisplay.h>
#include <DisplayAPI/LineOverviewItem.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PhonebookItem.h>
#include <DisplayAPI/PopupCall.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupDialer.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/PopupProgress.h>
#include <DisplayAPI/PopupTextField.h>
#include <DisplayAPI/QVTList.h>
#include <DisplayAPI/SearchList.h>
#include <DisplayAPI/SelectionField.h>
#include <DisplayAPI/SliderItem.h>
#include <DisplayAPI/TabScreen.h>
#include <DisplayAPI/TextBox.h>
#include <DisplayAPI/TextField.h>
#include <DisplayAPI/Timer.h>
#include <DisplayAPI/Tree.h>
#include <DisplayAPI/TreeNode.h>
#include <DisplayAPI/WaveStyleListItem.h>

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <unistd.h>
#include <vector>

using namespace DisplayAPI;

namespace {

/// What the whole process holds of the heap.
double heapInBytes()
{
    return static_cast<double>(mallinfo2().uordblks);
}

/// A question is made, shown over a list, dismissed and destroyed.
void showQuestions(Display& display, Command& yes, long rounds)
{
    for (long round = 0; round < rounds; ++round) {
        PopupConfirm popup(true);
        popup.setText("Delete the entry of this caller?");
        popup.addCommand(&yes);
        display.setCurrent(&popup);
        popup.dismiss();
    }
}

/// By how much the heap has grown after so many rounds, once everything that is kept for good has been made.
double measureGrowth(const std::string& mode, bool isOnGui, long rounds)
{
    Phone phone;
    List list(0);
    list.append(std::string("HeadSet"));
    phone.display().setCurrent(&list);
    MenuCommand yes("Yes?", 1);
    double growth = 0;
    double time = 0;
    const auto measure = [&] {
        showQuestions(phone.display(), yes, 1000);
        const double before = heapInBytes();
        const double start = nowInNanoseconds();
        showQuestions(phone.display(), yes, rounds);
        time = nowInNanoseconds() - start;
        growth = heapInBytes() - before;
    };
    if (isOnGui)
        phone.onGui(measure);
    else
        measure();
    phone.display().setCurrent(nullptr);
    Report::addFigure(mode,
        std::string("heap growth over 100,000 questions, ") + (isOnGui ? "GUI thread" : "another thread"), growth,
        "bytes", 0);
    return time / static_cast<double>(rounds);
}

/// What a handle of a kind holds of the heap, with its half and its widget; `make` returns what keeps one alive.
template <typename Make>
void measureHandles(const std::string& mode, const std::string& name, Make make)
{
    constexpr std::size_t Count = 10'000;
    std::vector<decltype(make())> handles;
    handles.reserve(Count);
    handles.push_back(make());
    const double before = heapInBytes();
    while (handles.size() < Count)
        handles.push_back(make());
    Report::addFigure(mode, "heap of a " + name, (heapInBytes() - before) / (Count - 1), "bytes", Report::NoLimit);
}

double measureAllHandles(const std::string& mode)
{
    Phone phone;
    phone.onGui([&mode] {
        measureHandles(mode, "PopupConfirm", [] { return std::make_unique<PopupConfirm>(true); });
        measureHandles(mode, "PopupNotification", [] { return std::make_unique<PopupNotification>(); });
        measureHandles(mode, "PopupProgress", [] { return std::make_unique<PopupProgress>(); });
        measureHandles(mode, "ContextMenu", [] { return std::make_unique<ContextMenu>(false); });
        measureHandles(mode, "PopupCall", [] { return std::make_unique<PopupCall>(); });
        measureHandles(mode, "PopupDialer", [] { return std::make_unique<PopupDialer>(true, 0); });
        measureHandles(mode, "PopupTextField", [] { return std::make_unique<PopupTextField>(nullptr, true); });
        measureHandles(mode, "IdleDisplay", [] { return std::make_unique<IdleDisplay>(""); });
        measureHandles(mode, "Desktop", [] { return std::make_unique<Desktop>(); });
        measureHandles(mode, "Timer", [] { return std::make_unique<Timer>(0); });
        measureHandles(mode, "List", [] { return std::make_unique<List>(0); });
        measureHandles(mode, "Tree", [] { return std::make_unique<Tree>(); });
        Tree tree;
        measureHandles(mode, "node of a tree", [&tree] { return tree.addNode("Settings", 1); });
        measureHandles(mode, "TabScreen", [] { return std::make_unique<TabScreen>(TabScreen::IconType{}, false); });
        measureHandles(mode, "ExpandingTreeList", [] { return std::make_unique<ExpandingTreeList>(true); });
        ExpandingTreeList forwarding(true);
        measureHandles(mode, "CallForwardItem", [&forwarding] {
            auto* row = new CallForwardItem(CallLogMainItem::NoIcon, nullptr, false, false);
            forwarding.append(row);
            return row;
        });
        measureHandles(mode, "SearchList", [] { return std::make_unique<SearchList>(); });
        measureHandles(mode, "TextBox", [] { return std::make_unique<TextBox>(false); });
        measureHandles(mode, "DetailsWithCommands", [] { return std::make_unique<DetailsWithCommands>(); });
        measureHandles(mode, "ExclusiveList", [] { return std::make_unique<ExclusiveList>(); });
        measureHandles(mode, "QVTList", [] { return std::make_unique<QVTList>(); });
        List list(0);
        const auto inList = [&list](auto* row) {
            list.append(row);
            return row;
        };
        measureHandles(mode, "row of a list", [&] { return inList(new ListItem("HeadSet", false)); });
        measureHandles(mode, "CallLogMainItem", [&] {
            auto* party = new CallPartyIdentifier("Anna", "4711");
            return inList(new CallLogMainItem(party, "2001-02-03 10:42", 2, true, false));
        });
        measureHandles(mode, "LineOverviewItem", [&] {
            return inList(new LineOverviewItem(LineOverviewItem::LINE_ACTIVE, "Sales", "4711", true, nullptr));
        });
        measureHandles(mode, "PhonebookItem",
            [&] { return inList(new PhonebookItem(PhonebookItem::Private, false, "Anna", false)); });
        measureHandles(mode, "WaveStyleListItem", [&] { return inList(new WaveStyleListItem); });
        measureHandles(mode, "Form", [] { return std::make_unique<Form>(Form::Proportion0); });
        Form form(Form::Proportion0);
        measureHandles(mode, "TextField", [&form] {
            auto* field = new TextField(nullptr, {}, nullptr, TextField::AnyText, false);
            form.append(field);
            return field;
        });
        measureHandles(mode, "SelectionField", [&form] {
            auto* field = new SelectionField(nullptr, nullptr, &form, true);
            form.append(field);
            return field;
        });
        measureHandles(mode, "SliderItem", [&form] {
            auto* slider = new SliderItem(nullptr);
            form.append(slider);
            return slider;
        });
    });
    return 0;
}

/// The library as it goes onto the telephone, with the program `strip` of the machine.
double measureLibrary(const std::string& mode)
{
    Dl_info info = {};
    const std::string stripped = std::filesystem::temp_directory_path() / ("stripped-" + std::to_string(getpid()));
    if (dladdr(reinterpret_cast<void*>(&Display::exists), &info) == 0
        || std::system(("strip -o '" + stripped + "' '" + info.dli_fname + "'").c_str()) != 0)
        return 0;
    Report::addFigure(
        mode, "stripped library", static_cast<double>(std::filesystem::file_size(stripped)), "bytes", Report::NoLimit);
    std::filesystem::remove(stripped);
    return 0;
}

}

void registerMemoryBenchmarks(const std::string& mode)
{
    for (const bool isOnGui : {true, false}) {
        registerRounds(
            mode, std::string("questions, ") + (isOnGui ? "GUI thread" : "another thread"), 100'000,
            [=] { return measureGrowth(mode, isOnGui, 100'000); }, 1);
    }
    registerRounds(
        mode, "handles", 1, [mode] { return measureAllHandles(mode); }, 1);
    registerRounds(
        mode, "library", 1, [mode] { return measureLibrary(mode); }, 1);
}

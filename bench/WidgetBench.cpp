#include "Benchmarks.h"
#include "InkFont.h"
#include "Phone.h"
#include "Report.h"

#include <CallRowsMEG.h>
#include <ContextMenuMEG.h>
#include <DesktopMEG.h>
#include <DetailsWithCommandListMEG.h>
#include <ExpandingListMEG.h>
#include <FormItemMEG.h>
#include <FormWidgetMEG.h>
#include <PopupCallMEG.h>
#include <PopupDialerMEG.h>
#include <SearchableListMEG.h>
#include <SpellerMEG.h>
#include <StatusVolumeMEG.h>
#include <TreeItemMEG.h>
#include <TwoLineDisplay.h>
#include <Types.h>
#include <UEvent.h>
#include <UScreenWE1.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>
#include <VantoTextBoxMEG.h>

#include <vector>

namespace {

/// What one key may cost, from the press to the finished frame, in the yardstick of the run.
constexpr double MostForAKey = 10;

/// A widget on the glass and the keys that work it, in turn. A new widget is an entry in cases().
struct Case {
    const char* name;
    std::function<void(UWidget& root)> build;
    std::vector<int> keys;
    double most = MostForAKey;
};

UString text(const std::string& utf8)
{
    return UString(utf8);
}

void addRows(VantoListBoxMEG& list, int count)
{
    for (int row = 0; row < count; ++row) {
        auto* item = new VantoListBoxItemMEG(text("Row number " + std::to_string(row)), row + 1);
        item->setRightText(text("10:42"));
        list.addItem(item);
    }
}

template <typename Widget>
Widget* put(UWidget& root)
{
    auto* widget = new Widget;
    root.addWidget(widget);
    return widget;
}

void buildList(UWidget& root, int rows)
{
    addRows(*put<VantoListBoxWithTitleMEG>(root)->list(), rows);
}

void buildRadioButtons(UWidget& root, int rows)
{
    addRows(*put<RadioButtonListMEG>(root)->list(), rows);
}

void buildCallLog(UWidget& root, int rows)
{
    VantoListBoxMEG& list = *put<VantoListBoxWithTitleMEG>(root)->list();
    for (int row = 0; row < rows; ++row) {
        list.addItem(new CallLogListItemMEG(text("Anna"), text("471" + std::to_string(row)),
            CallLogListItemMEG::IconType{3}, text("2001-02-03 10:42"), 2, true, false, false, -1));
    }
}

void buildLineOverview(UWidget& root, int rows)
{
    VantoListBoxMEG& list = *put<VantoListBoxWithTitleMEG>(root)->list();
    for (int row = 0; row < rows; ++row) {
        list.addItem(new LineOverviewListItem(
            LineOverviewListItem::LineStateIconType{1}, text("Line " + std::to_string(row)), text("4711"), true));
    }
}

/// The keys work the list below, and each frame draws what lies over it.
void buildStatusOverList(UWidget& root)
{
    buildList(root, 10);
    auto* desktop = put<DesktopMEG>(root);
    desktop->setTime(10, 41, 0);
    desktop->setDate(27, 2, 2026);
    desktop->setLogoText(text("Example Ltd."));
    desktop->setDesktopString("4711");
    desktop->setHeadsetIcon(true);
    desktop->setStrength(true, 75);
    root.addWidget(new StatusMessageMEG("Maintenance tonight between ten and eleven", 0, 5000));
    root.addWidget(new VolumeIndicatorMEG(VolumeIndicatorMEG::Speaker, 4, 0, 10));
}

void buildConference(UWidget& root)
{
    auto* conference = new TreeItemMEG(BranchMEG::CallActive, text("Conference"), true, true);
    for (const char* member : {"Bob 4712", "Carol 4713", "Dave 4714"})
        conference->addChildItem(new TreeItemMEG(BranchMEG::CallActive, text(member), false, false));
    put<VantoListBoxWithTitleMEG>(root)->list()->addItem(conference);
}

void buildDialog(UWidget& root)
{
    buildList(root, 100);
    auto* dialog = put<PopupDialogMEG>(root);
    dialog->setText(text("Delete the entry of this caller?"));
    addRows(*dialog->listBox, 3);
    dialog->popupAsCall();
}

void buildMenu(UWidget& root)
{
    buildList(root, 100);
    auto* menu = new ContextMenuMEG(nullptr, false, 0, "");
    for (const char* command : {"Do not disturb?", "Forwarding?", "Ringer off?"})
        menu->addCommand(command, 0, false, false, 0);
    root.addWidget(menu);
    menu->slideIn();
}

void buildDetails(UWidget& root)
{
    auto* details = new DetailsWithCommandListMEG(&root);
    details->setHeaderText("Bob Baker 4712");
    for (const char* command : {"Call?", "Edit?", "Delete?"})
        details->addListItem(new VantoListBoxItemMEG(text(command)));
}

void buildTextBox(UWidget& root, int paragraphs)
{
    UString text;
    for (int paragraph = 0; paragraph < paragraphs; ++paragraph)
        text += UString(std::string("Press OK to start the call. Left goes back to where you came from.\n"));
    put<VantoTextBoxMEG>(root)->setText(text, false);
}

void buildExpandingList(UWidget& root, int rows)
{
    auto* list = put<ExpandingListMEG>(root);
    list->setTitle(text("Forwarding"));
    for (int row = 0; row < rows; ++row) {
        auto* item = new CallForwardListItemMEG(CallForwardListItemMEG::IconType{4}, text("All calls"), false);
        item->setBranchText(text("to: 0987654"));
        list->addTopLevelItem(item);
    }
    list->list()->setCurrentIndex(rows / 2);
}

/// Draws a level and its row anew with each key that it is handed, as a tree does.
class LevelDrawer : public UWidget, public GUIEventIfc {
public:
    explicit LevelDrawer(TwoLineDisplay& display)
        : mDisplay(display)
    {
        mDisplay.setEventHandler(this);
    }

    bool onLeft(const UKeyEvent*) override { return draw(); }
    bool onRight(const UKeyEvent*) override { return draw(); }
    bool onUp(const UKeyEvent*) override { return draw(); }
    bool onDown(const UKeyEvent*) override { return draw(); }
    bool onOK(const UKeyEvent*) override { return draw(); }
    bool setEventHandler(GUIEventIfc*) override { return false; }

private:
    bool draw()
    {
        mDisplay.clear();
        mDisplay.addText(0, text("Settings"));
        mDisplay.addText(0, text(":"));
        mDisplay.addText(1, text("Language of the telephone"));
        mDisplay.setScrollIndication(true);
        mDisplay.setArrowMode(TwoLineDisplay::ArrowBoth);
        return true;
    }

    TwoLineDisplay& mDisplay;
};

void buildTree(UWidget& root)
{
    auto* display = put<TwoLineDisplay>(root);
    display->addWidget(new LevelDrawer(*display));
}

void buildSpeller(UWidget& root, std::size_t length)
{
    put<SpellerMEG>(root)->setText(UString(std::string(length, 'a')));
}

void buildDialer(UWidget& root)
{
    auto* dialer = new PopupDialerMEG(nullptr, false);
    root.addWidget(dialer);
    dialer->setLine1PrefixText(text("Dial"));
    addRows(*dialer->listBox, 3);
    dialer->popupAsNotification();
}

SearchableListMEG* buildSearchList(UWidget& root, int rows)
{
    auto* list = put<SearchableListMEG>(root);
    list->setTitle(text("Directory"));
    addRows(*list->list(), rows);
    return list;
}

/// An application that looks through all names at each change, and shows the first hundred of those that it finds.
class Directory : public UWidget {
public:
    Directory(SearchableListMEG& list, int names)
        : mList(list)
    {
        for (int name = 0; name < names; ++name)
            mNames.push_back(std::string(1, static_cast<char>('A' + name % 26)) + "nna " + std::to_string(name));
    }

    void event(UEvent* event) override
    {
        constexpr int mostRows = 100;
        if (event->type != EventType::SearchTextChanged)
            return;
        const std::string wanted = mList.getSearchText().toUTF8();
        mList.list()->clear();
        int found = 0;
        for (const std::string& name : mNames) {
            if (name.starts_with(wanted) && ++found <= mostRows)
                mList.list()->addItem(new VantoListBoxItemMEG(text(name)));
        }
        mList.setSearchCountIndicator(found);
    }

private:
    SearchableListMEG& mList;
    std::vector<std::string> mNames;
};

void buildDirectory(UWidget& root, int names)
{
    SearchableListMEG* list = buildSearchList(root, 0);
    auto* directory = new Directory(*list, names);
    list->addWidget(directory);
    list->setListener(directory);
}

void buildForm(UWidget& root, int rows)
{
    auto* form = new FormWidgetMEG(FormWidgetMEG::FormProportionType(), true);
    root.addWidget(form);
    form->setCaption(text("Settings"));
    for (int row = 0; row < rows; ++row) {
        const std::string number = std::to_string(row);
        form->appendRow(new FormItemMEG(text("Name " + number + ":"), text("Ann"), FormItemIfc::AnyText, false));
    }
}

const std::vector<Case>& cases()
{
    using namespace UGlobal;
    static const std::vector<Case> all = {
        {"list of 10 rows", [](UWidget& root) { buildList(root, 10); }, {KeyDown}},
        {"list of 10,000 rows", [](UWidget& root) { buildList(root, 10'000); }, {KeyDown}},
        {"list under desktop, message and volume", buildStatusOverList, {KeyDown}},
        {"radio buttons, 100", [](UWidget& root) { buildRadioButtons(root, 100); }, {KeyDown, KeyOk}},
        {"call log of 100 rows", [](UWidget& root) { buildCallLog(root, 100); }, {KeyDown}},
        {"line overview of 100 rows", [](UWidget& root) { buildLineOverview(root, 100); }, {KeyDown}},
        {"members of a conference", buildConference, {KeyDown}},
        {"dialog over a list", buildDialog, {KeyDown, KeyUp}},
        {"context menu over a list", buildMenu, {KeyDown}},
        {"row that unfolds, of 10", [](UWidget& root) { buildExpandingList(root, 10); }, {KeyDown}},
        {"row that unfolds, of 10,000", [](UWidget& root) { buildExpandingList(root, 10'000); }, {KeyDown}},
        {"level of a tree", buildTree, {KeyDown}},
        {"form of 10 rows", [](UWidget& root) { buildForm(root, 10); }, {KeyDown}},
        {"form of 1,000 rows", [](UWidget& root) { buildForm(root, 1000); }, {KeyDown}},
        {"commands of a contact", buildDetails, {KeyDown}},
        {"text box of 10 paragraphs", [](UWidget& root) { buildTextBox(root, 10); }, {KeyDown, KeyDown, KeyUp, KeyUp}},
        {"text box of 10,000 paragraphs", [](UWidget& root) { buildTextBox(root, 10'000); },
            {KeyDown, KeyDown, KeyUp, KeyUp}},
        {"typing into a speller", [](UWidget& root) { buildSpeller(root, 5); }, {'2', '3', KeyLeft, KeyLeft}},
        {"typing behind 10,000 characters", [](UWidget& root) { buildSpeller(root, 10'000); },
            {'2', '3', KeyLeft, KeyLeft}},
        {"typing into a dialer", buildDialer, {'2', '3', KeyLeft, KeyLeft}},
        {"search field over 10 rows", [](UWidget& root) { buildSearchList(root, 10); }, {'2', '3', KeyLeft, KeyLeft}},
        {"search field over 10,000 rows", [](UWidget& root) { buildSearchList(root, 10'000); },
            {'2', '3', KeyLeft, KeyLeft}},
        {"search in 10,000 names, filtered", [](UWidget& root) { buildDirectory(root, 10'000); },
            {'2', '3', KeyLeft, KeyLeft}, Report::NoLimit},
    };
    return all;
}

/// Presses and releases the keys of a case. Returns the nanoseconds of one key, from the press to the frame.
double pressKeys(const Case& measured, long presses)
{
    UScreenWE1 glass;
    const InkFont font;
    UWidget root;
    UWindowManager& manager = UWindowManager::instance();
    manager.setScreen(&glass);
    manager.setFont(&font);
    manager.setRoot(&root);
    manager.setEnabled(true);
    measured.build(root);
    manager.paintIfNeeded();

    const double begin = nowInNanoseconds();
    for (long press = 0; press < presses; ++press) {
        const int key = measured.keys[static_cast<std::size_t>(press) % measured.keys.size()];
        for (const int state : {UGlobal::KeyPressed, UGlobal::KeyReleased}) {
            UKeyEvent event(key, state);
            manager.dispatchKey(event);
        }
        manager.paintIfNeeded();
    }
    const double time = (nowInNanoseconds() - begin) / static_cast<double>(presses);

    manager.setRoot(nullptr);
    manager.setFont(nullptr);
    manager.setScreen(nullptr);
    return time;
}

}

void registerWidgetBenchmarks(const std::string& mode)
{
    constexpr long presses = 5000;
    for (const Case& measured : cases()) {
        const std::string name = std::string("key to frame, ") + measured.name;
        registerRatio(mode, name, presses, measured.most, [&measured] { return pressKeys(measured, presses); });
    }
}

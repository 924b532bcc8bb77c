#include "ListFixture.h"
#include "RecordingListener.h"

#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/PopupDialerPrivateIfc.h>

#include <TreeItemMEG.h>
#include <UEvent.h>

#include <functional>

using namespace DisplayAPI;
namespace {

/// What a dialer of a test has heard.
struct DialerLog {
    std::string keys;
    int lostFocus = 0;
};

class TestDialerPrivate : public PopupDialerPrivateIfc {
public:
    explicit TestDialerPrivate(DialerLog& log)
        : mLog(log)
    {
    }

    bool keyEvent(UKeyEvent* key) override
    {
        mLog.keys += std::to_string(key->key()) + (key->state() == UGlobal::KeyPressed ? "+" : "-");
        return false;
    }
    void lostFocus() override { ++mLog.lostFocus; }
    void event(UEvent*) override { }

    UWidget* getWidget() override { return this; }
    void releaseOwnership() override { }
    void gainOwnership() override { }
    void show() override { }
    void setLine1PrefixText(std::string) override { }
    void setLine1PrefixText(TranslationInfo*) override { }
    void setText(std::string) override { }
    void setText(TranslationInfo*) override { }
    void setLine2Text(std::string) override { }
    void setLine2Text(TranslationInfo*) override { }
    std::string getLineEditText() override { return {}; }
    void setLineEditText(std::string) override { }
    void setLineEditText(TranslationInfo*) override { }
    void addItemStateListener(ItemStateListener*) override { }
    void removeItemStateListener(ItemStateListener*) override { }
    void addCommand(MenuCommand*) override { }
    void setDefaultCommand(MenuCommand*) override { }
    void removeCommand(MenuCommand*) override { }
    void setMode(PopupDialer::eMode) override { }
    void setEditMode() override { }
    void setIgnoreKeypadEvents(bool) override { }
    void clearCommands() override { }
    void setParentIdleDisplay(UWidget*) override { }
    void dismiss() override { }
    int getSelectedIndex() override { return -1; }
    bool selectionHasChanged() override { return false; }
    void setStimulusText(std::string) override { }
    void setStimulusText(TranslationInfo*) override { }
    void showStimulusTextInHeader(bool) override { }

private:
    DialerLog& mLog;
};

class TestDialer : public PopupDialer {
public:
    TestDialer()
        : PopupDialer(true, 3)
    {
    }
    DisplayablePrivateIfc* getPrivateImpl() override { return &mPrivate; }

    DialerLog log;

private:
    TestDialerPrivate mPrivate{log};
};

class ListScreenTest : public ListFixture { };

}

// Screen

TEST_F(ListScreenTest, TitleAndCurrentRowAreWrittenAndPainted)
{
    List list(0);
    fill(list, "AB");
    list.setTitle("Speaker");
    show(list);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "caption:Speaker", "subitem:", "name:VantoListBoxItem", "string0: A",
            "endsubitem:", "end:"}));
    EXPECT_TRUE(half(list).hasCaption());
    EXPECT_EQ(display->serialise(), "");
    EXPECT_TRUE(glassLine(0).starts_with("Speaker"));
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenField("string0"), " B");
    EXPECT_TRUE(glassLine(1).starts_with("B"));
    list.setTitle(static_cast<TranslationInfo*>(nullptr));
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "subitem:", "name:VantoListBoxItem", "string0: B",
            "endsubitem:", "end:"}));
    EXPECT_FALSE(half(list).hasCaption());
}

TEST_F(ListScreenTest, AListStaysOnTheGlassUntilItsLastRowIsRemoved)
{
    List list(0);
    fill(list, "AB");
    show(list);
    for (const char* left : {"B", ""}) {
        ListItem* first = list.getItems()[0];
        list.remove(first);
        delete first;
        EXPECT_EQ(glassLine(0).substr(0, 1), *left ? left : " ");
    }
}

TEST_F(ListScreenTest, ChangesThatCanBeSeenAreTold)
{
    List list(0);
    fill(list, "AB");
    show(list);
    const struct {
        const char* name;
        int notices;
        std::function<void()> change;
    } changesOf[] = {
        {"append", 1, [&] { list.append("C"); }},
        {"insertAt", 1, [&] { list.insertAt(new ListItem("D", true), 0); }},
        {"removeAt", 1, [&] { delete list.removeAt(0); }},
        {"setSelected", 1, [&] { list.setSelected(list.getItems()[1]); }},
        {"setSelectedIndex", 0, [&] { list.setSelectedIndex(0); }},
        {"setTitle", 1, [&] { list.setTitle("T"); }},
        {"clear", 1, [&] { list.clear(); }},
        {"hide", 0, [&] { list.hide(); }},
        {"Down", 0, [&] { press(UGlobal::KeyDown); }},
    };
    for (const auto& change : changesOf) {
        const int before = changes.count;
        change.change();
        EXPECT_EQ(changes.count - before, change.notices) << change.name;
    }
}

TEST_F(ListScreenTest, WhatTheUserDoesReachesTheListeners)
{
    List list(1);
    fill(list, "AB");
    RecordingListener listener;
    RecordingListener gone;
    list.addCommandListener(&listener);
    list.addCommandListener(&listener);
    list.addCommandListener(&gone);
    list.removeCommandListener(&gone);
    show(list);
    press(UGlobal::KeyDown);
    EXPECT_EQ(list.getSelectedIndex(), 1);
    for (const int key : {UGlobal::KeyOk, UGlobal::KeyLeft, UGlobal::KeyRight})
        press(key);
    EXPECT_EQ(listener.commands(3),
        (std::vector<Command*>{List::SELECT_COMMAND(), List::BACK_COMMAND(), List::RIGHT_COMMAND()}));
    EXPECT_EQ(listener.waitFor(3)[0].second, &list);
    list.hide();
    press(UGlobal::KeyOk);
    list.clearCommandListeners();
    show(list);
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.count(), 3u);
    EXPECT_EQ(gone.count(), 0u);
}

TEST_F(ListScreenTest, ANewLocaleReadsTitleAndRowsAgain)
{
    TestTranslator translator;
    display->setTranslator(&translator);
    List list(0);
    list.append(new TranslationInfo("<", "row", ">", &translator));
    auto* title = new TranslationInfo("", "title", "!", &translator);
    list.setTitle(title);
    list.setTitle(title);
    show(list);
    EXPECT_EQ(box(list).backText().toUTF8(), "Back?");
    translator.prefix = "de:";
    display->localeChanged("de");
    EXPECT_EQ(screenField("caption"), "de:title!");
    EXPECT_EQ(screenField("string0"), " <de:row>");
    EXPECT_EQ(box(list).backText().toUTF8(), "de:Back?");
    EXPECT_EQ(VantoListBoxMEG::deleteText().toUTF8(), "de:Speller.menu.Delete?");
    list.setTitle("literal");
    translator.prefix = "fr:";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("caption"), "literal");
    EXPECT_EQ(screenField("string0"), " <fr:row>");
    display->setTranslator(nullptr);
}

TEST_F(ListScreenTest, AListOfCallsHasItsPlaceAndHearsTheDuration)
{
    List list(0);
    VantoListBoxWithTitleMEG& widget = *half(list).getListWidget();
    show(list);
    struct CallRow : ListItemPrivateIfc {
        void localeChanged(std::string) override { }
        void releaseOwnership() override { }
        VantoListBoxItemMEG* getVantoListItem() override { return row; }
        TreeItemMEG* row = new TreeItemMEG(BranchMEG::CallActive, UString(std::string("Bob")), false, true);
    } call;
    half(list).append(&call);
    EXPECT_EQ(widget.getRect(), URect(3, 0, 157, 13));
    EXPECT_EQ(box(list).getRect(), URect(3, 0, 157, 13));
    const int before = changes.count;
    advance(1000);
    EXPECT_EQ(changes.count, before + 1);
    EXPECT_EQ(screenField("string0"), "Bob  0:01");
}

TEST_F(ListScreenTest, ASubclassesOwnHideIsNotCalledWhenTheFocusGoes)
{
    struct OwnHide : ListBoxPrivate {
        using ListBoxPrivate::ListBoxPrivate;
        void hide() override { ADD_FAILURE(); }
    } box(nullptr, new VantoListBoxWithTitleMEG);
    box.show();
    EXPECT_TRUE(box.getListWidget()->list()->isEnabled());
    box.lostFocus();
    EXPECT_FALSE(box.getListWidget()->list()->isEnabled());
}

// Dialer and stored settings

TEST_F(ListScreenTest, ADialerGetsEveryKey)
{
    List list(0);
    fill(list, "AB");
    auto dialer = std::make_unique<TestDialer>();
    RecordingListener listener;
    list.addCommandListener(&listener);
    show(list);
    list.addDialer(dialer.get());
    half(list).dismissDialler();
    EXPECT_EQ(dialer->log.lostFocus, 0) << "no key yet";
    press('5');
    press(UGlobal::KeyDown);
    EXPECT_EQ(dialer->log.keys, "53+53-4+4-");
    EXPECT_EQ(list.getSelectedIndex(), 0) << "the list's own keys rest";
    half(list).dismissDialler();
    half(list).dismissDialler();
    EXPECT_EQ(dialer->log.lostFocus, 1);
    press(UGlobal::KeyOk);
    TestDialer second;
    list.addDialer(&second);
    EXPECT_EQ(dialer->log.lostFocus, 2) << "another dialer dismisses the first";
    EXPECT_EQ(list.getDialer(), &second);
    list.addDialer(dialer.get());
    dialer.reset();
    EXPECT_EQ(list.getDialer(), nullptr);
    press(UGlobal::KeyDown);
    EXPECT_EQ(list.getSelectedIndex(), 1) << "the list has its keys back";
    list.addDialer(&second);
    list.addDialer(nullptr);
    press(UGlobal::KeyUp);
    EXPECT_EQ(list.getSelectedIndex(), 0);
    EXPECT_EQ(listener.count(), 0u);
}

TEST_F(ListScreenTest, ADialerAtADeadOnesAddressIsNotTheLists)
{
    List list(List::Plain);
    alignas(TestDialer) char place[sizeof(TestDialer)];
    auto* dialer = new (place) TestDialer;
    list.addDialer(dialer);
    EXPECT_EQ(list.getDialer(), dialer);
    dialer->~TestDialer();
    dialer = new (place) TestDialer;
    EXPECT_EQ(list.getDialer(), nullptr);
    dialer->~TestDialer();
}

#include "ListFixture.h"
#include "RecordingListener.h"

#include <DisplayAPI/ListItemPrivateIfc.h>
#include <DisplayAPI/PopupDialer.h>
#include <DisplayAPI/PopupDialerPrivateIfc.h>

#include <TreeItemMEG.h>
#include <UEvent.h>

#include <memory>
#include <string>

using namespace DisplayAPI;

namespace {

/// What a dialer hands on: its keys.
struct KeyNotes : UWidget {
    bool keyEvent(UKeyEvent* key) override
    {
        keys += std::to_string(key->key()) + (key->state() == UGlobal::KeyPressed ? "+" : "-");
        return false;
    }
    std::string keys;
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

TEST_F(ListScreenTest, ADialerGetsEveryKeyOfItsList)
{
    List list(0);
    fill(list, "AB");
    RecordingListener listener;
    list.addCommandListener(&listener);
    show(list);
    auto dialer = std::make_unique<PopupDialer>(true, 3);
    KeyNotes behind;
    dynamic_cast<PopupDialerPrivateIfc&>(*dialer->getPrivateImpl()).setParentIdleDisplay(&behind);
    list.addDialer(dialer.get());
    for (const int key : std::initializer_list<int>{'5', UGlobal::KeyDown, UGlobal::KeyOk})
        press(key);
    EXPECT_EQ(behind.keys, "53+53-4+4-5+5-");
    EXPECT_EQ(list.getSelectedIndex(), 0) << "the list's own keys rest";
    half(list).dismissDialler();
    EXPECT_EQ(dialer->getLineEditText(), "") << "a dialer without an idle screen has no use for them";
    PopupDialer second(true, 3);
    list.addDialer(&second);
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
    alignas(PopupDialer) char place[sizeof(PopupDialer)];
    auto* dialer = new (place) PopupDialer(true, 3);
    list.addDialer(dialer);
    EXPECT_EQ(list.getDialer(), dialer);
    dialer->~PopupDialer();
    dialer = new (place) PopupDialer(true, 3);
    EXPECT_EQ(list.getDialer(), nullptr);
    dialer->~PopupDialer();
}

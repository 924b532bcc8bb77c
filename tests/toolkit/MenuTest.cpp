#include "ContextMenuMEG.h"
#include "EventTypes.h"
#include "GlassTest.h"
#include "PopupProgressActualMEG.h"
#include "TabScreenMEG.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoListBoxWithTitleMEG.h"

#include <climits>
#include <memory>

namespace {

class MenuTest : public GlassTest {
protected:
    std::unique_ptr<ContextMenuMEG> menu(const std::string& backText = "Back")
    {
        auto menu = std::make_unique<ContextMenuMEG>(&root, true, 1, backText);
        menu->setListener(&recorder);
        return menu;
    }

    static std::vector<std::string> rows(const ContextMenuMEG& menu)
    {
        std::vector<std::string> texts;
        for (int index = 0; index < menu.listBox->count(); ++index)
            texts.push_back(menu.listBox->item(index)->getText().toUTF8());
        return texts;
    }

    using Rows = std::vector<std::string>;

    Recorder recorder;
};

}

// The Back row

TEST_F(MenuTest, TheBackRowStandsLastWhateverComesAndGoes)
{
    const auto menu = this->menu();
    VantoListBoxMEG& list = *menu->listBox;
    EXPECT_EQ(rows(*menu), Rows{});
    menu->addCommand("Call", 2, false, false, 0);
    list.addItem(new VantoListBoxItemMEG(text("Delete"), 3));
    EXPECT_EQ(rows(*menu), (Rows{"Call", "Delete", "Back"}));

    list.setCurrentIndex(2);
    menu->addCommand("Edit", 4, false, false, 0);
    menu->setItemText(3, "Other", false);
    EXPECT_EQ(rows(*menu), (Rows{"Call", "Delete", "Edit", "Back"}));
    EXPECT_EQ(list.currentItem(), menu->backRow());

    // Without anything to lead back from it goes; with the text taken away, too.
    while (list.count() > 1)
        delete list.item(0);
    EXPECT_EQ(rows(*menu), Rows{});
    menu->addCommand("Call", 2, false, false, 0);
    list.translateBack(UString());
    EXPECT_EQ(rows(*menu), Rows{"Call"});
    list.translateBack(text("Zurück"));
    delete menu->backRow();
    list.clear();
    EXPECT_EQ(menu->backRow(), nullptr);
}

// Focus and painting

TEST_F(MenuTest, AMenuLeavesTheFirstLineToTheScreen)
{
    const auto menu = this->menu();
    menu->addCommand("Take headset?", 2, false, false, 90);
    menu->setMuteStatus(true);
    menu->addCommand("Hold?", 3, false, false, 0);
    menu->slideIn();
    EXPECT_EQ(line(0), whole("upper"));
    EXPECT_EQ(line(1), "□□Take headset?         □□v");
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(1), "Hold?                   □□|");
    menu->setHeight(2);
    EXPECT_EQ(menu->getStartLinePosition(), 1);
    EXPECT_EQ(line(0), "Hold?                   □□ ");
    EXPECT_EQ(line(1), "Back                      ^");
    menu->slideOut();
    EXPECT_EQ(line(1), whole("lower"));
}

TEST_F(MenuTest, AListenerMayDeleteTheMenuOrTheRowInsideAnyEvent)
{
    for (const int key : {UGlobal::KeyDown, UGlobal::KeyOk, UGlobal::KeyLeft, UGlobal::KeyRight}) {
        for (const bool isMenu : {true, false}) {
            auto menu = this->menu();
            menu->addCommand("Call", 2, false, false, 0);
            menu->addCommand("Edit", 3, false, false, 0);
            menu->slideIn();
            recorder.onEvent = [&](UEvent&) {
                if (isMenu)
                    menu.reset();
                else
                    delete menu->listBox->currentItem();
            };
            press(key);
            EXPECT_EQ(recorder.takeTypes().size(), 1U);
            line(0);
        }
    }
}

// Tabs

TEST_F(MenuTest, TheTitleOfATabStandsAboveEveryContent)
{
    auto tabs = std::make_unique<TabScreenMEG>();
    root.addWidget(tabs.get());
    tabs->setTitle(text("Missed calls"));
    auto list = std::make_unique<VantoListBoxWithTitleMEG>();
    list->setTitle(text("Calls"));
    list->list()->addItem(new VantoListBoxItemMEG(text("Bob")));
    auto screen = std::make_unique<PlainScreen>();
    for (UWidget* content : {static_cast<UWidget*>(list.get()), static_cast<UWidget*>(screen.get())}) {
        tabs->setCurrent(content);
        EXPECT_EQ(line(0), whole("Missed calls"));
        EXPECT_EQ(line(1), whole(content == screen.get() ? "lower" : "Bob"));
        EXPECT_EQ(manager.focusWidget(), content->focusTarget());
    }
    EXPECT_EQ(list->parentWidget(), nullptr);

    tabs->setTitle(UString());
    tabs->setCurrent(list.get());
    EXPECT_EQ(line(0), whole("Calls"));
    // A content that dies leaves, and a widget around the tabs can't come in.
    list.reset();
    EXPECT_EQ(tabs->current(), nullptr);
    tabs->setCurrent(&root);
    EXPECT_EQ(tabs->current(), nullptr);
    EXPECT_EQ(manager.focusWidget(), below);
}

// Odd input

TEST_F(MenuTest, OddTextsAndNumbersStayInTheirPlace)
{
    const std::string million(1 << 20, 'x');
    const std::vector<std::string> texts = {million, std::string("a\0b", 3), "\xF0\x9F\x98\x80 \xED\xA0\x80",
        "e\xCC\x81" + std::string(1000, '\xCC'), "\xE5\xAD\x97\xE5\xAD\x97", "\n\n"};
    for (const std::string& odd : texts) {
        auto menu = std::make_unique<ContextMenuMEG>(&root, true, 1, odd);
        menu->addCommand(odd, 2, true, true, 0xFFFF);
        menu->addCommand("Call", 3, false, false, 0);
        for (const int index : {-1, 1, 2, 99})
            menu->setItemText(index, odd, true);
        menu->setMuteStatus(true);
        for (const int height : {-1, 0, 1}) {
            menu->setHeight(height);
            menu->slideIn();
            EXPECT_EQ(line(0), whole("upper"));
        }
        menu.reset();

        PopupProgressActualMEG popup(PopupProgressActualMEG::ProgressType{99});
        popup.setParent(&root);
        popup.setText(text(odd));
        popup.setStatusText1(text(odd));
        popup.setStatusText2(text(odd));
        for (const int percent : {INT_MIN, 50, INT_MAX})
            popup.setProgress(percent);
        popup.popupAsNotification();
        EXPECT_EQ(line(1).find("lower"), std::string::npos);

        auto* tabs = new TabScreenMEG;
        root.addWidget(tabs);
        tabs->setCurrent(new PlainScreen);
        tabs->setTitle(text(odd));
        popup.dismiss();
        EXPECT_EQ(line(1), whole("lower"));
        delete tabs;
    }
}

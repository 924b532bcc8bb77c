#include "GlassTest.h"

#include "SearchableListMEG.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoTextEditMEG.h"

namespace {

class SearchableListTest : public GlassTest {
protected:
    SearchableListMEG* newList()
    {
        auto* list = new SearchableListMEG;
        root.addWidget(list);
        list->setListener(&recorder);
        list->setHintText(text("Enter name"));
        for (const char* name : {"Anna", "Bob", "Carol"})
            list->list()->addItem(new VantoListBoxItemMEG(text(name)));
        return list;
    }

    Recorder recorder;
};

}

TEST_F(SearchableListTest, KeysOpenFillEmptyAndCloseTheField)
{
    SearchableListMEG* list = newList();
    list->setSearchText("Bo");
    EXPECT_FALSE(list->inSearchMode());
    list->setSearchText("");
    EXPECT_EQ(line(0).substr(0, 4), "Anna") << "without a title both lines have rows";
    EXPECT_FALSE(press('#')) << "no character";

    press('2');
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::PopupRowMoved, EventType::SearchTextChanged}));
    EXPECT_EQ(line(0), "Find: A_" + std::string(16, ' ') + "3/3");
    press('2');
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::SearchTextChanged}));
    advance(VantoTextEditMEG::TapTime);
    list->setTitle(text("Directory"));
    list->setCountIndicator(99);
    list->setSearchCountIndicator(1);
    EXPECT_EQ(list->getSearchFieldText().toUTF8(), "caption:Directory\nstring0:B\nstring1:1/99\n");
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk);
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::RowMoved, EventType::RowChosen}));
    EXPECT_EQ(line(1).substr(0, 4), "Bob ");

    press(UGlobal::KeyLeft);
    EXPECT_EQ(line(1), whole("Enter name"));
    press(UGlobal::KeyLeft);
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::SearchTextChanged, EventType::PopupRowMoved}));
    EXPECT_EQ(line(0), "Directory" + std::string(14, ' ') + "2/99");
    press(UGlobal::KeyLeft);
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::LeftPressed}));
}

TEST_F(SearchableListTest, AListenerMayDeleteTheListInsideAnyOfItsEvents)
{
    const struct {
        const char* name;
        int type;
        bool isOpen;
        int key;
    } cases[] = {
        {"opening", EventType::PopupRowMoved, false, '2'},
        {"typing", EventType::SearchTextChanged, false, '2'},
        {"closing", EventType::PopupRowMoved, true, UGlobal::KeyLeft},
        {"choosing", EventType::RowChosen, true, UGlobal::KeyOk},
        {"left", EventType::LeftPressed, false, UGlobal::KeyLeft},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        UPointer<SearchableListMEG> list = newList();
        if (test.isOpen)
            list->startSearching();
        recorder.onEvent = [&](UEvent& event) {
            if (event.type == test.type)
                delete list.get();
        };
        press(test.key);
        EXPECT_FALSE(list);
        recorder.onEvent = nullptr;
    }
    advance(5000);
}

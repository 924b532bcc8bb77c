#include "GlassTest.h"

#include "PopupDialerMEG.h"
#include "SpellerMEG.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoTextEditMEG.h"

#include <memory>

namespace {

/// An application's side of a dialer, which hands every key back as the idle screen does.
class Agent : public Recorder {
public:
    bool keyEvent(UKeyEvent* key) override
    {
        ++keys;
        if (!dialer)
            return false;
        dialer->isMyKey(true);
        return dialer->keyEvent(key);
    }

    PopupDialerMEG* dialer = nullptr;
    int keys = 0;
};

class TextEntryTest : public GlassTest {
protected:
    PopupDialerMEG* newDialer()
    {
        auto* dialer = new PopupDialerMEG(&agent, false);
        root.addWidget(dialer);
        dialer->setLine1PrefixText(text("Dial"));
        dialer->listBox->addItem(new VantoListBoxItemMEG(text("Call?"), 1));
        return dialer;
    }
    SpellerMEG* newSpeller()
    {
        auto* speller = new SpellerMEG(&root);
        speller->setListener(&agent);
        return speller;
    }
    void type(const std::string& keys)
    {
        for (const char key : keys)
            press(key);
    }
    /// Goes to a row of the speller's menu and chooses it.
    void choose(const SpellerMEG& speller, SpellerMEG::Row row)
    {
        for (int step = 0; step < 12 && speller.listBox()->currentItem()->getHandle() != row; ++step)
            press(UGlobal::KeyDown);
        press(UGlobal::KeyOk);
    }

    Agent agent;
};

}

TEST_F(TextEntryTest, TheFirstDigitBringsTheDialerUpAndTellsInOrder)
{
    PopupDialerMEG* dialer = newDialer();
    dialer->setText(text("Please dial"));
    dialer->showLabel();
    UKeyEvent first('1', UGlobal::KeyPressed);
    dialer->isMyKey(true);
    EXPECT_TRUE(dialer->keyEvent(&first));
    const Types expected
        = {EventType::PopupUp, EventType::EditLineShown, EventType::SearchTextChanged, EventType::EditTextChanged};
    EXPECT_EQ(agent.takeTypes(), expected);

    type("2#");
    EXPECT_EQ(agent.takeTypes(), (Types{EventType::EditTextChanged, EventType::EditTextChanged}));
    EXPECT_EQ(line(0), whole("Dial: 12#_"));
    press(UGlobal::KeyUp);
    EXPECT_EQ(line(1).substr(0, 7), "Delete?");
    press('7');
    EXPECT_EQ(line(1).substr(0, 5), "Call?") << "OK must not delete what was typed last";
    press(UGlobal::KeyUp);
    for (int digit = 0; digit < 4; ++digit)
        press(UGlobal::KeyOk);
    EXPECT_EQ(line(1), whole("Call?"));
    agent.takeTypes();

    press(UGlobal::KeyLeft);
    EXPECT_EQ(agent.takeTypes(), (Types{EventType::EmptyLineLeft}));
    std::unique_ptr<PopupDialerMEG> alone(dialer);
    dialer->setParent(nullptr);
    dialer->popupAsNotification();
    agent.takeTypes();
    press(UGlobal::KeyLeft);
    EXPECT_EQ(agent.takeTypes(), (Types{EventType::EmptyLineLeft, EventType::PopupDown})) << "nobody else can";
}

TEST_F(TextEntryTest, CommandsComeBeforeTheDeleteRowAndKeepTheUsersPlace)
{
    PopupDialerMEG* dialer = newDialer();
    VantoListBoxMEG& list = *dialer->listBox;
    list.clear();
    dialer->setEditText(text("0123"));
    list.addItem(new VantoListBoxItemMEG(text("Call?"), 1));
    EXPECT_EQ(list.currentIndex(), 0) << "OK must not delete what nobody chose to delete";
    list.setCurrentIndex(1);
    list.addItem(new VantoListBoxItemMEG(text("Redial?"), 2));
    EXPECT_EQ(list.currentItem()->getItemType(), VantoListBoxItemMEG::DeleteRow);
    EXPECT_EQ(list.currentIndex(), 2);
    dialer->setEditText(UString());
    EXPECT_EQ(list.count(), 2);
}

TEST_F(TextEntryTest, KeysThatTheDialerHasNoUseForGoToTheAgentOnce)
{
    PopupDialerMEG* dialer = newDialer();
    dialer->popupAsNotification();
    EXPECT_FALSE(press(UGlobal::KeyRight));
    EXPECT_EQ(agent.keys, 1);

    dialer->setKeyHandler(true);
    agent.dialer = dialer;
    EXPECT_TRUE(press('5'));
    EXPECT_TRUE(press(UGlobal::KeyRight));
    EXPECT_EQ(agent.keys, 3);
    EXPECT_EQ(dialer->getEditText().toUTF8(), "5");
    agent.dialer = nullptr;

    dialer->setNumberInput(false);
    dialer->setKeyHandler(false);
    EXPECT_FALSE(press('#')) << "it is for changing the mode";
    EXPECT_TRUE(press('2'));
    agent.takeTypes();
    advance(VantoTextEditMEG::TapTime);
    EXPECT_EQ(agent.takeTypes(), (Types{EventType::RowMoved}));
}

TEST_F(TextEntryTest, AListenerMayDeleteTheEntryInsideAnyOfItsEvents)
{
    struct Case {
        const char* name;
        int type;
        bool isSpeller;
        std::function<void()> action;
    };
    SpellerMEG* speller = nullptr;
    PopupDialerMEG* dialer = nullptr;
    const std::vector<Case> cases = {
        {"coming up", EventType::PopupUp, false,
            [&] {
                dialer->dismiss();
                UKeyEvent key('1', UGlobal::KeyPressed);
                dialer->keyEvent(&key);
            }},
        {"first digit", EventType::SearchTextChanged, false, [&] { type("1"); }},
        {"edit line", EventType::EditLineShown, false, [&] { dialer->showLabel(), type("1"); }},
        {"digit", EventType::EditTextChanged, false, [&] { type("1"); }},
        {"left", EventType::EditTextChanged, false, [&] { dialer->setEditText(text("1")), press(UGlobal::KeyLeft); }},
        {"empty line", EventType::EmptyLineLeft, false, [&] { press(UGlobal::KeyLeft); }},
        {"row", EventType::RowChosen, false, [&] { press(UGlobal::KeyOk); }},
        {"delete row", EventType::EditTextChanged, false,
            [&] { dialer->setEditText(text("1")), press(UGlobal::KeyUp), press(UGlobal::KeyOk); }},
        {"letter stands", EventType::RowMoved, false, [&] { dialer->setNumberInput(false), type("2"), advance(1000); }},
        {"line 2 gives way", EventType::RowMoved, false,
            [&] { dialer->showLabel(), dialer->setLine2Text(text("two")), press(UGlobal::KeyDown); }},
        {"letter", EventType::DisplayModeChanged, true, [&] { type("2"); }},
        {"mode", EventType::DisplayModeChanged, true, [&] { type("#"); }},
        {"OK", EventType::SpellerConfirmed, true, [&] { press(UGlobal::KeyOk); }},
        {"cancel", EventType::LeftPressed, true, [&] { press(UGlobal::KeyUp), press(UGlobal::KeyOk); }},
        {"copy", EventType::SpellerCopied, true, [&] { choose(*speller, SpellerMEG::Copy); }},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.name);
        UPointer<UWidget> entry = test.isSpeller ? static_cast<UWidget*>(speller = newSpeller()) : dialer = newDialer();
        if (!test.isSpeller)
            dialer->popupAsNotification();
        agent.onEvent = [&](UEvent& event) {
            if (event.type == test.type)
                delete entry.get();
        };
        test.action();
        EXPECT_FALSE(entry);
        agent.onEvent = nullptr;
        delete entry.get();
    }
    advance(5000);
    EXPECT_EQ(line(0), whole("upper"));
}

TEST_F(TextEntryTest, ASpellersMenuEditsCopiesAndPastesWithoutShowingASecret)
{
    SpellerMEG* speller = newSpeller();
    speller->setText(text("Anna"));
    choose(*speller, SpellerMEG::CursorLeft);
    choose(*speller, SpellerMEG::Delete);
    EXPECT_EQ(speller->getText().toUTF8(), "Ana");
    choose(*speller, SpellerMEG::Copy);
    choose(*speller, SpellerMEG::Paste);
    EXPECT_EQ(speller->getText().toUTF8(), "AnAnaa");
    choose(*speller, SpellerMEG::Mode);
    type("2");
    EXPECT_EQ(speller->getText().toUTF8(), "AnAnaAa");
    EXPECT_EQ(line(1).substr(0, 13), "[A] B  C  2  ");
    advance(VantoTextEditMEG::TapTime);
    EXPECT_EQ(line(1).substr(0, 4), "OK? ") << "a new letter brings the first row back";
    agent.takeTypes();
    press(UGlobal::KeyOk);
    EXPECT_EQ(agent.takeTypes(), (Types{EventType::SpellerConfirmed}));

    speller->getEditBox()->setEchoMode(VantoTextEditMEG::EchoAsterisks);
    speller->setText(text("Anna"));
    EXPECT_EQ(line(0).substr(0, 5), "****_");
    EXPECT_EQ(speller->listBox()->getItemByHandle(SpellerMEG::Copy), nullptr);

    speller->getEditBox()->setNumberInput(true);
    speller->setCallRows(true);
    speller->setText(text("0049"));
    speller->setClipboard(text("(0)89 P12#K"));
    choose(*speller, SpellerMEG::Pause);
    choose(*speller, SpellerMEG::Paste);
    EXPECT_EQ(speller->getText().toUTF8(), "0049P089P12#K");
    speller->getEditBox()->setNumberInput(false);
    speller->setText(text("Anna"));

    // Texts of any size and kind go in and out; what is shown keeps to its place.
    std::string huge(1 << 20, 'x');
    huge.replace(500000, 9, std::string("\0\xF0\x9D\x84\x9E\n\xED\xA0\x80", 9));
    speller->setClipboard(text(huge));
    choose(*speller, SpellerMEG::Paste);
    EXPECT_EQ(speller->getEditBox()->cursorPosition(), TextCells::count(text(huge)) + 4);
    press(UGlobal::KeyLeft);
    EXPECT_EQ(line(0), "…*********************_ ABC");
}

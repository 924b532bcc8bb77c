#include "GlassTest.h"

#include "PopupCallMEG.h"
#include "PopupNotificationMEG.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"

#include <memory>

namespace {

const std::string Icon = "□□";

class PopupTest : public GlassTest {
protected:
    /// A notification on the glass, with a recorder for a listener.
    PopupNotificationMEG* notification(const std::string& line1, const std::string& line2 = "")
    {
        auto* popup = new PopupNotificationMEG;
        root.addWidget(popup);
        popup->setListener(&recorder);
        popup->setText(text(line1));
        popup->setLine2Text(text(line2));
        return popup;
    }

    template <typename Popup>
    Popup* withRows(const std::vector<std::string>& rows)
    {
        auto* popup = new Popup;
        root.addWidget(popup);
        popup->setListener(&recorder);
        popup->setListScrollable(true);
        popup->setDownArrowDisplayable(true);
        long handle = 0;
        for (const std::string& row : rows)
            popup->listBox->addItem(new VantoListBoxItemMEG(text(row), ++handle, false));
        return popup;
    }

    Recorder recorder;
};

// Up and down

TEST_F(PopupTest, EveryPopupTellsThatItIsUpAndOneDismissalThatItIsDown)
{
    auto* popup = notification("Saved");
    popup->popupAsNotification();
    popup->popupAsCall();
    popup->dismiss();
    popup->dismiss();

    const std::vector<Recorder::Entry> expected = {{EventType::PopupUp, popup, nullptr},
        {EventType::PopupUp, popup, nullptr}, {EventType::PopupDown, popup, nullptr}};
    EXPECT_EQ(recorder.entries, expected);
}

TEST_F(PopupTest, LeavingTheTreeTakesAPopupDownInSilenceAndStopsItsTime)
{
    auto popup = std::unique_ptr<PopupNotificationMEG>(notification("Saved"));
    popup->setTimeout(1000);
    popup->popupAsNotification();
    recorder.takeTypes();

    popup->setParent(nullptr);
    EXPECT_FALSE(popup->isUp());
    advance(5000);
    EXPECT_TRUE(recorder.entries.empty());

    // Moving from one parent to another is not leaving.
    root.addWidget(popup.get());
    popup->popupAsNotification();
    popup->setParent(below);
    EXPECT_TRUE(popup->isUp());
    popup->setParent(nullptr);
}

// Time-outs

TEST_F(PopupTest, TheTimeRunsFromComingUpAndStartsAnewWhenItIsSet)
{
    auto* popup = notification("Saved");
    popup->setTimeout(1000);
    EXPECT_EQ(popup->getTimeout(), 1000);
    advance(2000);
    popup->popupAsNotification();
    advance(900);
    popup->setTimeout(popup->getTimeout());
    advance(900);
    EXPECT_TRUE(popup->isUp());
    popup->popupAsNotification();
    advance(999);
    EXPECT_TRUE(popup->isUp());
    recorder.takeTypes();

    advance(1);
    EXPECT_FALSE(popup->isUp());
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::PopupDown}));
    advance(5000);
    EXPECT_TRUE(recorder.entries.empty());
}

// Ownership

TEST_F(PopupTest, AListenerMayDeleteThePopupInsideAnyOfItsEvents)
{
    struct Case {
        const char* name;
        int type;
        std::function<void(PopupDialogMEG&)> action;
    };
    const std::vector<Case> cases = {
        {"coming up", EventType::PopupUp, [](PopupDialogMEG& popup) { popup.popupAsCall(); }},
        {"dismissal", EventType::PopupDown, [](PopupDialogMEG& popup) { popup.dismiss(); }},
        {"time-out", EventType::PopupDown, [](PopupDialogMEG&) { advance(1000); }},
        {"move", EventType::PopupRowMoved, [this](PopupDialogMEG&) { press(UGlobal::KeyDown); }},
        {"choice", EventType::RowChosen, [this](PopupDialogMEG&) { press(UGlobal::KeyOk); }},
        {"left", EventType::LeftPressed, [this](PopupDialogMEG&) { press(UGlobal::KeyLeft); }},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.name);
        UPointer<PopupDialogMEG> popup = withRows<PopupDialogMEG>({"Yes", "No"});
        popup->setTimeout(1000);
        popup->popupAsNotification();
        recorder.onEvent = [&](UEvent& event) {
            if (event.type == test.type)
                delete popup.get();
        };
        test.action(*popup);
        EXPECT_FALSE(popup);
        recorder.onEvent = nullptr;
        EXPECT_EQ(manager.focusWidget(), below);
        EXPECT_EQ(line(0), whole("upper"));
    }
}

TEST_F(PopupTest, APopupOutlivesItsListenerAndDiesSilentlyWhileItIsUp)
{
    auto* popup = withRows<PopupCallMEG>({"Accept"});
    auto first = std::make_unique<Recorder>();
    popup->setListener(first.get());
    popup->listBox->setListener(first.get());
    popup->setTimeout(1000);
    popup->setStateIconAnimation({45, 43, 44}, 100);
    popup->popupAsCall();
    first.reset();
    press(UGlobal::KeyOk);
    advance(1000);
    EXPECT_FALSE(popup->isUp());

    popup->setListener(&recorder);
    popup->popupAsCall();
    recorder.takeTypes();
    delete popup;
    advance(5000);
    EXPECT_TRUE(recorder.entries.empty());
    EXPECT_EQ(line(0), whole("upper"));
}

TEST_F(PopupTest, ADialogLivesOnWithoutItsListBox)
{
    auto* dialog = withRows<PopupDialogMEG>({"Yes"});
    dialog->setText(text("Delete?"));
    dialog->popupAsNotification();
    delete dialog->listBox;
    EXPECT_EQ(dialog->listBox, nullptr);
    EXPECT_TRUE(press(UGlobal::KeyOk));
    dialog->setDownArrowDisplayable(false);
    EXPECT_EQ(line(0), whole("Delete?"));
    EXPECT_EQ(line(1), whole(""));
}

TEST_F(PopupTest, ADismissalInsideItsOwnEventIsSilent)
{
    auto* popup = notification("Saved");
    popup->popupAsNotification();
    recorder.takeTypes();
    recorder.onEvent = [&](UEvent&) { popup->dismiss(); };
    popup->dismiss();
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::PopupDown}));
}

// Notifications

TEST_F(PopupTest, ANotificationTakesNoKeysUnlessItHasAskedForThem)
{
    auto* popup = notification("Saved");
    popup->setDismissible(true);
    popup->popupAsNotification();
    press(UGlobal::KeyOk);
    EXPECT_EQ(below->keys, 2);
    EXPECT_TRUE(popup->isUp());

    manager.requestFocus(popup);
    press('5');
    EXPECT_FALSE(popup->isUp());
    EXPECT_EQ(below->keys, 2);
}

TEST_F(PopupTest, OneLineLeavesTheUpperLineToTheScreenBelow)
{
    auto* popup = notification("Settings saved");
    popup->setStateIcon(21, 0);
    popup->popupAsNotification();
    EXPECT_EQ(popup->getRect(), URect(0, 15, 161, 30));
    EXPECT_FALSE(popup->isTwoLine());
    EXPECT_EQ(line(0), whole("upper"));
    EXPECT_EQ(line(1), padded(Icon + "Settings saved", 16));
    EXPECT_TRUE(hasIcon(1, 0, 21));
}

TEST_F(PopupTest, TwoLinesTakeTheGlassAndTheSecondStandsUnderTheFirst)
{
    auto* popup = notification("Update failed", "Try again later");
    popup->setStateIcon(16, 0);
    popup->popupAsNotification();
    EXPECT_EQ(popup->getRect(), URect(0, 0, 161, 30));
    EXPECT_EQ(popup->countLines(), 2);
    EXPECT_EQ(line(0), padded(Icon + "Update failed", 15));
    EXPECT_EQ(line(1), whole("  Try again later"));

    popup->setLine2Text(text(""));
    EXPECT_EQ(popup->getRect(), URect(0, 15, 161, 30));
    EXPECT_EQ(line(0), whole("upper"));
}

TEST_F(PopupTest, TheNameGivesWayToTheNumber)
{
    auto* popup = notification("");
    popup->setLine1TextNN(text("Bartholomew Featherstone"), text("4712"));
    popup->setLine2TextNN(text("Carol"), text("4713"));
    popup->setLine1Icon1(8);
    popup->setLine2Icon1(55);
    popup->popupAsNotification();
    EXPECT_EQ(popup->getText().toUTF8(), "Bartholomew Featherstone 4712");
    EXPECT_EQ(line(0), padded(Icon + "Bartholomew Feathers 4712", 27));
    EXPECT_EQ(line(1), padded(Icon + "Carol 4713", 12));
    EXPECT_TRUE(hasIcon(0, 0, 8));
    EXPECT_TRUE(hasIcon(1, 0, 55));

    // One of the two alone stands without a blank; a plain text forgets the number.
    popup->setLine2TextNN(text(""), text("4713"));
    EXPECT_EQ(popup->getLine2Text().toUTF8(), "4713");
    popup->setText(text("A text that is longer than the line"));
    EXPECT_EQ(line(0), padded(Icon + "A text that is longer tha", 27));
}

TEST_F(PopupTest, PrefixesStandInFrontWithAColon)
{
    auto* popup = notification("Bob", "Sales");
    popup->setLine1PrefixText(text("Call"));
    popup->setLine1PrePrefixText(text("Ringing"));
    popup->setLine2PrefixText(text("For"));
    popup->setLine1Icon1(14);
    popup->setLine1Icon2(17);
    popup->popupAsNotification();
    EXPECT_EQ(line(0), padded(Icon + Icon + "Ringing: Call: Bob", 22));
    EXPECT_TRUE(hasIcon(0, 2, 17));
    EXPECT_EQ(line(1), whole("    For: Sales"));
}

TEST_F(PopupTest, TheSecondAndTheThirdLineTakeTurns)
{
    auto* popup = notification("Fetching", "second");
    popup->setLine3Text(text("third"));
    popup->popupAsNotification();
    EXPECT_EQ(line(1), whole("second"));
    advance(3000);
    EXPECT_EQ(line(1), whole("third"));
    advance(3000);
    EXPECT_EQ(line(1), whole("second"));
    advance(3000);
    popup->setLine3Text(text(""));
    EXPECT_EQ(line(1), whole("second"));
    popup->setLine3Text(text("third"));
    popup->setLine2Text(text(""));
    EXPECT_EQ(line(1), whole("third"));
    EXPECT_EQ(popup->getLine3Text().toUTF8(), "third");
}

TEST_F(PopupTest, AnAnimationRunsWhileThePopupIsUp)
{
    auto* popup = notification("Connecting");
    popup->setStateIconAnimation({45, 43, 44}, 1000);
    popup->popupAsCall();
    for (int icon : {45, 43, 44, 45, 43}) {
        EXPECT_TRUE(hasIcon(1, 0, static_cast<std::uint16_t>(icon))) << icon;
        advance(1000);
    }
    popup->dismiss();
    popup->popupAsCall();
    EXPECT_TRUE(hasIcon(1, 0, 45));

    popup->setStateIcon(17, 0);
    advance(1000);
    EXPECT_TRUE(hasIcon(1, 0, 17));
    popup->setStateIconAnimation({}, 1000);
    advance(1000);
    EXPECT_EQ(line(1), whole("Connecting"));
}

// Call popup

TEST_F(PopupTest, TheFirstMoveGivesTheSecondLineToTheRows)
{
    auto* call = withRows<PopupCallMEG>({"Accept?", "Reject?"});
    call->setText(text("Bob 4712"));
    call->setLine1Icon1(50);
    call->setLine2PrefixText(text("For"));
    call->setLine2Text(text("Sales"));
    call->setLine2Icon1(55);
    call->popupAsCall();
    EXPECT_EQ(line(0), padded(Icon + "Bob 4712", 10));
    EXPECT_EQ(line(1), Icon + "For: Sales              v");

    recorder.takeTypes();
    recorder.onEvent = [&](UEvent& event) {
        if (event.type == EventType::PopupRowMoved) {
            call->setLine2Text(text(""));
            call->setLine2PrefixText(text(""));
        }
    };
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(1), "Accept?                   v");
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(1), "Reject?                   ^");
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::PopupRowMoved, EventType::RowMoved}));
}

TEST_F(PopupTest, ACallPopupKeepsTheKeysFromTheScreenBelow)
{
    auto* call = withRows<PopupCallMEG>({"Accept?"});
    call->listBox->setRightArrowEqualsOK(true);
    call->popupAsCall();
    recorder.takeTypes();
    for (int key : {int(UGlobal::KeyRight), int(UGlobal::KeyLeft), int('5'), int(UGlobal::KeyClear)})
        EXPECT_TRUE(press(key));
    EXPECT_EQ(recorder.takeTypes(), (Types{EventType::RowChosen, EventType::LeftPressed}));
    EXPECT_EQ(below->keys, 0);
}

}

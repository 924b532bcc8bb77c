#include "ThreadedPhoneTest.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>

#include <Disturb.h>
#include <Semaphore.h>
#include <UApplication.h>

using namespace DisplayAPI;

namespace {

/// The application of the story: a row that is chosen leads to a question, and "Yes" takes the row away. All of it
/// happens on worker threads.
class Eraser : public CommandListener {
public:
    Eraser(Display& display, List& list)
        : mDisplay(display)
        , mList(list)
    {
        mList.addCommandListener(this);
        mQuestion.addCommand(&yes);
        mQuestion.addCommand(&no);
        mQuestion.addCommandListener(this);
    }

    void commandAction(Command* command, Displayable* displayable) override
    {
        if (displayable == &mList && command == List::SELECT_COMMAND()) {
            mQuestion.setText("Delete " + mList.getSelected()->getText() + "?");
            mDisplay.setCurrent(&mQuestion);
            stepDone.release();
        } else if (command == &yes || command == &no) {
            if (command == &yes)
                delete mList.removeAt(mList.getSelectedIndex());
            mQuestion.dismiss();
        } else if (command == PopupConfirm::HIDDEN_COMMAND()) {
            // The last delivery of a question, and the last touch of this object.
            stepDone.release();
        }
    }

    MenuCommand yes{"Yes?", 1};
    MenuCommand no{"No?", 2};
    Wait stepDone;

private:
    Display& mDisplay;
    List& mList;
    PopupConfirm mQuestion{true};
};

class QuestionOverListTest : public ThreadedPhoneTest {
protected:
    /// Presses OK, and waits until the application has done what follows from it.
    void chooseAndWait(Eraser& eraser)
    {
        press(UGlobal::KeyOk);
        eraser.stepDone.wait();
        settle();
    }
    void press(int key)
    {
        UApplication::instance()->postKey(key, UGlobal::KeyPressed);
        UApplication::instance()->postKey(key, UGlobal::KeyReleased);
        settle();
    }
};

}

TEST_F(QuestionOverListTest, ARowIsChosenAskedAboutAndTakenAwayByWorkersWhileKeysComeFromOutside)
{
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        setDisturbanceSeed(seed);
        List list(0);
        list.setTitle("Contacts");
        for (const char* name : {"Anna", "Bob", "Carol"})
            list.append(std::string(name));
        Eraser eraser(*display, list);
        display->setCurrent(&list);

        press(UGlobal::KeyDown);
        EXPECT_EQ(screenField("string0"), " Bob");
        chooseAndWait(eraser);
        EXPECT_EQ(screenText(),
            lines({"object:", "name:VantoListBox", "caption:Contacts", "subitem:", "name:VantoListBoxItem",
                "string0: Bob", "endsubitem:", "end:", "object:", "name:PopupDialog", "icon:Info",
                "caption:Delete Bob? ", "subitem:", "name:VantoListBoxItem", "string0:Yes?", "endsubitem:", "end:"}));

        press(UGlobal::KeyDown);
        chooseAndWait(eraser); // No
        EXPECT_EQ(display->getCurrent(), &list);
        EXPECT_EQ(list.size(), 3);

        chooseAndWait(eraser);
        chooseAndWait(eraser); // Yes
        EXPECT_EQ(list.size(), 2);
        EXPECT_EQ(display->getCurrent(), &list);
        EXPECT_EQ(screenField("caption"), "Contacts");
        EXPECT_NE(screenField("string0"), " Bob");
        display->setCurrent(nullptr);
    }
    setDisturbanceSeed(0);
}

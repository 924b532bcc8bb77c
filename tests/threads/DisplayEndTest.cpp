#include "AnswerWait.h"
#include "Disturbance.h"
#include "FunctionEvent.h"
#include "RecordingListener.h"
#include "TestTranslator.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/PopupConfirm.h>

#include <Log.h>
#include <TranslationInfo.h>
#include <UApplication.h>
#include <ULoop.h>
#include <UWidget.h>
#include <UWindowManager.h>

#include <functional>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <unistd.h>

using namespace DisplayAPI;

namespace {

/// What is written at the level of faults while it lives.
class FaultLog {
public:
    FaultLog()
    {
        LogControl::setLevel("*", 2);
        LogControl::setSink([](const LogControl::Message& message) {
            const std::lock_guard lock(gMutex);
            gTexts.push_back(message.text);
        });
    }
    ~FaultLog()
    {
        LogControl::reset();
        gTexts.clear();
    }
    static std::vector<std::string> texts()
    {
        const std::lock_guard lock(gMutex);
        return gTexts;
    }

    /// Returns when so many lines have come.
    static std::vector<std::string> await(std::size_t count)
    {
        while (texts().size() < count)
            std::this_thread::yield();
        return texts();
    }

private:
    static inline std::mutex gMutex;
    static inline std::vector<std::string> gTexts;
};

class DisplayEndTest : public PhoneTest {
protected:
    void insideLoop(std::function<void()> function)
    {
        ULoop::instance().open();
        UApplication::instance()->postEvent(new FunctionEvent(std::move(function)));
    }
};

}

TEST_F(DisplayEndTest, ExecIsRefusedOnAnotherThreadAndInsideItself)
{
    const FaultLog log;
    std::thread([this] { display->exec(); }).join();
    insideLoop([this] {
        display->exec();
        display->shutdown();
    });
    display->exec();
    EXPECT_EQ(log.texts(),
        (std::vector<std::string>{"Display::exec() is refused: this is not the GUI thread.",
            "Display::exec() is refused: the loop runs already."}));
}

TEST_F(DisplayEndTest, ExecReturnsWhenTheDeliveryThatHasBegunHasEnded)
{
    const pid_t guiThread = gettid();
    Command first("first", Command::Menu);
    Command waiting("waiting", Command::Menu);
    Command late("late", Command::Menu);
    Command next("next", Command::Menu);
    RecordingListener listener;
    listener.reaction = [&](Command*) {
        listener.postCommandAction(&waiting, nullptr);
        display->shutdown();
        // Only one who waits for this delivery sleeps now.
        while (!isAtRest(guiThread))
            std::this_thread::yield();
    };
    listener.postCommandAction(&first, nullptr);
    display->exec();
    EXPECT_EQ(listener.count(), 1u);
    listener.reaction = nullptr;
    listener.postCommandAction(&late, nullptr);

    const Display another("Test", "en", "", "", false, nullptr);
    listener.postCommandAction(&next, nullptr);
    EXPECT_EQ(listener.commands(2), (std::vector<Command*>{&first, &next}));
}

TEST_F(DisplayEndTest, TheNextLoopDeliversAgain)
{
    Command command("command", Command::Menu);
    RecordingListener listener;
    listener.reaction = [this](Command*) { display->shutdown(); };
    for (int round = 0; round < 3; ++round) {
        insideLoop([&] { listener.postCommandAction(&command, nullptr); });
        display->exec();
        EXPECT_EQ(listener.count(), static_cast<std::size_t>(round) + 1);
    }
}

TEST_F(DisplayEndTest, AnExceptionOfTheSubscriberIsLoggedAndComesOutOfExec)
{
    const FaultLog log;
    List list(0);
    display->setCurrent(&list);
    changes.onNextNotice = [] { throw std::runtime_error("no reader"); };
    std::thread application([this] { display->show(); });
    EXPECT_THROW(display->exec(), std::runtime_error);
    application.join();
    EXPECT_EQ(log.texts(),
        (std::vector<std::string>{"The notice of screen \"List\" was left by an exception: no reader.",
            "Request 1 of the display was left by an exception: no reader."}));
}

TEST_F(DisplayEndTest, AnExceptionOfARequestNamesTheHandle)
{
    const FaultLog log;
    PopupConfirm popup(true);
    display->setCurrent(&popup);
    changes.onNextNotice = [] { throw std::runtime_error("no reader"); };
    std::thread application([&popup] { popup.setText("Delete entry?"); });
    EXPECT_THROW(display->exec(), std::runtime_error);
    application.join();
    EXPECT_EQ(log.texts(),
        (std::vector<std::string>{"The notice of screen \"PopupConfirm\" was left by an exception: no reader.",
            "Request 4 of a PopupConfirm was left by an exception: no reader."}));
}

TEST_F(DisplayEndTest, WhoGetsNoAnswerSaysWhatItWaitsForAndGoesOnWaiting)
{
    const FaultLog log;
    const int patience = answerPatience.exchange(1);
    List list(0);
    list.append("row");
    int answer = 0;
    std::thread early([&] { display->setCurrent(&list); });
    log.await(1);
    std::thread late;
    insideLoop([&] {
        late = std::thread([&] {
            answer = list.size();
            display->shutdown();
        });
        log.await(2);
        answerPatience = patience;
    });
    display->exec();
    early.join();
    late.join();
    EXPECT_EQ(log.texts(),
        (std::vector<std::string>{
            "Request 2 of a Display waits for the GUI thread, which runs no loop. Does that thread wait for this one?",
            "Request 20 of a List waits for the GUI thread, whose loop is busy. Does that thread wait for this one?"}));
    EXPECT_EQ(answer, 1);
}

using KeptHalfTest = ThreadedPhoneTest;

TEST_F(KeptHalfTest, HasGoneBeforeALaterDisplayCouldReachIt)
{
    TestTranslator translator;
    auto list = std::make_unique<List>(0);
    auto popup = std::make_unique<PopupConfirm>(true);
    list->setTitle(new TranslationInfo("", "Title", "", &translator));
    popup->setText(new TranslationInfo("", "Question", "", &translator));
    display->setCurrent({list.get(), popup.get()});
    endLoop();
    list.reset(); // neither can be deleted off the GUI thread any more
    popup.reset();
    int asked = 0;
    translator.whenAsked = [&asked](const std::string& key) {
        ++asked;
        return key;
    };
    UWidget* glass = UWindowManager::instance().root();
    EXPECT_NE(glass->firstChild(), nullptr);
    const Display next("Test", "de", "", "", false, nullptr);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(glass->firstChild(), nullptr);
}

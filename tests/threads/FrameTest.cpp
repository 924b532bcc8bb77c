#include "Disturbance.h"
#include "Road.h"
#include "TestScreen.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include <EventPool.h>
#include <Semaphore.h>
#include <UApplication.h>
#include <ULoop.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <new>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <sanitizer/asan_interface.h>
#include <unistd.h>

using namespace DisplayAPI;

namespace {

std::atomic<int> gLivingNotes = 0;

/// What a request carries and somebody must delete.
struct Note {
    explicit Note(int theValue)
        : value(theValue)
    {
        ++gLivingNotes;
    }
    ~Note() { --gLivingNotes; }

    int value;
};

/// A handle as small as one can be: it keeps numbers, in the order in which its requests run.
class Journal : public Widget {
public:
    enum class Request : int { Create, Destroy, Add, Text, Run, Take };
    static constexpr int UnknownRequest = 99;

    explicit Journal(std::atomic<int>* living = nullptr)
        : mLiving(living)
    {
        if (isGuiThread())
            create();
        else
            postEventAsync(makeRequest(this, Request::Create));
    }
    ~Journal() override
    {
        if (isGuiThread())
            destroy();
        else
            postEvent(makeRequest(this, Request::Destroy));
    }

    void add(int number)
    {
        if (!isGuiThread())
            return postEvent(makeRequest(this, Request::Add, number));
        EXPECT_TRUE(mIsCreated);
        numbers.push_back(number);
    }
    void addLater(int number)
    {
        if (!isGuiThread())
            return postEventAsync(makeRequest(this, Request::Add, number));
        add(number);
    }
    std::string text()
    {
        std::string all = "(not run)";
        if (!isGuiThread()) {
            postEvent(makeRequest(this, Request::Text, result(all)));
            return all;
        }
        all.clear();
        for (const int number : numbers)
            all += std::to_string(number) + ' ';
        return all;
    }
    /// Runs a function on the GUI thread, as the handler of this handle.
    void run(const std::function<void()>& function) { postEvent(makeRequest(this, Request::Run, &function)); }

    /// The same with a wait condition of the caller's own.
    void runWithOwnWait(const std::function<void()>& function)
    {
        Wait wait;
        auto* event = new GuiRequestEvent(this, &wait, static_cast<int>(Request::Run));
        event->ptrParam1 = const_cast<std::function<void()>*>(&function);
        postEvent(event);
    }
    void take(Note* note)
    {
        auto* event = makeRequest(this, Request::Take);
        event->ptrParam1 = event->ownUntilRun(note);
        postEventHelper(true, event);
    }
    void barrier() { postEvent(nullptr); }
    void barrierLater() { postEventAsync(nullptr); }
    void direct() { postEventHelper(false, nullptr); }
    void unknown() { postEvent(UnknownRequest); }

    void processGuiRequest(GuiRequestEvent& event) override
    {
        switch (static_cast<Request>(event.getType())) {
        case Request::Create: create(); break;
        case Request::Destroy: destroy(); break;
        case Request::Add: add(event.intParam1); break;
        case Request::Text: *event.stringResult = text(); break;
        case Request::Run: (*static_cast<const std::function<void()>*>(event.ptrParam1))(); break;
        case Request::Take:
            add(static_cast<Note*>(event.ptrParam1)->value);
            delete static_cast<Note*>(event.ptrParam1);
            break;
        }
        signalComplete(event);
    }

    std::vector<int> numbers; // GUI thread only

private:
    void create()
    {
        mIsCreated = true;
        if (mLiving)
            ++*mLiving;
    }
    void destroy()
    {
        EXPECT_TRUE(mIsCreated);
        retire();
        if (mLiving)
            --*mLiving;
    }

    std::atomic<int>* mLiving;
    bool mIsCreated = false;
};

void pass()
{
    ULoop::instance().processEvents();
    std::this_thread::yield();
}

class FrameTest : public ThreadedPhoneTest {
protected:
    /// Two screens that live on the GUI thread, as they must.
    struct Screens {
        explicit Screens(FrameTest& theTest)
            : test(theTest)
        {
            test.onGui([this] {
                ordinary = std::make_unique<TestScreen>("ordinary", log);
                popup = std::make_unique<TestScreen>("popup", log, TestScreen::Kind::Popup);
            });
        }
        ~Screens()
        {
            test.onGui([this] {
                popup.reset();
                ordinary.reset();
            });
        }
        FrameTest& test;
        std::vector<std::string> log;
        std::unique_ptr<TestScreen> ordinary;
        std::unique_ptr<TestScreen> popup;
    };
};

/// A telephone of its own for each round of a test.
class Telephone : public ThreadedPhoneTest {
public:
    void TestBody() override { }
    using ThreadedPhoneTest::display;
    using ThreadedPhoneTest::endLoop;
    using ThreadedPhoneTest::onGui;
};

}

TEST_F(FrameTest, TheRequestsOfEachThreadRunInItsOrder)
{
    underDisturbance([] {
        constexpr int threads = 4;
        constexpr int calls = 6;
        Journal journal;
        runThreads(threads, [&](int thread) {
            for (int i = 0; i < calls; ++i) {
                const int number = thread * calls + i;
                if ((thread + i) % 3 == 0)
                    journal.add(number);
                else
                    journal.addLater(number);
            }
        });
        journal.barrier();
        std::vector<std::vector<int>> byThread(threads);
        for (const int number : journal.numbers)
            byThread[static_cast<std::size_t>(number / calls)].push_back(number % calls);
        for (const auto& numbers : byThread)
            EXPECT_EQ(numbers, (std::vector<int>{0, 1, 2, 3, 4, 5}));
    });
}

TEST_F(FrameTest, TheGuiThreadCallsIntoHandlesWhileOthersWaitOnThem)
{
    underDisturbance([] {
        Journal journals[2];
        runThreads(4, [&](int thread) {
            Journal& mine = journals[thread % 2];
            Journal& other = journals[1 - thread % 2];
            for (int i = 0; i < 3; ++i) {
                mine.run([&] {
                    mine.add(1);
                    other.addLater(2);
                    EXPECT_FALSE(other.text().empty());
                });
            }
        });
        EXPECT_EQ(journals[0].text().size() + journals[1].text().size(), 2U * 2 * 4 * 3);
    });
}

TEST_F(FrameTest, HandlesAreMadeUsedAndDestroyedOnAnyThread)
{
    underDisturbance([] {
        std::atomic<int> living = 0;
        runThreads(4, [&](int thread) {
            for (int i = 0; i < 3; ++i) {
                Journal journal(&living);
                journal.addLater(thread);
                if (i > 0) {
                    EXPECT_EQ(journal.text(), std::to_string(thread) + ' ');
                }
                journal.addLater(thread);
            }
        });
        EXPECT_EQ(living, 0) << "a destructor returned before its request had run";
    });
}

TEST_F(FrameTest, AnAsynchronousCallWaitsBehindASynchronousOneOfAnotherThread)
{
    Journal journal;
    std::atomic<pid_t> task = 0;
    std::thread other;
    journal.run([&] {
        other = std::thread([&] {
            task = gettid();
            journal.addLater(1);
        });
        while (task == 0 || !isAtRest(task))
            std::this_thread::yield();
        // Had it been posted, this nested pass would run it.
        pass();
        EXPECT_EQ(journal.text(), "");
    });
    other.join();
    EXPECT_EQ(journal.text(), "1 ");
}

TEST_F(FrameTest, ACallerWithAWaitOfItsOwnLeavesTheHandleFree)
{
    Journal journal;
    std::thread other;
    journal.runWithOwnWait([&] {
        other = std::thread([&] { journal.addLater(1); });
        while (journal.numbers.empty())
            pass();
    });
    other.join();
    EXPECT_EQ(journal.text(), "1 ");

    underDisturbance([&] {
        runThreads(3, [&](int) {
            int runs = 0;
            journal.runWithOwnWait([&] { ++runs; });
            EXPECT_EQ(runs, 1);
        });
    });
}

TEST_F(FrameTest, ARequestWithoutAMeaningIsABarrier)
{
    Journal journal;
    for (int i = 0; i < 10; ++i)
        journal.addLater(i);
    journal.barrierLater();
    journal.barrier();
    EXPECT_EQ(journal.numbers.size(), 10U);
    journal.addLater(10);
    journal.unknown();
    EXPECT_EQ(journal.numbers.size(), 11U);
    journal.direct();
    onGui([&] { journal.direct(); });
    EXPECT_EQ(journal.numbers.size(), 11U);

    // An event that somebody else made and posts is as good as the handle's own.
    Wait wait;
    GuiRequestEvent* byHand = new GuiRequestEvent(&journal, &wait, static_cast<int>(Journal::Request::Add));
    byHand->intParam1 = 42;
    EXPECT_EQ(byHand->requesterWidget(), &journal);
    UApplication::instance()->postEvent(byHand);
    EXPECT_TRUE(wait.wait());
    EXPECT_EQ(journal.numbers.back(), 42);
    UApplication::instance()->postEvent(new GuiRequestEvent(nullptr, &wait, 1));
    EXPECT_FALSE(wait.wait()) << "without a requester nothing runs";
}

TEST_F(FrameTest, ADeadHandleRunsNothingAndLetsItsCallersGo)
{
    // The memory stays, but nobody may touch it: the thread sanitizer can't know that who sleeps in a call has
    // passed its last use of the handle.
    alignas(Journal) std::byte memory[sizeof(Journal)];
    auto* journal = new (memory) Journal;
    journal->barrier();
    std::vector<std::thread> callers;
    std::array<std::atomic<pid_t>, 5> tasks{};
    const std::function<void()> never = [] { ADD_FAILURE() << "the handle is dead"; };
    onGui([&] {
        Journal& dying = *journal;
        std::thread([&] {
            dying.addLater(1);
            dying.take(new Note(2));
        }).join();
        const std::array<std::function<void()>, 5> calls{[&] { EXPECT_EQ(dying.text(), "(not run)"); },
            [&] { dying.run(never); }, [&] { dying.addLater(3); }, [&] { dying.barrier(); },
            [&] { dying.runWithOwnWait(never); }};
        for (std::size_t i = 0; i < calls.size(); ++i) {
            callers.emplace_back([&tasks, i, call = calls[i]] {
                tasks[i] = gettid();
                call();
            });
            // All but the first wait for the lock of the handle, the last one for its answer or the lock.
            while (tasks[i] == 0 || !isAtRest(tasks[i]))
                std::this_thread::yield();
        }
        EXPECT_EQ(gLivingNotes, 1);
        std::destroy_at(journal);
        ASAN_POISON_MEMORY_REGION(memory, sizeof memory);
    });
    for (std::thread& caller : callers)
        caller.join();
    settle();
    ASAN_UNPOISON_MEMORY_REGION(memory, sizeof memory);
    EXPECT_EQ(gLivingNotes, 0);
}

TEST_F(FrameTest, ACopyIsFreedOnceWhoeverHasIt)
{
    Journal journal;
    journal.take(new Note(1));
    onGui([&] { journal.take(new Note(2)); });
    EXPECT_EQ(journal.text(), "1 2 ");
    EXPECT_EQ(gLivingNotes, 0);
    endLoop();
    journal.take(new Note(3));
    EXPECT_EQ(gLivingNotes, 0) << "a refused request frees what it owns";
}

TEST(FrameEndTest, TheEndOfTheLoopLetsEveryCallerGo)
{
    underDisturbance([] {
        std::atomic<int> ready = 0;
        std::atomic<bool> isOver = false;
        Telephone phone;
        Journal journal;
        const std::array<std::function<void()>, 8> calls{[&] { journal.add(1); }, [&] { journal.addLater(1); },
            [&] { journal.text(); }, [&] { journal.runWithOwnWait([] {}); }, [&] { phone.display->serialise(); },
            [&] { phone.display->serialiseByRect({wholeGlass()}, ""); }, [&] { phone.display->getDisplayedRects(); },
            [&] { Journal shortLived; }};
        std::vector<std::thread> callers;
        for (const auto& call : calls) {
            callers.emplace_back([&] {
                ++ready;
                while (!isOver)
                    call();
                call(); // surely behind the end
            });
        }
        while (ready < static_cast<int>(calls.size()))
            std::this_thread::yield();
        phone.endLoop();
        isOver = true;
        for (std::thread& caller : callers)
            caller.join();
        EXPECT_EQ(journal.text(), "(not run)");
        EXPECT_EQ(phone.display->serialise(), "");
        EXPECT_EQ(phone.display->getCurrent(), nullptr);
        EXPECT_EQ(phone.display->getDisplayedRects(), nullptr);
        EXPECT_EQ(phone.display->paste(), "");
        phone.display->shutdown();
    });
}

TEST_F(FrameTest, EachReaderGetsAWholeText)
{
    Screens screens(*this);
    TestScreen& screen = *screens.ordinary;
    screen.screen().text = std::string(400, 'a');
    display->setCurrent(&screen);
    underDisturbance([&] {
        runThreads(3, [&](int thread) {
            for (int i = 0; i < 3; ++i) {
                if (thread == 0) {
                    onGui([&, i] { screen.screen().text = std::string(400, static_cast<char>('a' + i)); });
                    continue;
                }
                const std::string text
                    = thread == 1 ? display->serialise() : display->serialiseByRect({wholeGlass()}, "");
                std::string letters;
                std::copy_if(text.begin(), text.end(), std::back_inserter(letters),
                    [&](char letter) { return letter >= 'a' && letter <= 'c'; });
                const std::string whole = letters.empty() ? "" : std::string(400, letters[letters.size() / 2]);
                EXPECT_NE(text.find(whole), std::string::npos) << text;
            }
        });
    });
}

TEST_F(FrameTest, TheRectanglesBelongToTheThreadThatAsked)
{
    Screens screens(*this);
    display->setCurrent(screens.ordinary.get());
    const std::vector<Rect>* mine = display->getDisplayedRects();
    ASSERT_EQ(mine->size(), 1U);
    display->setCurrent(screens.popup.get());
    std::thread([&] {
        const std::vector<Rect>* others = display->getDisplayedRects();
        EXPECT_NE(others, mine);
        EXPECT_EQ(others->size(), 2U);
    }).join();
    EXPECT_EQ(mine->size(), 1U);
    EXPECT_EQ(display->getDisplayedRects(), mine);
    EXPECT_EQ(mine->size(), 2U);
}

TEST(EventPoolTest, WhatAThreadTakesAtItsVeryEndIsNobodyElses)
{
    // Under the address sanitizer every block comes from the heap.
    static std::set<void*> taken;
    struct Late {
        ~Late()
        {
            for (int i = 0; i < 4; ++i)
                taken.insert(EventPool::allocate(EventPool::BlockSize));
        }
    };
    std::vector<void*> blocks;
    for (int i = 0; i < 64; ++i)
        blocks.push_back(EventPool::allocate(EventPool::BlockSize));
    for (void* block : blocks)
        EventPool::release(block, EventPool::BlockSize);
    std::thread([] {
        thread_local Late dyingLast;
        static_cast<void>(&dyingLast);
        EventPool::release(EventPool::allocate(EventPool::BlockSize), EventPool::BlockSize);
    }).join();
    std::set<void*> mine;
    for (int i = 0; i < 64; ++i)
        mine.insert(EventPool::allocate(EventPool::BlockSize));
    EXPECT_EQ(mine.size(), 64U);
    EXPECT_EQ(taken.size(), 4U);
    for (void* block : taken) {
        EXPECT_FALSE(mine.contains(block));
        EventPool::release(block, EventPool::BlockSize);
    }
    for (void* block : mine)
        EventPool::release(block, EventPool::BlockSize);
}

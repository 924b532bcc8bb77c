#include "StackFixture.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <new>
#include <thread>

namespace {

class SubscriptionTest : public StackFixture { };

TEST_F(SubscriptionTest, ASubscriberMayDieAsSoonAsUnSubscribeHasReturned)
{
    makeDisplay();
    std::atomic<bool> isDone = false;
    std::thread application([&] {
        for (int i = 0; i < 2000; ++i) {
            Subscriber shortLived;
            shortLived.onNotice = [&shortLived] { ++shortLived.count; };
            display->subscribe(&shortLived);
            display->unSubscribe();
        }
        isDone = true;
    });
    while (!isDone)
        display->displayChanged();
    application.join();
}

TEST_F(SubscriptionTest, ASubscriberThatDiesIsForgotten)
{
    makeDisplay();
    alignas(Subscriber) std::array<std::byte, sizeof(Subscriber)> place;
    auto* first = new (place.data()) Subscriber;
    display->subscribe(first);
    first->Subscriber::~Subscriber();
    display->displayChanged();

    // Nor is another one at its address taken for it.
    auto* second = new (place.data()) Subscriber;
    display->displayChanged();
    EXPECT_EQ(second->takeNotices(), 0);
    display->subscribe(second);
    display->displayChanged();
    EXPECT_EQ(second->takeNotices(), 1);
    display->unSubscribe();
    second->Subscriber::~Subscriber();
}

TEST_F(SubscriptionTest, SubscribingWaitsForTheNoticeThatIsRunning)
{
    makeDisplay();
    Subscriber next;
    std::atomic<bool> isSubscribed = false;
    std::thread application;
    subscriber.onNotice = [&] {
        application = std::thread([&] {
            display->subscribe(&next);
            isSubscribed = true;
        });
        // Inside the notice the lock is this thread's, also for calls that take it again.
        for (int i = 0; i < 1000; ++i) {
            display->serialiseByRect({}, "");
            std::this_thread::yield();
        }
        EXPECT_FALSE(isSubscribed);
    };
    display->displayChanged();
    application.join();
    display->displayChanged();
    EXPECT_EQ(subscriber.takeNotices(), 1);
    EXPECT_EQ(next.takeNotices(), 1);
}

}

#include "Disturbance.h"
#include "RecordingListener.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Timer.h>
#include <DisplayAPI/TimerEvent.h>

using namespace DisplayAPI;

using ThreadedTimerTest = ThreadedPhoneTest;

TEST_F(ThreadedTimerTest, ATimerThatFiresMayGoWithItsListenersAndItsCommand)
{
    struct Ticks : TimerEvent {
        void timerEvent() override { ++count; }
        int count = 0;
    };
    // They outlive every delivery that has begun, as a listener must.
    static RecordingListener listeners[2];
    underDisturbance([] {
        runThreads(2, [](int number) {
            RecordingListener& listener = listeners[number];
            const std::size_t heard = listener.count();
            Ticks ticks;
            Command command("tick", Command::Select);
            Timer timer(0);
            timer.addCommandListener(&listener);
            timer.addEventListener(&ticks);
            timer.start(1);
            timer.addCommand(&command);
            EXPECT_GT(listener.waitFor(heard + 1).size(), heard);
            timer.start(0);
        });
    });
}

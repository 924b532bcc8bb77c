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
    underDisturbance([] {
        runThreads(2, [](int) {
            Ticks ticks;
            RecordingListener listener;
            Command command("tick", Command::Select);
            Timer timer(0);
            timer.addCommandListener(&listener);
            timer.addEventListener(&ticks);
            timer.start(1);
            timer.addCommand(&command);
            EXPECT_FALSE(listener.waitFor(1).empty());
            timer.start(0);
        });
    });
}

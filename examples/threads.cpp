// Every handle may be used from every thread: here a thread of the phonelet counts in a row of a list.

#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>
#include <PhoneSimulator/PhoneSimulator.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

using namespace DisplayAPI;

namespace {

/// A flag that a thread can wait for.
class Ending {
public:
    void set()
    {
        const std::lock_guard lock(mMutex);
        mIsSet = true;
        mChanged.notify_all();
    }

    bool waitFor(std::chrono::milliseconds time)
    {
        std::unique_lock lock(mMutex);
        return mChanged.wait_for(lock, time, [this] { return mIsSet; });
    }

private:
    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mIsSet = false;
};

void count(ListItem& row, Ending& ending)
{
    // setText() returns at once; the GUI thread writes the row when its turn comes.
    for (int seconds = 0; !ending.waitFor(std::chrono::seconds(seconds == 0 ? 0 : 1)); ++seconds)
        row.setText("Waiting for " + std::to_string(seconds) + " s");
}

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).run([](Display& display) {
        List list(0);
        auto* row = new ListItem("", true); // the list owns it from append() on
        list.setTitle("Counter");
        list.append(row);
        display.setCurrent(&list);
        display.show();

        Ending ending;
        std::thread counter([row, &ending] { count(*row, ending); });
        display.exec();
        ending.set();
        counter.join();
    });
}

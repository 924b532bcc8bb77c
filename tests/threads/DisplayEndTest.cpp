#include "PhoneTest.h"

#include <DisplayAPI/Display.h>

#include <Log.h>
#include <UApplication.h>
#include <UEvent.h>

#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace DisplayAPI;

namespace {

/// What is written at the level of faults while it lives.
class FaultLog {
public:
    FaultLog()
    {
        LogControl::setLevel("*", 2);
        LogControl::setSink([](const LogControl::Message& message) { texts().push_back(message.text); });
    }
    ~FaultLog()
    {
        LogControl::reset();
        texts().clear();
    }
    static std::vector<std::string>& texts()
    {
        static std::vector<std::string> all;
        return all;
    }
};

/// A function that runs inside the loop.
class InsideLoop : public UEvent {
public:
    explicit InsideLoop(std::function<void()> function)
        : UEvent(EventType::Key)
        , mFunction(std::move(function))
    {
    }
    void process() override { mFunction(); }

private:
    std::function<void()> mFunction;
};

class DisplayEndTest : public PhoneTest {
protected:
    void insideLoop(std::function<void()> function)
    {
        UApplication::instance()->postEvent(new InsideLoop(std::move(function)));
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

#include "GuiCall.h"

#include <UEvent.h>
#include <ULoop.h>

#include <cstdint>
#include <utility>

namespace Simulator {

namespace {

constexpr std::uint16_t GuiCallType = 0x0100; // below the library's numbers, and nobody's in the toolkit

class GuiCallEvent : public UEvent {
public:
    /// How many passes of the loop to let go by first; the painting lies between two of them.
    GuiCallEvent(std::packaged_task<void()> task, int passes)
        : UEvent(GuiCallType)
        , mTask(std::move(task))
        , mPasses(passes)
    {
    }

    void process() override
    {
        if (mPasses > 0)
            ULoop::instance().post(new GuiCallEvent(std::move(mTask), mPasses - 1));
        else
            mTask();
    }

private:
    std::packaged_task<void()> mTask;
    int mPasses;
};

std::future<void> post(std::function<void()> function, int passes)
{
    std::packaged_task<void()> task(std::move(function));
    std::future<void> result = task.get_future();
    ULoop::instance().post(new GuiCallEvent(std::move(task), passes));
    return result;
}

}

std::future<void> callOnGui(std::function<void()> function)
{
    return post(std::move(function), 0);
}

std::future<void> callOnGuiAfterPainting(std::function<void()> function)
{
    return post(std::move(function), 1);
}

}

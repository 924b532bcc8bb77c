#pragma once

#include <EventTypes.h>
#include <UEvent.h>

#include <functional>
#include <utility>

/// An event that runs a function, or another one when it goes without having run.
class FunctionEvent : public UEvent {
public:
    explicit FunctionEvent(std::function<void()> run, std::function<void()> goneUnrun = nullptr)
        : UEvent(EventType::RowChosen)
        , mRun(std::move(run))
        , mGoneUnrun(std::move(goneUnrun))
    {
    }
    ~FunctionEvent() override
    {
        if (mGoneUnrun)
            mGoneUnrun();
    }
    void process() override
    {
        mRun();
        mGoneUnrun = nullptr;
    }

private:
    std::function<void()> mRun;
    std::function<void()> mGoneUnrun;
};

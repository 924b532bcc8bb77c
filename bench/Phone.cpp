#include "Phone.h"

#include <chrono>
#include <future>
#include <sched.h>

using DisplayAPI::Display;

void setMode(const std::string& mode)
{
    cpu_set_t processors;
    CPU_ZERO(&processors);
    if (mode == "one core") {
        CPU_SET(0, &processors);
    } else {
        for (unsigned int i = 0; i < std::thread::hardware_concurrency(); ++i)
            CPU_SET(i, &processors);
    }
    sched_setaffinity(0, sizeof processors, &processors);
}

double nowInNanoseconds()
{
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

Phone::Phone(Reader reader)
{
    std::promise<void> ready;
    mGuiThread = std::thread([this, reader, &ready] {
        mDisplay = std::make_unique<Display>("Benchmark", "Zelmark SIP", "en", "", "", false, nullptr);
        if (reader == Reader::Subscribed)
            mDisplay->subscribe(&mSubscriber);
        mDisplay->show();
        ready.set_value();
        mDisplay->exec();
    });
    ready.get_future().get();
}

Phone::~Phone()
{
    mDisplay->shutdown();
    mGuiThread.join();
    DisplayAPI::Widget::setGuiThreadId();
    mDisplay.reset();
}

void Phone::onGui(const std::function<void()>& function)
{
    Probe probe;
    probe.run(function);
}

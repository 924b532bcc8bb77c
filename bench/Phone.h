#pragma once

#include <DisplayAPI/Display.h>
#include <DisplayAPI/DisplayEventIfc.h>
#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/Widget.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>

/// "one core" pins the calling thread, and with it every thread that it starts, to a single processor;
/// "all cores" lets them run anywhere.
void setMode(const std::string& mode);

double nowInNanoseconds();

/// A display whose loop runs on a thread of its own, so that the benchmark is an application.
class Phone {
public:
    enum class Reader {
        None,
        Subscribed,
    };
    explicit Phone(Reader reader = Reader::Subscribed);
    ~Phone();

    /// Runs a function on the GUI thread, and returns after it.
    void onGui(const std::function<void()>& function);

    DisplayAPI::Display& display() { return *mDisplay; }

private:
    struct Subscriber : DisplayAPI::DisplayEventIfc {
        void displayChanged(std::string) override { }
    };

    Subscriber mSubscriber;
    std::unique_ptr<DisplayAPI::Display> mDisplay;
    std::thread mGuiThread;
};

/// The smallest handle there can be: what its calls cost is the frame alone.
class Probe : public DisplayAPI::Widget {
public:
    void call() { postEvent(1); }
    void post() { postEventAsync(2); }
    void run(const std::function<void()>& function)
    {
        mFunction = &function;
        postEvent(3);
    }

    void processGuiRequest(DisplayAPI::GuiRequestEvent& event) override
    {
        switch (event.getType()) {
        case 1: ++calls; break;
        case 2: ++posts; break;
        case 3: (*mFunction)(); break;
        }
        signalComplete(event);
    }

    long calls = 0;
    long posts = 0;

private:
    const std::function<void()>* mFunction = nullptr;
};

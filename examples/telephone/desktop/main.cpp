// The desktop of the demonstration telephone, which starts it and tells it what is on; alone it takes the same steps
// from a script. Run it with --desktop.

#include "DesktopStrip.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <charconv>
#include <functional>
#include <mutex>
#include <stdexcept>
#include <string>

namespace {

/// The strip while it is shown, for steps that come from outside.
class Shown {
public:
    explicit Shown(DesktopStrip& strip) { set(&strip); }
    ~Shown() { set(nullptr); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    static void with(const std::function<void(DesktopStrip&)>& function)
    {
        const std::lock_guard lock(guard);
        if (current)
            function(*current);
    }

private:
    static void set(DesktopStrip* shown)
    {
        const std::lock_guard lock(guard);
        current = shown;
    }

    static inline std::mutex guard;
    static inline DesktopStrip* current = nullptr;
};

bool isOn(const std::string& argument)
{
    if (argument != "on" && argument != "off")
        throw std::invalid_argument("it is \"on\" or \"off\", not \"" + argument + "\"");
    return argument == "on";
}

int count(const std::string& argument)
{
    int number = 0;
    const char* end = argument.data() + argument.size();
    if (std::from_chars(argument.data(), end, number).ptr != end || number < 0 || argument.empty())
        throw std::invalid_argument("\"" + argument + "\" is no number");
    return number;
}

/// A step that hands its argument to the strip.
template <typename Value>
PhoneSimulator::StepFunction step(void (DesktopStrip::*operation)(Value), auto(*read)(const std::string&))
{
    return [operation, read](const std::string& argument) {
        const auto value = read(argument);
        Shown::with([&](DesktopStrip& strip) { (strip.*operation)(value); });
    };
}

std::string asItIs(const std::string& argument)
{
    return argument;
}

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv)
        .onStep("number", step(&DesktopStrip::setNumber, asItIs))
        .onStep("name", step(&DesktopStrip::setName, asItIs))
        .onStep("forwarding", step(&DesktopStrip::setForwarding, asItIs))
        .onStep("language", step(&DesktopStrip::setLanguage, asItIs))
        .onStep("clock", step(&DesktopStrip::setClock, count))
        .onStep("ringer", step(&DesktopStrip::setRinger, isOn))
        .onStep("messages", step(&DesktopStrip::setMessages, count))
        .onStep("missed", step(&DesktopStrip::setMissedCalls, count))
        .onStep("dnd", step(&DesktopStrip::setDoNotDisturb, isOn))
        .onStep("headset", step(&DesktopStrip::setHeadset, isOn))
        .onStep("lock", step(&DesktopStrip::setLock, isOn))
        .run([](DisplayAPI::Display& display) {
            DesktopStrip strip(display);
            const Shown shown(strip);
            strip.run();
        });
}

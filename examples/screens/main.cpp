// Screens in all their states, to look at: `screen call-busy` in a script shows one by its name, F1 the next one.

#include "Screens.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <mutex>

namespace {

std::mutex mutex;
Screens* shown = nullptr; // while the phonelet runs

void showScreen(const std::string& name)
{
    const std::lock_guard lock(mutex);
    if (shown)
        shown->show(name);
}

void name(Screens* screens)
{
    const std::lock_guard lock(mutex);
    shown = screens;
}

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).onStep("screen", showScreen, 1).run([](DisplayAPI::Display& display) {
        Screens screens(display);
        name(&screens);
        display.exec();
        name(nullptr);
    });
}

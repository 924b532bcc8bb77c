// Each kind of popup over a list. `progress N` in a script moves the work that is under way, F1 by a quarter.

#include "Popups.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<Popups*> shown = nullptr; // while the phonelet runs

void progress(const std::string& percent)
{
    static int quarter = 0;
    const int done = percent.empty() ? 25 * (quarter++ % 4 + 1) : std::atoi(percent.c_str());
    if (Popups* popups = shown)
        popups->setProgress(done);
}

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).onStep("progress", progress, 1).run([](DisplayAPI::Display& display) {
        Popups popups(display);
        shown = &popups;
        popups.run();
        shown = nullptr;
    });
}

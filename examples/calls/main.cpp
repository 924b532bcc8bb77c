// A working day of calls. `incoming NAME NUMBER` in a script rings, and so does F1; `far ringing`, `far busy` and
// `far answer` are the other end of an outgoing call, which F2 lets answer.

#include "Calls.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <atomic>

namespace {

std::atomic<Calls*> shown = nullptr; // while the phonelet runs

void incoming(const std::string& party)
{
    if (Calls* calls = shown)
        calls->ring(party.empty() ? "Bob 4712" : party);
}

void far(const std::string& state)
{
    if (Calls* calls = shown)
        calls->farEnd(state);
}

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv)
        .onStep("incoming", incoming, 1)
        .onStep("far", far, 2)
        .run([](DisplayAPI::Display& display) {
            Calls calls(display);
            shown = &calls;
            calls.run();
            shown = nullptr;
        });
}

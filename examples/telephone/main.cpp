// The demonstration telephone. F1, or `incoming NAME NUMBER` in a script, lets somebody call; F2 speaks the next
// language, and `language CODE` a certain one.

#include "Telephone.h"
#include "Tour.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <algorithm>
#include <atomic>

namespace {

std::atomic<Telephone*> shown = nullptr; // while the phonelet runs

void incoming(const std::string& caller)
{
    if (Telephone* telephone = shown)
        telephone->ring(caller);
}

void language(const std::string& code)
{
    if (Telephone* telephone = shown)
        telephone->speak(code);
}

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv)
        .setTour(Tour)
        .onStep("incoming", incoming, 1)
        .onStep("language", language, 2)
        .run([](DisplayAPI::Display& display) {
            Telephone telephone(display);
            shown = &telephone;
            telephone.run();
            shown = nullptr;
        });
}

// The demonstration telephone. What comes from outside is a function key, or a step of a script with an argument:
//
//     F1  incoming NAME NUMBER   somebody calls; a number that the exchange knows does it in its party's way
//     F2  language CODE          the next language, or a certain one
//     F3  message NAME NUMBER    somebody leaves a voice message
//     F4  hang-up                the other end of the newest call hangs up

#include "Telephone.h"
#include "Tour.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <functional>
#include <mutex>

namespace {

std::mutex mutex;
Telephone* shown = nullptr; // while the phonelet runs

/// A step has the telephone as long as it takes.
PhoneSimulator::StepFunction step(std::function<void(Telephone&, const std::string&)> act)
{
    return [act](const std::string& argument) {
        std::lock_guard lock(mutex);
        if (shown)
            act(*shown, argument);
    };
}

void show(Telephone* telephone)
{
    std::lock_guard lock(mutex);
    shown = telephone;
}

}

int main(int argc, char** argv)
{
    PhoneSimulator phone(argc, argv);
    return phone.setTour(Tour)
        .setDesktop("phone-desktop")
        .onStep("incoming", step(&Telephone::ring), 1)
        .onStep("language", step(&Telephone::speak), 2)
        .onStep("message", step(&Telephone::leaveMessage), 3)
        .onStep("hang-up", step([](Telephone& telephone, const std::string&) { telephone.hangUpThere(); }), 4)
        .run([&phone](DisplayAPI::Display& display) {
            Telephone telephone(
                display, [&phone](const auto& step, const auto& argument) { phone.tellDesktop(step, argument); });
            show(&telephone);
            telephone.run();
            show(nullptr);
        });
}

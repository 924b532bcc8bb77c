// What the telephone tells of itself. Its options show it on each variant: `--software qvt` has a system window,
// `--lines 3` the labels of F1 to F8, `--desktop` the desktop's own glass.

#include "Status.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <atomic>
#include <string>

namespace {

std::atomic<Status*> shown = nullptr; // while the phonelet runs

void press(int key)
{
    if (Status* status = shown)
        status->pressFunctionKey(key);
}

}

int main(int argc, char** argv)
{
    PhoneSimulator phone(argc, argv);
    phone.setApplicationName("CallViewPhonelet");
    for (int key = 1; key <= 8; ++key)
        phone.onStep(
            "key" + std::to_string(key), [key](const std::string&) { press(key); }, key);
    return phone.run([](DisplayAPI::Display& display) {
        Status status(display);
        shown = &status;
        status.run();
        shown = nullptr;
    });
}

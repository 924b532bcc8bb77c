// The settings of a telephone: a form with a row of each kind, and a popup in which one of its texts is written.

#include "Settings.h"

#include <PhoneSimulator/PhoneSimulator.h>

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).run([](DisplayAPI::Display& display) {
        Settings settings(display);
        settings.run();
    });
}

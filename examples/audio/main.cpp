// A list of audio outputs, and a question before another one is used.

#include "AudioOutputs.h"
#include "Tour.h"

#include <PhoneSimulator/PhoneSimulator.h>

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).setTour(Tour).run([](DisplayAPI::Display& display) {
        AudioOutputs outputs(display);
        outputs.run();
    });
}

// A phonelet in the simulator.

#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>
#include <PhoneSimulator/PhoneSimulator.h>

using namespace DisplayAPI;

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).run([](Display& display) {
        List list(0);
        list.setTitle("Audio output");
        list.append("Speaker");
        display.setCurrent(&list);
        display.show();
        display.exec();
    });
}

// The smallest phonelet: a list to walk through.

#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>
#include <PhoneSimulator/PhoneSimulator.h>

using namespace DisplayAPI;

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).run([](Display& display) {
        List list(0);
        list.setTitle("Audio output");
        for (const char* name : {"Speaker", "HeadSet", "Handset"})
            list.append(name);
        display.setCurrent(&list);
        display.show();
        display.exec();
    });
}

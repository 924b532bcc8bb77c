// The menu of a telephone, with settings three levels deep.

#include "Menu.h"

#include <PhoneSimulator/PhoneSimulator.h>

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).run([](DisplayAPI::Display& display) { Menu(display).run(); });
}

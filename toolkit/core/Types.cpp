#include "Types.h"

GUIEventIfc::~GUIEventIfc()
{
    if (mDisplay && *mDisplay == this)
        *mDisplay = nullptr;
}

bool GUIEventIfc::onChange(const UEvent*, std::string)
{
    return false;
}

std::string ClientUtils::itos(int number)
{
    return std::to_string(number);
}

#include "Types.h"

void GUIEventLink::attach(GUIEventIfc* handler)
{
    if (handler == mHandler)
        return;
    if (mHandler)
        mHandler->mDisplay = nullptr;
    mHandler = handler;
    if (!handler)
        return;
    if (handler->mDisplay)
        handler->mDisplay->mHandler = nullptr;
    handler->mDisplay = this;
}

GUIEventIfc::~GUIEventIfc()
{
    if (mDisplay)
        mDisplay->attach(nullptr);
}

bool GUIEventIfc::onChange(const UEvent*, std::string)
{
    return false;
}

std::string ClientUtils::itos(int number)
{
    return std::to_string(number);
}

#include "LastDelivery.h"

void LastDelivery::await()
{
    std::future<void> hasCome = mHasCome->get_future();
    postCommandAction(&mCommand, nullptr);
    hasCome.get();
}

void LastDelivery::commandAction(DisplayAPI::Command*, DisplayAPI::Displayable*)
{
    // Who waits may destroy this object at once: only the copy is touched from here on.
    const std::shared_ptr<std::promise<void>> hasCome = mHasCome;
    hasCome->set_value();
}

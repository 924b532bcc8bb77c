#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/CommandListener.h>

#include <future>
#include <memory>

/// Waits for the deliveries that are on their way. Deliveries come one after the other, so when this one has
/// come, no other listener is at work any more, and listeners may be destroyed.
class LastDelivery : private DisplayAPI::CommandListener {
public:
    /// Threads: the GUI thread, after the end of exec().
    void await();

private:
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    DisplayAPI::Command mCommand{"last delivery", DisplayAPI::Command::Menu};
    std::shared_ptr<std::promise<void>> mHasCome = std::make_shared<std::promise<void>>();
};

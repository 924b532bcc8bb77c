#pragma once

#include <DisplayAPI/Item.h>

namespace DisplayAPI {

/// The item of a screen that has no items: it stands for the text that the user types there, and is what the
/// item-state listeners are given when that text has changed. It shows nothing.
class stateItem : public Item {
public:
    void processGuiRequest(GuiRequestEvent& event) override { signalComplete(event); }
    ItemPrivateIfc* getPrivateImpl() override { return nullptr; }
    void localeChanged(std::string) override { }
    void show() { }
};

}

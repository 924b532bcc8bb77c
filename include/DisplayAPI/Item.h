#pragma once

#include <DisplayAPI/Widget.h>

namespace DisplayAPI {

class Displayable;
class ItemPrivateIfc;

/// The base of everything that lives inside a screen. Deleting an item recalls its pending state changes.
class DISPLAYAPI_EXPORT Item : public Widget {
public:
    ~Item() override;
    void processGuiRequest(GuiRequestEvent& event) override = 0;

    virtual void setParent(Displayable* parent);
    virtual const char* getType();
    virtual unsigned int getID();
    virtual void setReadOnly(bool readOnly);
    virtual bool isReadOnly();
    virtual ItemPrivateIfc* getPrivateImpl() = 0;
    virtual void localeChanged(std::string locale) = 0;

    /// The screen that the item stands in, or null.
    Displayable* getParent() const { return mParent; }

private:
    Displayable* mParent = nullptr;
};

}

#pragma once

#include <DisplayAPI/Numbered.h>
#include <DisplayAPI/Widget.h>

namespace DisplayAPI {

class Displayable;
class ItemHolder;
class ItemPrivateIfc;

/// The base of everything that lives inside a screen. Deleting an item takes it out of its form, and recalls its pending
/// state changes.
class DISPLAYAPI_EXPORT Item : public Widget, public Numbered<Item> {
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

    /// Who holds the item; null while it is the application's. Threads: GUI thread.
    ItemHolder* holder() const { return mHolder; }

protected:
    /// The deletion of an item's half on the GUI thread: retires the handle and takes the item from its holder. What is
    /// left is to delete the half, which the caller names: a destructor reaches no override.
    void retireItem(ItemPrivateIfc* half);

private:
    friend class FormItems;
    friend class Road;

    Displayable* mParent = nullptr;
    ItemHolder* mHolder = nullptr;
};

}

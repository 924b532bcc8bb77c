#pragma once

#include <DisplayAPI/OwnershipIfc.h>

#include <UAgent.h>

namespace DisplayAPI {

/// Owns a private's toolkit widget while nobody else does. It is a member of the private, which forwards its
/// ownership operations to it. As the last of the members it goes first, while the others are still there for the
/// widget's farewell.
///
/// It works on the private's own pointer, which has the widget or null when the delegate is made. Whoever deletes the
/// widget, that pointer becomes null.
template <typename T>
class OwnershipDelegate final : public OwnershipIfc {
public:
    explicit OwnershipDelegate(T** widget)
        : mLife(widget)
    {
        watch();
    }
    ~OwnershipDelegate() override
    {
        if (mIsOwned)
            delete *mLife.widget;
    }
    OwnershipDelegate(const OwnershipDelegate&) = delete;
    OwnershipDelegate& operator=(const OwnershipDelegate&) = delete;

    void releaseOwnership() override
    {
        mIsOwned = false;
        watch();
    }
    void gainOwnership() override
    {
        mIsOwned = true;
        watch();
    }
    bool hasOwnership() const override { return mIsOwned; }

private:
    struct Life : LifeNode {
        explicit Life(T** pointer)
            : widget(pointer)
        {
        }
        static void clear(LifeNode& node) { *static_cast<Life&>(node).widget = nullptr; }

        T** widget;
    };

    // The private may have made its widget only after this, or another one.
    void watch() { mLife.watch(*mLife.widget, &Life::clear); }

    Life mLife;
    bool mIsOwned = true;
};

}

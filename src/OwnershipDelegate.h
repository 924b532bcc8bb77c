#pragma once

#include <DisplayAPI/OwnershipIfc.h>

#include <UAgent.h>

namespace DisplayAPI {

/// Owns a private's toolkit widget while nobody else does. It is a member of the private, which forwards its
/// ownership operations to it.
///
/// It works on the private's own pointer. While a tree owns the widget, the widget's death makes that pointer
/// null; while this owns it, its own death deletes the widget.
template <typename T>
class OwnershipDelegate final : public OwnershipIfc {
public:
    explicit OwnershipDelegate(T** widget)
        : mLife(widget)
    {
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
        mLife.watch(*mLife.widget, &Life::clear);
    }
    void gainOwnership() override
    {
        mIsOwned = true;
        mLife.watch(nullptr);
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

    Life mLife;
    bool mIsOwned = true;
};

}

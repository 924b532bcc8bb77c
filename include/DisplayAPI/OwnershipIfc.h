#pragma once

namespace DisplayAPI {

/// Who deletes a toolkit widget: the private that made it, or the toolkit tree that it was handed to.
class OwnershipIfc {
public:
    virtual ~OwnershipIfc() = default;

    /// The widget has gone into a tree, which deletes it from now on.
    virtual void releaseOwnership() = 0;

    /// The widget has come back.
    virtual void gainOwnership() = 0;
    virtual bool hasOwnership() const = 0;
};

}

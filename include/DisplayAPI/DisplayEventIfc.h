#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/Numbered.h>

#include <string>

namespace DisplayAPI {

/// The subscriber to what is on the screen.
///
/// Threads: called on the GUI thread, inside the operation that made the change; it may read the screen text
/// there. Nobody deletes through this interface.
/// Ownership: the application's. One that dies is forgotten, as a listener is; but it must not die on another thread
/// while it may be inside displayChanged(): Display::unSubscribe() returns behind that.
class DISPLAYAPI_EXPORT DisplayEventIfc : public Numbered<DisplayEventIfc> {
public:
    /// Something that can be seen has changed. The text is empty.
    virtual void displayChanged(std::string text) = 0;

protected:
    ~DisplayEventIfc() = default;
};

}

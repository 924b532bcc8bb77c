#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/Numbered.h>

#include <string>

namespace DisplayAPI {

/// The subscriber to what is on the screen.
///
/// Threads: called on the GUI thread, inside the operation that made the change. It may read the screen text there,
/// change screens and delete them, and subscribe another one; the display itself must stay. Nobody deletes through
/// this interface.
/// Ownership: the application's. One that dies is forgotten, as a listener is; but it must not die on another thread
/// while it may be inside displayChanged(): Display::unSubscribe() returns behind that.
/// Errors: an exception that leaves displayChanged() passes through that operation, behind a line in the log that names
/// the current screen and what(). In the loop it ends the loop, and comes out of Display::exec().
class DISPLAYAPI_EXPORT DisplayEventIfc : public Numbered<DisplayEventIfc> {
public:
    /// Something that can be seen has changed. The text is empty.
    virtual void displayChanged(std::string text) = 0;

protected:
    ~DisplayEventIfc() = default;
};

}

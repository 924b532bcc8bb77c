#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/ListBoxPrivateIfc.h>

#include <string>

namespace DisplayAPI {

/// The half of a QVT list that lives on the GUI thread.
class DISPLAYAPI_EXPORT QVTListPrivateIfc : public ListBoxPrivateIfc {
public:
    // Display lines

    virtual void numtitlelines(unsigned int count) = 0;
    virtual void titlecolour(int colour) = 0;
    virtual void titletext(unsigned int line, const std::string& text) = 0;

    /// Takes the translation over; null clears the line.
    virtual void titletext(unsigned int line, TranslationInfo* text) = 0;
    virtual void cleartitle() = 0;

    /// Whether the user has moved since this was asked last.
    virtual bool selectionchanged() const = 0;
};

}

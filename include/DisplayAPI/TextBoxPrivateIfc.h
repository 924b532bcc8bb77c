#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/TextBox.h>

#include <UAgent.h>

#include <string>

namespace DisplayAPI {

/// The half of a text box on the GUI thread, as its handle sees it, with a title line or of two lines.
///
/// Threads: GUI thread only, but for the listeners.
/// Errors: when the widget has been deleted by a tree that owned it, every operation is without effect.
class DISPLAYAPI_EXPORT TextBoxPrivateIfc : public DisplayablePrivate, public UAgent {
public:
    // Text

    virtual std::string getText() const = 0;
    virtual void setText(const std::string& text, bool keepPosition) = 0;

    /// Without effect; the translation stays the caller's.
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setReadOnlyMode(bool readOnly) = 0;
    virtual bool getReadOnlyMode() = 0;
    virtual int getCaretPosition() = 0;
    virtual void setMaxSize(int bytes) = 0;
    virtual int getMaxSize() = 0;

    /// In bytes of UTF-8.
    virtual int getSize() = 0;
    virtual TextBox::TextBoxType getTextBoxType() = 0;
    virtual void setTextBoxType(TextBox::TextBoxType type) = 0;
    virtual void insert(std::string& text, int position) = 0;
    virtual void clear() = 0;

    // Title

    virtual void setTitle(const std::string& title) = 0;

    /// Takes the translation over, also where the box shows no title.
    virtual void setTitle(TranslationInfo* title) = 0;

    /// The handle; null if the half was made without one.
    virtual TextBox* getParent() const = 0;
    virtual void hide() = 0;
    virtual void setTopLineSlidableOffAndTruncationOn(bool on) = 0;
};

}

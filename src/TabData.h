#pragma once

#include <TranslationInfo.h>

#include <memory>
#include <string>

namespace DisplayAPI {

class DisplayablePrivateIfc;

/// A tab: the half of its screen, which may be null, and its title. Threads: GUI thread.
class TabData {
public:
    /// Takes the title over; null is the empty one.
    TabData(DisplayablePrivateIfc* displayable, TranslationInfo* title)
        : mDisplayable(displayable)
        , mTitle(title)
        , mText(title ? title->getString() : std::string())
    {
    }
    TabData(DisplayablePrivateIfc* displayable, const std::string& title)
        : mDisplayable(displayable)
        , mText(title)
    {
    }

    DisplayablePrivateIfc* getDisp() const { return mDisplayable; }
    void setDisp(DisplayablePrivateIfc* displayable) { mDisplayable = displayable; }

    /// The translation of the title; null for a plain one.
    TranslationInfo* getTinfo() const { return mTitle.get(); }

    /// The title as it was when it was set.
    const std::string& getText() const { return mText; }

    /// Takes the title over, and deletes the one before; the same one changes nothing. Null is the empty one.
    void setText(TranslationInfo* title)
    {
        if (title && title == mTitle.get())
            return;
        mTitle.reset(title);
        mText = title ? title->getString() : std::string();
    }
    void setText(const std::string& title)
    {
        mTitle.reset();
        mText = title;
    }

private:
    DisplayablePrivateIfc* mDisplayable;
    std::unique_ptr<TranslationInfo> mTitle;
    std::string mText;
};

}

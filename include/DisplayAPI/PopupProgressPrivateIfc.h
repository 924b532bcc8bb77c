#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/PopupProgress.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The progress popup on the GUI thread, as its handle sees it.
class DISPLAYAPI_EXPORT PopupProgressPrivateIfc : public DisplayablePrivate, public UAgent {
public:
    virtual void setType(PopupProgress::InfoType type) = 0;
    virtual void setText(const std::string& text) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual void setCurrentStageText(const std::string& text) = 0;
    virtual void setCurrentStageText(TranslationInfo* text) = 0;
    virtual void setCurrentActivityText(const std::string& text) = 0;
    virtual void setCurrentActivityText(TranslationInfo* text) = 0;
    virtual void updateProgressBar(int percent) = 0;
    virtual void dismiss() = 0;
};

}

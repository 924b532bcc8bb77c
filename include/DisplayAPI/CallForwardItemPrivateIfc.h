#pragma once

#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/ExpandingTreeListItemPrivateIfc.h>

#include <UAgent.h>

namespace DisplayAPI {

/// The row of call forwarding on the GUI thread, as its handle sees it.
///
/// Ownership: translations are taken over, but for a prefix.
/// Errors: without a row of the toolkit only the translations change; the answers are false and the empty text.
class DISPLAYAPI_EXPORT CallForwardItemPrivateIfc : public ExpandingTreeListItemPrivateIfc, public UAgent {
public:
    virtual void swapCheck() = 0;
    virtual void check() = 0;
    virtual void uncheck() = 0;
    virtual bool getCheck() = 0;
    virtual std::string getText() = 0;
    virtual void setTextMain(const std::string& text) = 0;
    virtual void setTextMain(TranslationInfo* text) = 0;
    virtual void setTextBranch(
        const std::string& text, TranslationInfo* prefix, CallForwardItem::eCallForwardBranchLine line)
        = 0;
    virtual void setTextBranch(
        TranslationInfo* text, TranslationInfo* prefix, CallForwardItem::eCallForwardBranchLine line)
        = 0;
    virtual void localeChanged(std::string locale) = 0;
    virtual void setReadonly(bool readOnly, bool flag) = 0;
    virtual void setCFIconVisible(bool visible) = 0;
    virtual void cleanBranches() = 0;
    void event(UEvent* event) override = 0;
};

}

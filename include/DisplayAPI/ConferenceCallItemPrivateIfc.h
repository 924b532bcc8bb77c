#pragma once

#include <DisplayAPI/CallConnectedItemPrivateIfc.h>
#include <DisplayAPI/ConferenceCallItem.h>

namespace DisplayAPI {

/// The row of a conference on the GUI thread, as its handle sees it. The base is the one of the call's row.
class DISPLAYAPI_EXPORT ConferenceCallItemPrivateIfc : public virtual CallConnectedItemPrivateIfc {
public:
    /// Takes the translation over; the text counts where it is null.
    virtual void setTitleSuffix(const std::string& text, TranslationInfo* info) = 0;
    virtual void appendCall(CallConnectedItem* call, bool flag) = 0;
    virtual void removeCall(CallConnectedItem* call) = 0;
    virtual void removeCall(int member) = 0;
    virtual void setCallItem(int row) = 0;
    virtual CallConnectedItem* getSelectedCall() = 0;
    virtual CallConnectedItem* getTitleCall() = 0;
    virtual CallConnectedItem* getIndexedCall(int member) = 0;
    ContextMenu* getContextMenu() override = 0;
};

}

#pragma once

#include <DisplayAPI/ConferenceCallItemPrivateIfc.h>
#include <DisplayAPI/Living.h>

#include "CallConnectedItemPrivate.h"
#include "HeldRows.h"
#include "TranslationHolder.h"

#include <string>
#include <vector>

namespace DisplayAPI {

/// The row of a conference on the GUI thread: a TreeItemMEG that has the rows of the members as its children.
class ConferenceCallItemPrivate final : public CallConnectedItemPrivate, public ConferenceCallItemPrivateIfc {
public:
    ConferenceCallItemPrivate(CallConnectedItem::CallStateIcon state, TranslationInfo* text, CallConnectedItem* handle,
        bool headset, bool widgetFlag1);
    ~ConferenceCallItemPrivate() override;

    void setTitleSuffix(const std::string& text, TranslationInfo* info) override;
    void appendCall(CallConnectedItem* call, bool flag) override;
    void removeCall(CallConnectedItem* call) override;
    void removeCall(int member) override;
    void setCallItem(int row) override;
    CallConnectedItem* getSelectedCall() override;
    CallConnectedItem* getTitleCall() override;
    CallConnectedItem* getIndexedCall(int member) override;
    ContextMenu* getContextMenu() override { return CallConnectedItemPrivate::getContextMenu(); }
    void localeChanged(std::string locale) override;

private:
    /// The calls that take part, in the order of joining. They are the application's.
    class Members final : public HeldRows {
    public:
        explicit Members(ConferenceCallItemPrivate& conference)
            : mConference(conference)
        {
        }

        const ConferenceCallItemPrivate& conference() const { return mConference; }
        void rowChanged(ListItem& row, ListItemPrivateIfc* before) override;

    protected:
        void takeOut(int, ListItemPrivateIfc* half) override { mConference.takeOut(half); }

    private:
        ConferenceCallItemPrivate& mConference;
    };

    std::vector<ListItem*> members();
    bool mayJoin(ListItem* call) const;
    bool isPartOf(const ListItem* conference) const;
    void join(ListItemPrivateIfc* half);
    void takeOut(ListItemPrivateIfc* half);

    Members mMembers{*this};
    Living<ListItem> mTitleCall;
    TranslationHolder mTitleSuffixInfo;
};

}

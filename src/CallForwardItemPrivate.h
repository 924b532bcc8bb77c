#pragma once

#include <DisplayAPI/CallForwardItemPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <ExpandingListMEG.h>

#include <string>

namespace DisplayAPI {

/// The row of call forwarding on the GUI thread. It owns the toolkit's row while that stands in no list.
class CallForwardItemPrivate final : public CallForwardItemPrivateIfc {
public:
    /// A type that shows no row leaves it out; the translation is kept all the same.
    CallForwardItemPrivate(CallLogMainItem::IconType iconType, TranslationInfo* text, bool readOnly, bool arrow);
    explicit CallForwardItemPrivate(TranslationInfo* text);
    ~CallForwardItemPrivate() override;

    /// True for the types that show the icon of a kind of forwarding.
    static bool hasIcon(CallLogMainItem::IconType iconType);

    // Ownership

    ExpandingListItemBaseMEG* getWidget() override { return mRow; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }

    // Check mark and state

    void swapCheck() override;
    void check() override;
    void uncheck() override;
    bool getCheck() override { return mRow && mRow->checked(); }
    void setReadonly(bool readOnly, bool flag) override;
    void setCFIconVisible(bool visible) override;
    void cleanBranches() override { }

    // Texts

    std::string getText() override { return mRow ? mRow->getText().toUTF8() : std::string(); }
    void setTextMain(const std::string& text) override { showMainText(mMainInfo.show(text)); }
    void setTextMain(TranslationInfo* text) override { showMainText(mMainInfo.show(text)); }
    void setTextBranch(
        const std::string& text, TranslationInfo* prefix, CallForwardItem::eCallForwardBranchLine line) override;
    void setTextBranch(
        TranslationInfo* text, TranslationInfo* prefix, CallForwardItem::eCallForwardBranchLine line) override;
    void localeChanged(std::string locale) override;
    void event(UEvent* event) override;

private:
    void showMainText(const std::string& text);
    void showBranchText(const std::string& text);

    CallForwardListItemMEG* mRow = nullptr; // null too once a list that held it has deleted it
    TranslationHolder mMainInfo;
    TranslationHolder mBranchInfo;
    OwnershipDelegate<CallForwardListItemMEG> mOwnership{&mRow};
};

}

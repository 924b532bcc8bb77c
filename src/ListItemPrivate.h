#pragma once

#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/ListItemPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <VantoListBoxItemMEG.h>

#include <atomic>
#include <string>

namespace DisplayAPI {

/// A row with text, right text and left icon, or with an endless progress bar.
///
/// It owns the toolkit's row while that stands in no list. Threads: GUI thread, but for getLeftIcon().
class ListItemPrivate : public ListItemPrivateIfc {
public:
    /// The flag has no effect.
    ListItemPrivate(const std::string& text, bool flag);

    /// Takes the translation over; null is an empty text.
    ListItemPrivate(TranslationInfo* text, bool flag);
    explicit ListItemPrivate(ListItem::ListItemType type);
    ~ListItemPrivate() override;
    ListItemPrivate(const ListItemPrivate&) = delete;
    ListItemPrivate& operator=(const ListItemPrivate&) = delete;

    /// Reads the text's translation again, not the right text's.
    void localeChanged(std::string locale) override;
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }

    // Content. The forms with a translation take it over.

    void setText(std::string text) override { showText(mTextInfo.show(text)); }
    void setText(TranslationInfo* text) override { showText(mTextInfo.show(text)); }
    void setRightText(std::string text) override { showRightText(mRightTextInfo.show(text)); }
    void setRightText(TranslationInfo* text) override { showRightText(mRightTextInfo.show(text)); }
    VantoListBoxItemMEG* getVantoListItem() override { return mWidget; }
    void startInfiniteProgressBar() override;
    void setLeftIcon(Icons::IconType icon) override;

    /// Threads: any.
    Icons::IconType getLeftIcon() override { return mLeftIcon; }

private:
    void showText(const std::string& text);
    void showRightText(const std::string& text);

    VantoListBoxItemMEG* mWidget; // null once a list that held the row has deleted it
    TranslationHolder mTextInfo;
    TranslationHolder mRightTextInfo;
    bool mIsProgressRow = false;
    std::atomic<Icons::IconType> mLeftIcon = {};
    OwnershipDelegate<VantoListBoxItemMEG> mOwnership{&mWidget};
};

}

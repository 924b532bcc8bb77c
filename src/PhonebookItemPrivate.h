#pragma once

#include <DisplayAPI/PhonebookItemPrivateIfc.h>

#include "TranslationHolder.h"

namespace DisplayAPI {

/// The row of a directory on the GUI thread: it keeps its translation, and has no toolkit row.
class PhonebookItemPrivate : public PhonebookItemPrivateIfc {
public:
    /// Takes the translation over; null is none.
    explicit PhonebookItemPrivate(TranslationInfo* text);
    ~PhonebookItemPrivate() override;
    PhonebookItemPrivate(const PhonebookItemPrivate&) = delete;
    PhonebookItemPrivate& operator=(const PhonebookItemPrivate&) = delete;

    void localeChanged(std::string) override { }
    void releaseOwnership() override { }
    VantoListBoxItemMEG* getVantoListItem() override { return nullptr; }

private:
    TranslationHolder mTextInfo;
};

}

#pragma once

#include <TranslationInfo.h>

#include <memory>
#include <string>

namespace DisplayAPI {

/// The translation behind one line of a screen, kept so that the line can be read again in another locale.
class TranslationHolder {
public:
    /// The line has got a literal text.
    void forget() { mInfo.reset(); }

    /// Takes the translation over, and deletes the one that it replaces unless it is the same. Null is allowed.
    void take(TranslationInfo* info)
    {
        if (info != mInfo.get())
            mInfo.reset(info);
    }

    explicit operator bool() const { return mInfo != nullptr; }

    /// The translation alone; empty without one.
    std::string string() const { return mInfo ? mInfo->getString() : std::string(); }

    /// With prefix and suffix; empty without a translation.
    std::string completeString() const { return mInfo ? mInfo->getCompleteString() : std::string(); }

    TranslatorIfc* translator() const { return mInfo ? mInfo->translator() : nullptr; }

private:
    std::unique_ptr<TranslationInfo> mInfo;
};

}

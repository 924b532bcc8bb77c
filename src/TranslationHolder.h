#pragma once

#include <TranslationInfo.h>
#include <UString.h>

#include <memory>
#include <string>

namespace DisplayAPI {

/// The translation behind one line of a screen, kept so that the line can be read again in another locale.
class TranslationHolder {
public:
    // What the line shows from now on; each answers the text of it

    /// A literal text.
    const std::string& show(const std::string& text)
    {
        forget();
        return text;
    }

    /// A translation with its prefix and suffix. It is taken over, and the one that it replaces deleted unless it is
    /// the same. Null is an empty text.
    std::string show(TranslationInfo* info)
    {
        take(info);
        return completeString();
    }

    /// The same without prefix and suffix.
    std::string showBare(TranslationInfo* info)
    {
        take(info);
        return string();
    }

    void take(TranslationInfo* info)
    {
        if (info != mInfo.get())
            mInfo.reset(info);
    }
    void forget() { mInfo.reset(); }

    /// Gives the translation to the caller, and shows an empty text.
    TranslationInfo* release() { return mInfo.release(); }

    // The translation in today's locale

    explicit operator bool() const { return mInfo != nullptr; }

    /// True for the very translation that stands behind the line, and for null where there is none.
    bool holds(const TranslationInfo* info) const { return info == mInfo.get(); }

    /// The translation alone; empty without one.
    std::string string() const { return mInfo ? mInfo->getString() : std::string(); }

    /// With prefix and suffix; empty without a translation.
    std::string completeString() const { return mInfo ? mInfo->getCompleteString() : std::string(); }

    TranslatorIfc* translator() const { return mInfo ? mInfo->translator() : nullptr; }

private:
    std::unique_ptr<TranslationInfo> mInfo;
};

/// The label of a row that leads back, to be read again in another locale: "Back?" without a translator.
inline std::unique_ptr<TranslationInfo> backLabel(TranslatorIfc* translator)
{
    return std::make_unique<TranslationInfo>("", "Back", "?", translator);
}

/// The labels of the rows that list boxes have of their own, in a translator's words.
inline UString backText(TranslatorIfc* translator)
{
    return UString(backLabel(translator)->getCompleteString());
}

inline UString deleteText(TranslatorIfc* translator)
{
    return UString(TranslationInfo("", "Speller.menu.Delete", "?", translator).getCompleteString());
}

}

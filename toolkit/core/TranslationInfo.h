#pragma once

#include "Export.h"

#include <string>

/// The application's translator: turns a key into a text of the current locale.
///
/// Threads: the library asks on the GUI thread, and wherever the text of a command is read, then with the
/// lock of all commands held. An implementation must therefore not call a handle of the library, and must
/// answer at once.
class TOOLKIT_EXPORT TranslatorIfc {
public:
    virtual ~TranslatorIfc();
    virtual std::string translate(std::string key) = 0;
};

/// A translation key with its translator, and texts that stand before and behind the translation.
///
/// The translator is asked at each read, so that the text follows a change of locale. It is not owned.
class TOOLKIT_EXPORT TranslationInfo {
public:
    TranslationInfo(std::string key, TranslatorIfc* translator);
    TranslationInfo(std::string prefix, std::string key, std::string suffix, TranslatorIfc* translator);
    TranslationInfo(const TranslationInfo&) = delete;
    TranslationInfo& operator=(const TranslationInfo&) = delete;

    /// The translation alone; the key itself when there is no translator.
    std::string getString() const;

    /// Prefix, translation and suffix.
    std::string getCompleteString() const;

    TranslatorIfc* translator() const { return mTranslator; }

private:
    std::string mPrefix;
    std::string mKey;
    std::string mSuffix;
    TranslatorIfc* mTranslator;
};

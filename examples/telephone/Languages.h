#pragma once

#include <DisplayAPI/TranslationInfo.h>

#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

/// The languages of the telephone. The keys are the English texts, and the names that the library gives
/// to its own; what they say comes from the catalogs in `po`.
///
/// Threads: any. The library asks on the GUI thread and, for the texts of commands, wherever they are read.
class Languages final : public TranslatorIfc {
public:
    Languages();

    /// What can be spoken, by codes: "en", "de", "ru", and "pseudo", which lengthens every text so that those that
    /// have no room to spare are seen before a translator meets them.
    static const std::vector<std::string>& codes();

    /// The name of a language in itself.
    static std::string nameOf(const std::string& code);

    std::string current() const;

    /// The language behind the current one; the first one behind the last.
    std::string next() const;

    /// Returns false, and changes nothing, for a code that is not spoken.
    bool speak(const std::string& code);

    /// A key without a translation stays as it is.
    std::string translate(std::string key) override;

    /// A translation that stays with this translator, for the library to take over.
    TranslationInfo* text(const std::string& key, const std::string& suffix = "");

private:
    using Catalog = std::map<std::string, std::string, std::less<>>;

    std::string lookUp(const std::string& code, const std::string& key) const;

    std::map<std::string, Catalog> mCatalogs;
    mutable std::mutex mMutex;
    std::string mCurrent = "en";
};

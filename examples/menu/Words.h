#pragma once

#include <DisplayAPI/TranslationInfo.h>

#include <atomic>
#include <string>

namespace DisplayAPI {
class Display;
}

/// The words of the phonelet, whose keys are its English texts.
class Words : public TranslatorIfc {
public:
    enum Language {
        English,
        German,
    };

    /// Also for the library's own texts.
    explicit Words(DisplayAPI::Display& display);
    ~Words() override;

    /// The screens read their texts anew at the next change of locale. Threads: any.
    void setLanguage(Language language) { mLanguage = language; }

    /// A word that is not known in the language stays as it is.
    std::string translate(std::string key) override;

    /// A text that follows the language, for an operation that takes it over.
    TranslationInfo* text(const std::string& key) { return new TranslationInfo(key, this); }
    TranslationInfo* label(const std::string& key) { return new TranslationInfo("", key, ":", this); }
    TranslationInfo* question(const std::string& key) { return new TranslationInfo("", key, "?", this); }

private:
    DisplayAPI::Display& mDisplay;
    std::atomic<Language> mLanguage = English;
};

#pragma once

#include <DisplayAPI/TranslationInfo.h>

#include <atomic>
#include <string>

namespace DisplayAPI {
class Display;
}

/// The texts of the phonelet in two languages. The keys are the English texts.
class Words : public TranslatorIfc {
public:
    /// Also for the library's own texts.
    explicit Words(DisplayAPI::Display& display);
    ~Words() override;

    void speakGerman(bool german) { mIsGerman = german; }

    /// A key without a word stays as it is. Threads: any.
    std::string translate(std::string key) override;

    /// A text that follows the language, for whom takes it over.
    TranslationInfo* text(const std::string& key, const std::string& suffix = "")
    {
        return new TranslationInfo("", key, suffix, this);
    }

private:
    DisplayAPI::Display& mDisplay;
    std::atomic<bool> mIsGerman = false;
};

#pragma once

#include <TranslationInfo.h>

#include <functional>
#include <map>
#include <string>

/// A translator whose language a test can change: a word of the dictionary, else the key behind a prefix.
class TestTranslator : public TranslatorIfc {
public:
    std::string translate(std::string key) override
    {
        if (whenAsked)
            return whenAsked(key);
        const auto found = words.find(key);
        return found == words.end() ? prefix + key : found->second;
    }

    std::map<std::string, std::string> words;
    std::string prefix;
    std::function<std::string(const std::string&)> whenAsked; // instead of both
};

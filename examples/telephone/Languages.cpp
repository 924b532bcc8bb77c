#include "Languages.h"

#include "Catalogs.h"
#include "PoFile.h"

#include <algorithm>

namespace {

/// Accents show a text that came past the translator, and two fifths more letters one that has no room to grow.
std::string lengthened(const std::string& text)
{
    static const std::map<char, const char*> accents{{'a', "á"}, {'e', "é"}, {'i', "í"}, {'o', "ó"}, {'u', "ú"},
        {'A', "Á"}, {'E', "É"}, {'I', "Í"}, {'O', "Ó"}, {'U', "Ú"}};
    std::string longer;
    for (const char letter : text) {
        const auto accent = accents.find(letter);
        longer += accent == accents.end() ? std::string(1, letter) : accent->second;
    }
    return longer + std::string((text.size() * 2 + 4) / 5, '~');
}

}

Languages::Languages()
{
    for (const auto& [code, file] : poFiles())
        mCatalogs[std::string(code)] = readPo(file);
}

const std::vector<std::string>& Languages::codes()
{
    static const std::vector<std::string> all{"en", "de", "ru", "pseudo"};
    return all;
}

std::string Languages::nameOf(const std::string& code)
{
    static const std::map<std::string, std::string> names{
        {"en", "English"}, {"de", "Deutsch"}, {"ru", "Русский"}, {"pseudo", "Pseudo"}};
    const auto found = names.find(code);
    return found == names.end() ? code : found->second;
}

std::string Languages::current() const
{
    std::lock_guard lock(mMutex);
    return mCurrent;
}

std::string Languages::next() const
{
    const auto found = std::find(codes().begin(), codes().end(), current());
    return found + 1 >= codes().end() ? codes().front() : *(found + 1);
}

bool Languages::speak(const std::string& code)
{
    if (std::find(codes().begin(), codes().end(), code) == codes().end())
        return false;
    std::lock_guard lock(mMutex);
    mCurrent = code;
    return true;
}

std::string Languages::translate(std::string key)
{
    std::lock_guard lock(mMutex);
    if (mCurrent != "pseudo")
        return lookUp(mCurrent, key);
    // What the keys write is no text that anybody reads.
    const std::string english = lookUp("en", key);
    return key.starts_with("Keypad.") ? english : lengthened(english);
}

std::string Languages::lookUp(const std::string& code, const std::string& key) const
{
    const auto catalog = mCatalogs.find(code);
    if (catalog == mCatalogs.end())
        return key;
    const auto found = catalog->second.find(key);
    return found == catalog->second.end() ? key : found->second;
}

TranslationInfo* Languages::text(const std::string& key, const std::string& suffix)
{
    return new TranslationInfo("", key, suffix, this);
}

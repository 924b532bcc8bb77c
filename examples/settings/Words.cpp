#include "Words.h"

#include <DisplayAPI/Display.h>

#include <map>

Words::Words(DisplayAPI::Display& display)
    : mDisplay(display)
{
    mDisplay.setTranslator(this);
}

Words::~Words()
{
    mDisplay.setTranslator(nullptr);
}

std::string Words::translate(std::string key)
{
    static const std::map<std::string, std::string> german = {
        {"Settings", "Einstellungen"},
        {"Name", "Name"},
        {"Extension", "Nebenstelle"},
        {"PIN", "PIN"},
        {"Language", "Sprache"},
        {"English", "Englisch"},
        {"German", "Deutsch"},
        {"Volume", "Lautstärke"},
        {"Note", "Notiz"},
        {"State", "Stand"},
        {"saved", "gespeichert"},
        {"changed", "geändert"},
        {"Save", "Speichern"},
        {"Take it", "Übernehmen"},
        {"Leave it", "Verwerfen"},
        {"Back", "Zurück"},
        {"Settings saved", "Einstellungen gespeichert"},
    };
    const auto word = german.find(key);
    return mIsGerman && word != german.end() ? word->second : key;
}

#include "Words.h"

#include <map>

std::string Words::translate(std::string key)
{
    static const std::map<std::string, std::string> german{
        {"About", "Info"},
        {"Address", "Adresse"},
        {"Administration", "Verwaltung"},
        {"Back", "Zurück"},
        {"Bell", "Glocke"},
        {"Bright", "Hell"},
        {"Cancel", "Abbrechen"},
        {"Dark", "Dunkel"},
        {"Display", "Anzeige"},
        {"Enter", "Öffnen"},
        {"For administrators only", "Nur für Verwalter"},
        {"Language", "Sprache"},
        {"Melody", "Melodie"},
        {"Menu", "Menü"},
        {"Restart", "Neustart"},
        {"Saved", "Gespeichert"},
        {"Settings", "Einstellungen"},
        {"Silver", "Silber"},
    };
    const auto found = mLanguage == German ? german.find(key) : german.end();
    return found == german.end() ? key : found->second;
}

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
    if (key == "TabScreen.title") // the library's own key, of no language
        key = "Calls";
    static const std::map<std::string, std::string> german{
        {"About", "Info"},
        {"Address", "Adresse"},
        {"Administration", "Verwaltung"},
        {"All calls", "Alle Anrufe"},
        {"Back", "Zurück"},
        {"Bell", "Glocke"},
        {"Bright", "Hell"},
        {"Calls", "Anrufe"},
        {"Cancel", "Abbrechen"},
        {"Code", "Kennwort"},
        {"Dark", "Dunkel"},
        {"Display", "Anzeige"},
        {"Enter", "Öffnen"},
        {"For administrators only", "Nur für Verwalter"},
        {"Forwarding", "Umleitung"},
        {"Language", "Sprache"},
        {"Mailbox", "Anrufbeantworter"},
        {"Melody", "Melodie"},
        {"Menu", "Menü"},
        {"Messages", "Nachrichten"},
        {"Missed calls", "Verpasst"},
        {"New", "Neu"},
        {"Number", "Nummer"},
        {"Old", "Alt"},
        {"On busy", "Bei Besetzt"},
        {"On no answer", "Nach Zeit"},
        {"Restart", "Neustart"},
        {"Saved", "Gespeichert"},
        {"Settings", "Einstellungen"},
        {"Silver", "Silber"},
        {"to", "an"},
    };
    const auto found = mLanguage == German ? german.find(key) : german.end();
    return found == german.end() ? key : found->second;
}

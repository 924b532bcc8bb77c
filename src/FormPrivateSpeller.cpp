#include "FormPrivate.h"

#include <SpellerMEG.h>
#include <VantoTextEditMEG.h>

// What the keys write and what stands in the menu below a text. The toolkit keeps these texts once for all forms.

namespace DisplayAPI {

namespace {

struct Template {
    const char* key;
    UString* text;
};

/// With a "?" behind the translation.
const Template translation_templates_1[] = {
    {"Keypad.2.lower.case", &VantoTextEditMEG::msKeypad2lower},
    {"Keypad.3.lower.case", &VantoTextEditMEG::msKeypad3lower},
    {"Keypad.4.lower.case", &VantoTextEditMEG::msKeypad4lower},
    {"Keypad.5.lower.case", &VantoTextEditMEG::msKeypad5lower},
    {"Keypad.6.lower.case", &VantoTextEditMEG::msKeypad6lower},
    {"Keypad.7.lower.case", &VantoTextEditMEG::msKeypad7lower},
    {"Keypad.8.lower.case", &VantoTextEditMEG::msKeypad8lower},
    {"Keypad.9.lower.case", &VantoTextEditMEG::msKeypad9lower},
    {"Keypad.2.restricted.lower.case", &VantoTextEditMEG::msKeypad2lowerRestricted},
    {"Keypad.3.restricted.lower.case", &VantoTextEditMEG::msKeypad3lowerRestricted},
    {"Keypad.4.restricted.lower.case", &VantoTextEditMEG::msKeypad4lowerRestricted},
    {"Keypad.5.restricted.lower.case", &VantoTextEditMEG::msKeypad5lowerRestricted},
    {"Keypad.6.restricted.lower.case", &VantoTextEditMEG::msKeypad6lowerRestricted},
    {"Keypad.7.restricted.lower.case", &VantoTextEditMEG::msKeypad7lowerRestricted},
    {"Keypad.8.restricted.lower.case", &VantoTextEditMEG::msKeypad8lowerRestricted},
    {"Keypad.9.restricted.lower.case", &VantoTextEditMEG::msKeypad9lowerRestricted},
    {"Keypad.2.upper.case", &VantoTextEditMEG::msKeypad2upper},
    {"Keypad.3.upper.case", &VantoTextEditMEG::msKeypad3upper},
    {"Keypad.4.upper.case", &VantoTextEditMEG::msKeypad4upper},
    {"Keypad.5.upper.case", &VantoTextEditMEG::msKeypad5upper},
    {"Keypad.6.upper.case", &VantoTextEditMEG::msKeypad6upper},
    {"Keypad.7.upper.case", &VantoTextEditMEG::msKeypad7upper},
    {"Keypad.8.upper.case", &VantoTextEditMEG::msKeypad8upper},
    {"Keypad.9.upper.case", &VantoTextEditMEG::msKeypad9upper},
    {"Keypad.2.restricted.upper.case", &VantoTextEditMEG::msKeypad2upperRestricted},
    {"Keypad.3.restricted.upper.case", &VantoTextEditMEG::msKeypad3upperRestricted},
    {"Keypad.4.restricted.upper.case", &VantoTextEditMEG::msKeypad4upperRestricted},
    {"Keypad.5.restricted.upper.case", &VantoTextEditMEG::msKeypad5upperRestricted},
    {"Keypad.6.restricted.upper.case", &VantoTextEditMEG::msKeypad6upperRestricted},
    {"Keypad.7.restricted.upper.case", &VantoTextEditMEG::msKeypad7upperRestricted},
    {"Keypad.8.restricted.upper.case", &VantoTextEditMEG::msKeypad8upperRestricted},
    {"Keypad.9.restricted.upper.case", &VantoTextEditMEG::msKeypad9upperRestricted},
    {"Speller.menu.OK", &SpellerMEG::msOK},
    {"Speller.menu.Mode", &SpellerMEG::msMode},
    {"Speller.menu.Move.cursor.left", &SpellerMEG::msLeft},
    {"Speller.menu.Move.cursor.right", &SpellerMEG::msRight},
    {"Speller.menu.Copy", &SpellerMEG::msCopy},
    {"Speller.menu.Paste", &SpellerMEG::msPaste},
    {"Speller.menu.Make.normal.call", &SpellerMEG::msNormalCall},
    {"Speller.menu.Pause", &SpellerMEG::msPause},
    {"Speller.menu.Make.consultation", &SpellerMEG::msConsult},
    {"Speller.menu.Clear.call", &SpellerMEG::msClearCall},
    {"Speller.menu.Cancel", &SpellerMEG::msCancel},
    {"Speller.menu.Delete", &SpellerMEG::msDelete},
};

/// The translation alone.
const Template translation_templates_2[] = {
    {"Text.input.mode.lowercase", &VantoTextEditMEG::msTextInputModeLowerCase},
    {"Text.input.mode.uppercase", &VantoTextEditMEG::msTextInputModeUpperCase},
    {"Text.input.mode.capitalised", &VantoTextEditMEG::msTextInputModeCapitalised},
    {"Text.input.mode.numeric", &VantoTextEditMEG::msTextInputModeNumeric},
};

}

void FormPrivate::setSpellerLanguage(TranslatorIfc* translator)
{
    if (!translator)
        return;
    mSpellerTranslator = translator;
    updateFormSpellerLang();
}

void FormPrivate::updateFormSpellerLang()
{
    for (const auto& [key, text] : translation_templates_1)
        *text = UString(TranslationInfo("", key, "?", mSpellerTranslator).getCompleteString());
    for (const auto& [key, text] : translation_templates_2)
        *text = UString(TranslationInfo(key, mSpellerTranslator).getCompleteString());
}

}

#include "KeypadTables.h"

#include "Types.h"
#include "VantoTextEditMEG.h"

#include <string>

using Edit = VantoTextEditMEG;

// The texts that the application writes

UString Edit::msKeypad2lower;
UString Edit::msKeypad2lowerRestricted;
UString Edit::msKeypad2upper;
UString Edit::msKeypad2upperRestricted;
UString Edit::msKeypad3lower;
UString Edit::msKeypad3lowerRestricted;
UString Edit::msKeypad3upper;
UString Edit::msKeypad3upperRestricted;
UString Edit::msKeypad4lower;
UString Edit::msKeypad4lowerRestricted;
UString Edit::msKeypad4upper;
UString Edit::msKeypad4upperRestricted;
UString Edit::msKeypad5lower;
UString Edit::msKeypad5lowerRestricted;
UString Edit::msKeypad5upper;
UString Edit::msKeypad5upperRestricted;
UString Edit::msKeypad6lower;
UString Edit::msKeypad6lowerRestricted;
UString Edit::msKeypad6upper;
UString Edit::msKeypad6upperRestricted;
UString Edit::msKeypad7lower;
UString Edit::msKeypad7lowerRestricted;
UString Edit::msKeypad7upper;
UString Edit::msKeypad7upperRestricted;
UString Edit::msKeypad8lower;
UString Edit::msKeypad8lowerRestricted;
UString Edit::msKeypad8upper;
UString Edit::msKeypad8upperRestricted;
UString Edit::msKeypad9lower;
UString Edit::msKeypad9lowerRestricted;
UString Edit::msKeypad9upper;
UString Edit::msKeypad9upperRestricted;

UString Edit::msTextInputModeLowerCase;
UString Edit::msTextInputModeUpperCase;
UString Edit::msTextInputModeCapitalised;
UString Edit::msTextInputModeNumeric;

namespace {

constexpr int FirstLetterKey = '2';
constexpr int LastLetterKey = '9';

/// The tables of a key: lower, restricted lower, upper, restricted upper.
struct KeyTables {
    const UString* translated[4];
    const char* own[4];
};

constexpr const char* tableNames[4]
    = {".lower.case", ".restricted.lower.case", ".upper.case", ".restricted.upper.case"};

const KeyTables letterKeys[] = {
    // clang-format off
    {{&Edit::msKeypad2lower, &Edit::msKeypad2lowerRestricted, &Edit::msKeypad2upper, &Edit::msKeypad2upperRestricted},
        {"abc2äàáâãåæç", "abc2", "ABC2ÄÀÁÂÃÅÆÇ", "ABC2"}},
    {{&Edit::msKeypad3lower, &Edit::msKeypad3lowerRestricted, &Edit::msKeypad3upper, &Edit::msKeypad3upperRestricted},
        {"def3éèêë", "def3", "DEF3ÉÈÊË", "DEF3"}},
    {{&Edit::msKeypad4lower, &Edit::msKeypad4lowerRestricted, &Edit::msKeypad4upper, &Edit::msKeypad4upperRestricted},
        {"ghi4ìíîï", "ghi4", "GHI4ÌÍÎÏ", "GHI4"}},
    {{&Edit::msKeypad5lower, &Edit::msKeypad5lowerRestricted, &Edit::msKeypad5upper, &Edit::msKeypad5upperRestricted},
        {"jkl5", "jkl5", "JKL5", "JKL5"}},
    {{&Edit::msKeypad6lower, &Edit::msKeypad6lowerRestricted, &Edit::msKeypad6upper, &Edit::msKeypad6upperRestricted},
        {"mno6öñòóôõø", "mno6", "MNO6ÖÑÒÓÔÕØ", "MNO6"}},
    {{&Edit::msKeypad7lower, &Edit::msKeypad7lowerRestricted, &Edit::msKeypad7upper, &Edit::msKeypad7upperRestricted},
        {"pqrs7ß", "pqrs7", "PQRS7ß", "PQRS7"}},
    {{&Edit::msKeypad8lower, &Edit::msKeypad8lowerRestricted, &Edit::msKeypad8upper, &Edit::msKeypad8upperRestricted},
        {"tuv8üùúû", "tuv8", "TUV8ÜÙÚÛ", "TUV8"}},
    {{&Edit::msKeypad9lower, &Edit::msKeypad9lowerRestricted, &Edit::msKeypad9upper, &Edit::msKeypad9upperRestricted},
        {"wxyz9ýÿ", "wxyz9", "WXYZ9ÝŸ", "WXYZ9"}},
    // clang-format on
};

/// What the keys without letters type.
UString signs(int key, KeypadTables::Range range)
{
    const bool isFull = range == KeypadTables::Range::Full;
    switch (key) {
    case UGlobal::Key0: return UString(std::string(isFull ? " 0+" : "0"));
    case UGlobal::Key0 + 1: return UString(std::string(isFull ? ".,-?!1'\":;_/@" : ".-_@1"));
    case UGlobal::KeyStar: return UString(std::string(isFull ? "*+#/()=&%<>€$" : "*"));
    default: return UString();
    }
}

UString withoutQuestionMark(const UString& text)
{
    const std::size_t length = text.length();
    return length > 0 && text[length - 1] == '?' ? text.mid(0, length - 1) : text;
}

}

UString KeypadTables::translated(const UString& text, const char* key, const char* own)
{
    const UString plain = withoutQuestionMark(text);
    return plain.isEmpty() || plain == UString(std::string(key)) ? UString(std::string(own)) : text;
}

UString KeypadTables::characters(int key, Case letterCase, Range range)
{
    if (key < FirstLetterKey || key > LastLetterKey)
        return signs(key, range);
    const KeyTables& tables = letterKeys[key - FirstLetterKey];
    const int table = (letterCase == Case::Upper ? 2 : 0) + (range == Range::Restricted ? 1 : 0);
    const std::string name = "Keypad." + std::string(1, static_cast<char>(key)) + tableNames[table];
    return translated(withoutQuestionMark(*tables.translated[table]), name.c_str(), tables.own[table]);
}

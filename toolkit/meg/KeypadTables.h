#pragma once

#include "UString.h"

/// What the dial keys type: the translated tables of VantoTextEditMEG, and the toolkit's own where there are none.
namespace KeypadTables {

enum class Case {
    Lower,
    Upper,
};

/// Unrestricted tables have the letters of many languages, restricted ones those of the keys alone.
enum class Range {
    Full,
    Restricted,
};

/// The characters of a key in the order of tapping; empty for a key that types none, such as the hash.
UString characters(int key, Case letterCase, Range range);

/// The translation of a text, or `own` while it is empty or still its key. One "?" behind the key is not looked at.
UString translated(const UString& text, const char* key, const char* own);

}

#pragma once

#include <TranslationInfo.h>
#include <UString.h>

namespace DisplayAPI {

/// The labels of the rows that list boxes have of their own, in a translator's words.
inline UString backText(TranslatorIfc* translator)
{
    return UString(TranslationInfo("", "Back", "?", translator).getCompleteString());
}

inline UString deleteText(TranslatorIfc* translator)
{
    return UString(TranslationInfo("", "Speller.menu.Delete", "?", translator).getCompleteString());
}

}

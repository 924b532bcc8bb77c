#pragma once

// A translated text, TranslationInfo, and the application's translator, TranslatorIfc. Both are classes of the
// toolkit that applications make and implement, and stand in the global namespace:
//
//     class Translator : public TranslatorIfc {
//     public:
//         std::string translate(std::string key) override;
//     };
//
//     popup.setText(new TranslationInfo("Delete.entry", &translator)); // the popup's from now on
//
// A screen that is given a TranslationInfo owns it, and reads it again when the locale changes. The translator
// stays the application's and must outlive every TranslationInfo that names it.

#include <TranslationInfo.h>

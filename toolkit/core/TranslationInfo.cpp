#include "TranslationInfo.h"

#include <utility>

TranslatorIfc::~TranslatorIfc() = default;

TranslationInfo::TranslationInfo(std::string key, TranslatorIfc* translator)
    : TranslationInfo({}, std::move(key), {}, translator)
{
}

TranslationInfo::TranslationInfo(std::string prefix, std::string key, std::string suffix, TranslatorIfc* translator)
    : mPrefix(std::move(prefix))
    , mKey(std::move(key))
    , mSuffix(std::move(suffix))
    , mTranslator(translator)
{
}

std::string TranslationInfo::getString() const
{
    return mTranslator ? mTranslator->translate(mKey) : mKey;
}

std::string TranslationInfo::getCompleteString() const
{
    return mPrefix + getString() + mSuffix;
}

#include "SliderItemPrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <cstdint>
#include <cstdlib>

namespace DisplayAPI {

namespace {

/// The low 16 bits of the number that a text begins with, without a sign; 0 without a number.
int numberOf(const std::string& text)
{
    return static_cast<std::uint16_t>(std::strtol(text.c_str(), nullptr, 10));
}

}

SliderItemPrivate::SliderItemPrivate(TranslationInfo* label)
    : mRow(VantoUApplication::getCurrentApplication() ? new FormSliderItemMEG(UString(), nullptr) : nullptr)
{
    assertGuiThread();
    setLabel(label);
    if (mRow)
        joinApplication(this);
}

SliderItemPrivate::~SliderItemPrivate()
{
    assertGuiThread();
}

// Numbers

std::string SliderItemPrivate::getMaxValue()
{
    return std::to_string(mRow ? mRow->sliderMaximum() : 0);
}

std::string SliderItemPrivate::getMinValue()
{
    return std::to_string(mRow ? mRow->sliderMinimum() : 0);
}

void SliderItemPrivate::setMaxValue(const std::string& value)
{
    if (mRow)
        mRow->sliderMaximum(numberOf(value));
}

void SliderItemPrivate::setMinValue(const std::string& value)
{
    if (mRow)
        mRow->sliderMinimum(numberOf(value));
}

std::string SliderItemPrivate::getValue()
{
    return mRow ? mRow->valueText().toUTF8() : std::string();
}

void SliderItemPrivate::setValue(std::string value)
{
    if (mRow)
        mRow->sliderValue(numberOf(value));
}

void SliderItemPrivate::setInterval(std::string interval)
{
    if (mRow)
        mRow->sliderStep(numberOf(interval));
}

void SliderItemPrivate::setRingerVolumeBarLimit(int limit)
{
    if (mRow)
        mRow->setRingerVolumeBarLimit(limit);
}

// Label

void SliderItemPrivate::showLabel(const std::string& label)
{
    if (mRow)
        mRow->setLabel(UString(label));
}

void SliderItemPrivate::localeChanged(std::string)
{
    if (mLabelInfo)
        showLabel(mLabelInfo.completeString());
}

// State

void SliderItemPrivate::setReadOnly(bool readOnly)
{
    if (mRow)
        mRow->setReadOnlyMode(readOnly);
}

bool SliderItemPrivate::isReadOnly()
{
    return mRow && mRow->getReadOnlyMode();
}

bool SliderItemPrivate::isEditable()
{
    return mRow && mRow->getEditing();
}

void SliderItemPrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged("");
}

}

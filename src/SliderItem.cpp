#include <DisplayAPI/SliderItem.h>
#include <DisplayAPI/SliderItemPrivateIfc.h>

#include "Road.h"
#include "SliderItemPrivate.h"

#include <TranslationInfo.h>

namespace DisplayAPI {

enum class SliderItem::Request : int {
    Create = 2,
    Destroy = 3,
    GetMaxValue = 4,
    SetMaxValue = 5,
    SetMinValue = 6,
    GetValue = 7,
    SetValue = 8,
    SetLabel = 9,
    SetLabelTranslation = 10,
    SetInterval = 11,
    SetReadOnly = 12,
    IsReadOnly = 13,
    GetMinValue = 15,
    IsEditable = 16,
    SetRingerVolumeBarLimit = 17,
};

SliderItem::SliderItem(TranslationInfo* label)
{
    create(label);
}

SliderItem::~SliderItem()
{
    destroy();
}

void SliderItem::create(TranslationInfo* label)
{
    if (!Road::wait(this, Request::Create, given(label)))
        return;
    mName = "SliderItem";
    mPrivate = std::make_unique<SliderItemPrivate>(label);
}

void SliderItem::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

ItemPrivateIfc* SliderItem::getPrivateImpl()
{
    return mPrivate.get();
}

// Numbers

std::string SliderItem::getMinValue()
{
    std::string value;
    if (auto* half = Road::wait(this, mPrivate, Request::GetMinValue, result(value)))
        value = half->getMinValue();
    return value;
}

void SliderItem::setMinValue(const std::string& value)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetMinValue, value))
        half->setMinValue(value);
}

std::string SliderItem::getMaxValue()
{
    std::string value;
    if (auto* half = Road::wait(this, mPrivate, Request::GetMaxValue, result(value)))
        value = half->getMaxValue();
    return value;
}

void SliderItem::setMaxValue(const std::string& value)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetMaxValue, value))
        half->setMaxValue(value);
}

std::string SliderItem::getValue()
{
    std::string value;
    if (auto* half = Road::wait(this, mPrivate, Request::GetValue, result(value)))
        value = half->getValue();
    return value;
}

void SliderItem::setValue(const std::string& value)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetValue, value))
        half->setValue(value);
}

void SliderItem::setInterval(const std::string& interval)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetInterval, interval))
        half->setInterval(interval);
}

void SliderItem::setRingerVolumeBarLimit(int limit)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetRingerVolumeBarLimit, limit))
        half->setRingerVolumeBarLimit(limit);
}

// Label

void SliderItem::setLabel(const std::string& label)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLabel, label))
        half->setLabel(label);
}

void SliderItem::setLabel(TranslationInfo* label)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetLabelTranslation, given(label)))
        half->setLabel(label);
}

// State

void SliderItem::setReadOnly(bool readOnly)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetReadOnly, readOnly))
        half->setReadOnly(readOnly);
}

bool SliderItem::isReadOnly()
{
    bool isReadOnly = false;
    if (auto* half = Road::wait(this, mPrivate, Request::IsReadOnly, result(isReadOnly)))
        isReadOnly = half->isReadOnly();
    return isReadOnly;
}

bool SliderItem::isEditable()
{
    bool isEditable = false;
    if (auto* half = Road::wait(this, mPrivate, Request::IsEditable, result(isEditable)))
        isEditable = half->isEditable();
    return isEditable;
}

void SliderItem::localeChanged(std::string) { }

// Road across threads

void SliderItem::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(translation); break;
    case Request::Destroy: destroy(); break;
    case Request::GetMaxValue: answer(event.stringResult, getMaxValue()); break;
    case Request::SetMaxValue: setMaxValue(text); break;
    case Request::SetMinValue: setMinValue(text); break;
    case Request::GetValue: answer(event.stringResult, getValue()); break;
    case Request::SetValue: setValue(text); break;
    case Request::SetLabel: setLabel(text); break;
    case Request::SetLabelTranslation: setLabel(translation); break;
    case Request::SetInterval: setInterval(text); break;
    case Request::SetReadOnly: setReadOnly(event.boolParam1); break;
    case Request::IsReadOnly: answer(event.boolResult, isReadOnly()); break;
    case Request::GetMinValue: answer(event.stringResult, getMinValue()); break;
    case Request::IsEditable: answer(event.boolResult, isEditable()); break;
    case Request::SetRingerVolumeBarLimit: setRingerVolumeBarLimit(event.intParam1); break;
    }
    signalComplete(event);
}

}

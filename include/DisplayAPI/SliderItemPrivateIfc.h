#pragma once

#include <DisplayAPI/Export.h>
#include <DisplayAPI/ItemPrivateIfc.h>

#include <UWidget.h>

#include <string>

class TranslationInfo;

namespace DisplayAPI {

/// The half of a slider on the GUI thread, as its handle sees it. Threads: GUI thread only.
class DISPLAYAPI_EXPORT SliderItemPrivateIfc : public ItemPrivateIfc, public UWidget {
public:
    virtual std::string getMaxValue() = 0;
    virtual std::string getMinValue() = 0;
    virtual void setMaxValue(const std::string& value) = 0;
    virtual void setMinValue(const std::string& value) = 0;
    virtual std::string getValue() = 0;
    virtual void setValue(std::string value) = 0;
    virtual void setLabel(const std::string& label) = 0;
    virtual void setLabel(TranslationInfo* label) = 0;
    virtual void setInterval(std::string interval) = 0;
    virtual void setReadOnly(bool readOnly) = 0;
    virtual bool isReadOnly() = 0;
    virtual bool isEditable() = 0;
    virtual void setRingerVolumeBarLimit(int limit) = 0;
    void event(UEvent* event) override = 0;

    /// Without effect: the row is shown by its form.
    virtual void show() = 0;
};

}

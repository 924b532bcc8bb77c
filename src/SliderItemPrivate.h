#pragma once

#include <DisplayAPI/SliderItemPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <FormItemMEG.h>

namespace DisplayAPI {

/// The slider on the GUI thread: a FormSliderItemMEG with its label.
///
/// Without an application there is no row, and a form that holds it may delete it; then everything here changes nothing
/// that can be seen.
class SliderItemPrivate final : public SliderItemPrivateIfc {
public:
    /// Takes the translation over; null is an empty label.
    explicit SliderItemPrivate(TranslationInfo* label);
    ~SliderItemPrivate() override;

    // Numbers

    std::string getMaxValue() override;
    std::string getMinValue() override;
    void setMaxValue(const std::string& value) override;
    void setMinValue(const std::string& value) override;
    std::string getValue() override;
    void setValue(std::string value) override;
    void setInterval(std::string interval) override;
    void setRingerVolumeBarLimit(int limit) override;

    // Label

    void setLabel(const std::string& label) override { showLabel(mLabelInfo.show(label)); }
    void setLabel(TranslationInfo* label) override { showLabel(mLabelInfo.show(label)); }
    void localeChanged(std::string locale) override;

    // State

    void setReadOnly(bool readOnly) override;
    bool isReadOnly() override;
    bool isEditable() override;

    // Life in a form

    FormItemIfc* getWidget() override { return mRow; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }

    /// The row stands in no form any more.
    void gainOwnership() { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void event(UEvent* event) override;
    void show() override { }

private:
    void showLabel(const std::string& label);

    TranslationHolder mLabelInfo;
    FormSliderItemMEG* mRow;
    OwnershipDelegate<FormSliderItemMEG> mOwnership{&mRow};
};

}

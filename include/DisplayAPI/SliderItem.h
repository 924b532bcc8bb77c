#pragma once

#include <DisplayAPI/Item.h>

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class SliderItemPrivateIfc;

/// A row of a form with a number between two limits, drawn as a bar: OK lets the keys move it, by one step each, and
/// OK ends that. Each step is told to the form's item-state listeners.
///
/// Numbers come as decimal texts. Of each its low 16 bits are taken, without a sign, so "-1" is 65535; a text that
/// doesn't begin with a number is 0. Limits, step and value are not compared when they are set; the keys bring the
/// value back between the limits.
///
/// Threads: any. Each call returns after it has run on the GUI thread.
/// Ownership: the application's, until a form takes it; the translations handed in become the item's.
/// Errors: an item that was made without an application has no row: it changes nothing that can be seen, answers "0"
/// for the limits, an empty value and false. One that was made after the event loop had ended answers empty texts and
/// false.
/// Screen text: a subitem "FormSliderItem" of its form.
class DISPLAYAPI_EXPORT SliderItem : public Item {
public:
    /// A slider from 0 to 100 in steps of 1, at 0. A null label is empty.
    explicit SliderItem(TranslationInfo* label);
    ~SliderItem() override;

    // Numbers

    std::string getMinValue();
    void setMinValue(const std::string& value);
    std::string getMaxValue();
    void setMaxValue(const std::string& value);

    /// The value as the telephone writes it: a decimal number, whatever setValue() was given.
    std::string getValue();
    void setValue(const std::string& value);

    /// By how much a key moves the value.
    void setInterval(const std::string& interval);

    /// The lowest value at which the bar shows something; 0 at first.
    void setRingerVolumeBarLimit(int limit);

    // Label

    void setLabel(const std::string& label);

    /// A text that follows the locale. Null is an empty one.
    void setLabel(TranslationInfo* label);

    // State

    /// A read-only slider can't be moved.
    void setReadOnly(bool readOnly) override;
    bool isReadOnly() override;

    /// True while the keys move it.
    bool isEditable();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;

    /// A SliderItemPrivateIfc, or null until it has been made.
    ItemPrivateIfc* getPrivateImpl() override;

    /// Without effect, since the half hears of the locale by itself.
    void localeChanged(std::string locale) override;

private:
    enum class Request : int;

    void create(TranslationInfo* label);
    void destroy();

    std::unique_ptr<SliderItemPrivateIfc> mPrivate;
};

}

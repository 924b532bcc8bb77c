#pragma once

#include "FormItemIfc.h"
#include "UString.h"
#include "VantoListBoxItemMEG.h"

#include <memory>
#include <string>
#include <vector>

class ContextMenuMEG;

/// The value of a form's row.
class TOOLKIT_EXPORT FormValueMEG {
public:
    FormValueMEG() = default;
    virtual ~FormValueMEG();
    FormValueMEG(const FormValueMEG&) = delete;
    FormValueMEG& operator=(const FormValueMEG&) = delete;

    virtual UString getText() const { return mText; }
    virtual void setText(const UString& text) { mText = text; }

private:
    UString mText;
};

/// A value that the user types without being shown it. Its text is in clear: whoever writes it hides it.
class TOOLKIT_EXPORT InputPromptMEG : public FormValueMEG { };

/// What the list of a form knows of its rows: a label above a value.
class TOOLKIT_EXPORT FormListBoxItemMEG : public VantoListBoxItemMEG {
public:
    using VantoListBoxItemMEG::VantoListBoxItemMEG;

    virtual bool getReadOnlyMode() const = 0;

    /// The value; null for a row that has a label alone.
    virtual FormValueMEG* getValue() const = 0;

    /// A row with a value takes both lines, the value on the second.
    int lineCount() const override { return getValue() ? 2 : 1; }
    int highlightedLine() const override { return getValue() ? 1 : 0; }
};

/// A row of a form: a text that the user types, a choice from a list, or a command.
///
/// Setters are silent. Threads: GUI thread only.
/// Ownership: the form's while it is a row there, else the maker's. It owns its value and its list of choices.
class TOOLKIT_EXPORT FormItemMEG : public FormListBoxItemMEG, public FormItemIfc {
public:
    /// The flag is stored for whoever asks.
    FormItemMEG(const UString& label, const UString& value, FieldType type, bool flag);
    ~FormItemMEG() override;

    bool flag() const { return mFlag; }

    // Label and value

    void setLabel(const UString& label) { setText(label); }
    UString getLabel() const { return getText(); }
    void setValueText(const UString& text) override;
    UString valueText() const override;
    FormValueMEG* getValue() const override;

    /// The value as the glass shows it.
    virtual UString shownValue() const { return valueText(); }

    // Kind and state

    void setFieldType(FieldType type) override;
    FieldType getFieldType() const override { return mType; }

    /// The most characters that the user can type; 0 or less for no limit.
    void setMaxFieldLength(int characters) { mMaxFieldLength = characters; }
    int maxFieldLength() const { return mMaxFieldLength; }

    /// While set, OK on the row tells the application and opens nothing.
    void setInformAppOnOk(bool inform) { mInformsOnOk = inform; }
    bool informsAppOnOk() const { return mInformsOnOk; }

    /// A read-only row stands in brackets and can't be edited. If the user is about it, what was begun is given up.
    void setReadOnlyMode(bool readOnly);
    bool getReadOnlyMode() const override { return isReadonly(); }

    /// True while the user edits the row; set by the form.
    bool getEditing() const { return mIsEditing; }
    void setEditing(bool editing);

    // Choices

    /// Attaches a list of choices and takes it over; an earlier one is deleted, with its choices.
    void setContextMenu(ContextMenuMEG* menu);
    ContextMenuMEG* selectionList() const override { return mMenu; }

    /// Adds a choice: its text in the list, its text as a value, and a number for its owner. Without a list nothing
    /// happens.
    void addCommand(const std::string& text, const std::string& value, long handle);

    /// Deletes the choices.
    void clear();

    /// The index before one has been selected.
    static constexpr unsigned int NoSelection = static_cast<unsigned int>(-1);

    /// Makes the choice at an index the value. An index without a choice is kept and changes no value.
    void setSelectionIndex(unsigned int index);
    unsigned int getSelectionIndex() const { return mSelectionIndex; }

    /// Makes the choice with this number the value. A number that no choice has is kept and changes no value.
    void setSelectionCommand(long handle);
    long getSelectionCommand() const { return mSelectionCommand; }

    /// Whether the list opens on the choice that is the value; true at first. Else it opens on its first row.
    void displayCurrentSelection(bool display) { mOpensOnSelection = display; }
    bool displaysCurrentSelection() const { return mOpensOnSelection; }

    // Overrides

    int getItemType() const override { return FormRow; }
    void childLeft(UWidget* child) override;
    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;

    /// The value behind the label, which has half of the line at most.
    void paintInOneLine(UPainter& painter, int line, int column, int columns) const override;

protected:
    FormItemMEG(const UString& label, FieldType type, std::unique_ptr<FormValueMEG> value);

    /// Draws the value in these columns of the second line.
    virtual void paintValue(UPainter& painter, int line, int column, int columns) const;

private:
    /// What a choice was added with.
    struct Choice {
        long handle;
        UString text;
        UString value;
    };

    void takeValueOf(const VantoListBoxItemMEG& row);

    std::unique_ptr<FormValueMEG> mValue;
    FieldType mType;
    bool mFlag = false;
    int mMaxFieldLength = 0;
    bool mInformsOnOk = false;
    bool mIsEditing = false;

    ContextMenuMEG* mMenu = nullptr; // a child
    std::vector<Choice> mChoices;
    unsigned int mSelectionIndex = NoSelection;
    long mSelectionCommand = 0;
    bool mOpensOnSelection = true;
};

/// A row whose value is hidden.
class TOOLKIT_EXPORT PasswordFormItemMEG : public FormItemMEG {
public:
    PasswordFormItemMEG(const UString& label, const UString& value);

    /// As many asterisks as the text has characters.
    static UString getAsterisks(const UString& text);

    /// Always PasswordField, whatever was set: the value must not be read from another place.
    FieldType getFieldType() const override { return PasswordField; }
    UString shownValue() const override { return getAsterisks(valueText()); }
    int getItemType() const override { return PasswordRow; }
};

/// A row whose value is a number between two limits, drawn as a bar.
class TOOLKIT_EXPORT FormSliderItemMEG : public FormItemMEG {
public:
    explicit FormSliderItemMEG(const UString& label, UAgent* listener);

    // The numbers, taken as they come: 0 to 100 in steps of 1 at first

    void sliderMinimum(int minimum);
    int sliderMinimum() const { return mMinimum; }
    void sliderMaximum(int maximum);
    int sliderMaximum() const { return mMaximum; }
    void sliderValue(int value);
    int sliderValue() const { return mSliderValue; }
    void sliderStep(int step) { mStep = step; }
    int sliderStep() const { return mStep; }

    /// The lowest value for which the bar shows something; 0 at first.
    void setRingerVolumeBarLimit(int limit);

    /// Moves the value by one step, up for 1 and down for -1, and back between the limits. Returns whether it moved.
    bool stepValue(int direction);

    /// The value as a decimal number.
    UString valueText() const override;

    /// Takes a decimal number; another text is 0.
    void setValueText(const UString& text) override;

    int getItemType() const override { return SliderRow; }

protected:
    void paintValue(UPainter& painter, int line, int column, int columns) const override;

private:
    int mMinimum = 0;
    int mMaximum = 100;
    int mSliderValue = 0;
    int mStep = 1;
    int mBarLimit = 0;
};

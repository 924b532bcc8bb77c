#pragma once

#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/PopupTextFieldPrivateIfc.h>

#include "PopupPrivate.h"

#include <PopupDialerMEG.h>

class FormItemIfc;

namespace DisplayAPI {

/// The popup for a text on the GUI thread: a PopupDialerMEG that takes letters, and a row for each choice.
class PopupTextFieldPrivate final : public ChoicePopupPrivate<PopupTextFieldPrivateIfc, PopupDialerMEG> {
public:
    /// A field that is null or has died is none.
    PopupTextFieldPrivate(Displayable* parent, TextField* edited);

    // Text

    std::string getText() override;
    void clearText() override;
    void setLabel(TranslationInfo* label) override;
    void setFieldType(const TextField::FieldType& type) override;
    void setTextEditMode(editMode mode) override;
    editMode getTextEditMode() override { return mEditMode; }
    void localeChanged(std::string locale);

    // Choices

    void addCommand(MenuCommand* command) override;
    void clearCommands() override;
    void setDefaultCommand(MenuCommand* command) override { makeDefault(command); }

    // Listeners

    void addItemStateListener(ItemStateListener* listener) override { mItemStateListeners.add(listener); }
    std::vector<ItemStateListener*> getItemStateListeners() const override { return mItemStateListeners.all(); }
    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }

    /// Threads: any; the display is told on the GUI thread alone.
    void removeCommandListener(CommandListener* listener) override;
    std::vector<CommandListener*> getCommandListeners() const override { return mCommandListeners.all(); }

    // Life on the screen

    int widgetPosition() override { return 0; }
    void show() override;
    void dismiss() override;
    void setTimeout(int milliseconds) override;
    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

private:
    /// Stands on the toolkit's row of the field: a change to or from a password makes another row.
    struct RowWatch : LifeNode {
        explicit RowWatch(PopupTextFieldPrivate& watching)
            : popup(watching)
        {
        }

        PopupTextFieldPrivate& popup;
        const FormItemIfc* row = nullptr; // only its address counts
    };

    TextField* field() const { return mField.get(); }
    void followRow();
    void hidePassword();
    void showLabel();
    void setInputModeOnFirstCommand();
    UString createStringForFirstCommandPlusInputMode();
    void popupCameUp();
    void popupWentDown();
    void textEntered();

    Displayable* mParent;
    ListenerList<ItemStateListener> mItemStateListeners;
    Living<TextField> mField;
    RowWatch mRowWatch{*this};
    bool mWasPassword = false; // once is for ever: what was written then must not come out
    UString mFirstCommandText; // of row 0, without the name of the mode
    editMode mEditMode = Capitalised;
};

}

#pragma once

#include "Words.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupNotification.h>
#include <DisplayAPI/PopupTextField.h>
#include <DisplayAPI/SelectionField.h>
#include <DisplayAPI/SliderItem.h>
#include <DisplayAPI/TextField.h>

#include <string>

namespace DisplayAPI {
class Display;
}

/// The settings of a telephone: a form with a row of each kind, one of which is written in a popup. Save keeps them,
/// and changes the language; Left gives them up.
class Settings : public DisplayAPI::CommandListener, public DisplayAPI::ItemStateListener {
public:
    explicit Settings(DisplayAPI::Display& display);

    /// Shows the list that leads to the form until the display is shut down. Threads: GUI thread.
    void run();

    // What the user does. Threads: a worker thread

    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    /// A row of the form has got another value.
    void itemStateChanged(DisplayAPI::Item* item) override;

private:
    struct Values {
        std::string name = "Telephone";
        std::string extension = "4711";
        std::string pin;
        int language = 0;
        std::string volume = "6";
        std::string note;
    };

    DisplayAPI::TextField& addText(const char* label, DisplayAPI::TextField::FieldType type);
    DisplayAPI::SelectionField& addLanguages();
    DisplayAPI::SliderItem& addVolume();
    void useForm(DisplayAPI::Command* command);
    void useNote(DisplayAPI::Command* command);
    void load();
    void save();

    DisplayAPI::Display& mDisplay;
    Words mWords;
    Values mValues;
    DisplayAPI::MenuCommand mEnglish{mWords.text("English"), 1};
    DisplayAPI::MenuCommand mGerman{mWords.text("German"), 2};
    DisplayAPI::MenuCommand mSave{mWords.text("Save", "?"), 3};
    DisplayAPI::MenuCommand mTake{mWords.text("Take it", "?"), 4};
    DisplayAPI::MenuCommand mLeave{mWords.text("Leave it", "?"), 5};
    DisplayAPI::List mList{0};
    DisplayAPI::Form mForm{DisplayAPI::Form::Proportion0}; // owns its rows
    DisplayAPI::TextField& mName;
    DisplayAPI::TextField& mExtension;
    DisplayAPI::TextField& mPin;
    DisplayAPI::SelectionField& mLanguage;
    DisplayAPI::SliderItem& mVolume;
    DisplayAPI::TextField& mNote;
    DisplayAPI::TextField& mState;
    DisplayAPI::PopupTextField mNoteBox;
    DisplayAPI::PopupNotification mNotice;
};

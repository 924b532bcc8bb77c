#include "Settings.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupDialer.h>

using namespace DisplayAPI;

namespace {

constexpr int NameLength = 20;
constexpr int NoticeTime = 3000; // milliseconds

}

Settings::Settings(Display& display)
    : mDisplay(display)
    , mWords(display)
    , mName(addText("Name", TextField::AnyText))
    , mExtension(addText("Extension", TextField::Number))
    , mPin(addText("PIN", TextField::Password))
    , mLanguage(addLanguages())
    , mVolume(addVolume())
    , mNote(addText("Note", TextField::AnyText))
    , mState(addText("State", TextField::AnyText))
    , mNoteBox(&mNote, true)
{
    mList.append(new ListItem(mWords.text("Settings"), true));
    mList.addCommandListener(this);

    mName.setMaxFieldLength(NameLength);
    mNote.setInformAppOnOk(true); // it is written in a popup
    mState.setReadOnlyMode(true);
    mForm.setTitle(mWords.text("Settings"));
    mForm.addCommand(&mSave);
    mForm.addCommandListener(this);
    mForm.addItemStateListener(this);

    mNoteBox.addCommand(&mTake);
    mNoteBox.addCommand(&mLeave);
    mNoteBox.addCommandListener(this);
    mNotice.setType(PopupNotification::SUCCESS);
    mNotice.setTimeout(NoticeTime);
    load();
}

TextField& Settings::addText(const char* label, TextField::FieldType type)
{
    auto* field = new TextField(mWords.text(label, ":"), TextField::IconImage(), nullptr, type, false);
    mForm.append(field);
    return *field;
}

SelectionField& Settings::addLanguages()
{
    auto* field = new SelectionField(mWords.text("Language", ":"), &mEnglish, &mForm, true);
    field->appendSelection(&mEnglish);
    field->appendSelection(&mGerman);
    mForm.append(field);
    return *field;
}

SliderItem& Settings::addVolume()
{
    auto* slider = new SliderItem(mWords.text("Volume", ":"));
    slider->setMaxValue("10");
    mForm.append(slider);
    return *slider;
}

void Settings::run()
{
    mDisplay.setCurrent(&mList);
    mDisplay.show();
    mDisplay.exec();
}

void Settings::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mList && command == List::SELECT_COMMAND()) {
        mForm.setSelected(&mName);
        mDisplay.setCurrent(&mForm);
    } else if (displayable == &mForm) {
        useForm(command);
    } else if (displayable == &mNoteBox) {
        useNote(command);
    }
}

void Settings::useForm(Command* command)
{
    if (command == &mSave) {
        save();
    } else if (command == Form::OK_COMMAND()) {
        mDisplay.setCurrent(&mNoteBox);
    } else if (command == Form::BACK_COMMAND()) {
        load();
        mDisplay.setCurrent(&mList);
    }
}

void Settings::useNote(Command* command)
{
    // It has gone by itself then.
    if (command == PopupConfirm::HIDDEN_COMMAND())
        return;
    if (command == &mTake) {
        mNote.setString(mNoteBox.getText());
        itemStateChanged(&mNote);
    }
    mNoteBox.dismiss();
}

void Settings::itemStateChanged(Item*)
{
    mState.setString(mWords.text("changed"));
}

void Settings::load()
{
    mName.setString(mValues.name);
    mExtension.setString(mValues.extension);
    mPin.setString(mValues.pin);
    mLanguage.setSelectionIndex(mValues.language);
    mVolume.setValue(mValues.volume);
    mNote.setString(mValues.note);
    mState.setString(mWords.text("saved"));
    mList.setTitle(mValues.name);
}

void Settings::save()
{
    mValues = {mName.getString(), mExtension.getString(), mPin.getString(), mLanguage.getSelectionIndex(),
        mVolume.getValue(), mNote.getString()};
    load();
    const bool isGerman = mLanguage.getSelectionCommand() == &mGerman;
    mWords.speakGerman(isGerman);
    mDisplay.localeChanged(isGerman ? "de_DE" : "en_US");
    // A form does not read the texts of its commands again.
    mForm.clearCommands();
    mForm.addCommand(&mSave);
    mDisplay.setCurrent(&mList);
    mNotice.setText(mWords.text("Settings saved"));
    mDisplay.setCurrent(&mNotice);
}

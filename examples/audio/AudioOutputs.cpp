#include "AudioOutputs.h"

#include <DisplayAPI/Display.h>
#include <DisplayAPI/ListItem.h>

using namespace DisplayAPI;

AudioOutputs::AudioOutputs(Display& display)
    : mDisplay(display)
{
    mList.setTitle("Audio output");
    for (const char* name : {"Speaker", "HeadSet", "Handset", "Bluetooth"}) {
        mOutputs.push_back({name, new ListItem(name, true)});
        mList.append(mOutputs.back().row);
    }
    use(mOutputs.front());
    mList.addCommandListener(this);

    mQuestion.setState(PopupConfirm::Question);
    mQuestion.addCommand(&mYes);
    mQuestion.addCommand(&mNo);
    mQuestion.addCommandListener(this);
}

void AudioOutputs::run()
{
    mDisplay.setCurrent(&mList);
    mDisplay.show();
    mDisplay.exec();
}

void AudioOutputs::commandAction(Command* command, Displayable* displayable)
{
    if (displayable == &mList && command == List::SELECT_COMMAND())
        ask();
    if (displayable != &mQuestion || command == PopupConfirm::HIDDEN_COMMAND())
        return;
    if (command == &mYes)
        use(*mAskedFor);
    // Also for No and for Left: the question stays until somebody takes it away.
    mQuestion.dismiss();
}

void AudioOutputs::ask()
{
    const int index = mList.getSelectedIndex();
    if (index < 0)
        return; // the display has been shut down meanwhile
    mAskedFor = &mOutputs.at(static_cast<std::size_t>(index));
    mQuestion.setText("Use " + mAskedFor->name + "?");
    mDisplay.setCurrent(&mQuestion);
}

void AudioOutputs::use(Output& output)
{
    if (mUsed)
        mUsed->row->setText(mUsed->name);
    mUsed = &output;
    mUsed->row->setText(mUsed->name + " (in use)");
}

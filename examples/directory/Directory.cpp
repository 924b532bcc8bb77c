#include "Directory.h"

#include <DisplayAPI/CallLogMainItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/Display.h>

#include <utility>

using namespace DisplayAPI;

namespace {

enum Row {
    Names,
    CallLog,
    Lines,
    Tones,
    Help,
};
constexpr const char* RowNames[] = {"Names", "Call log", "Lines", "Ring tone", "Help"};
constexpr const char* ToneNames[] = {"Classic", "Chime", "Marimba", "Silent"};
constexpr const char* LineNumbers[] = {"4711", "4712", "4713"};
constexpr int NoticeTime = 3000; // milliseconds

constexpr std::pair<const char*, const char*> Dictionary[]
    = {{"Enter.name.hint", "Enter name"}, {"Delete.hint", " Left deletes"}, {"Caller.Unknown.XXX", "Unknown"}};

constexpr const char* HelpText = "Type a name in the directory: the rows that fit are left. Left deletes a letter.\n"
                                 "OK shows the details of a name, and what can be done with it.";

}

Words::Words(Display& display)
    : mDisplay(display)
{
    mDisplay.setTranslator(this);
}

Words::~Words()
{
    mDisplay.setTranslator(nullptr);
}

std::string Words::translate(std::string key)
{
    for (const auto& [known, word] : Dictionary) {
        if (key == known)
            return word;
    }
    return key;
}

Directory::Directory(Display& display)
    : mDisplay(display)
    , mNames(display, mMenu)
{
    mMenu.setTitle("Directory");
    for (const char* name : RowNames)
        mMenu.append(name);
    mMenu.addCommandListener(this);

    mCallLog.setTitle("Call log");
    mCallLog.append(
        new CallLogMainItem(new CallPartyIdentifier("Anna Abel", "4020"), "2026-03-02 10:42", 2, true, false));
    mCallLog.append(new CallLogMainItem(new CallPartyIdentifier("", "0123456"), "2026-03-01 18:05", 1, false, false));
    mCallLog.append(new CallLogMainItem(new CallPartyIdentifier, "2026-02-28 07:30", 1, false, false));
    mCallLog.addCommandListener(this);

    mLines.setTitle("Lines");
    for (const char* number : LineNumbers) {
        mLineRows.push_back(new LineOverviewItem(LineOverviewItem::LINE_IDLE, number, "", false, nullptr));
        mLines.append(mLineRows.back());
    }
    mLines.addCommandListener(this);

    mTones.setTitle("Ring tone");
    for (const char* name : ToneNames)
        mTones.append(name);
    mTones.addCommandListener(this);

    mHelp.setTitle("Help");
    mHelp.setText(HelpText, false);
    mHelp.addCommandListener(this);
    mNotice.setTimeout(NoticeTime);
}

void Directory::run()
{
    mDisplay.setCurrent(&mMenu);
    mDisplay.show();
    mDisplay.exec();
}

void Directory::commandAction(Command* command, Displayable* displayable)
{
    if (command == List::BACK_COMMAND() || command == TextBox::BACK_COMMAND())
        mDisplay.setCurrent(&mMenu);
    if (command != List::SELECT_COMMAND())
        return;
    if (displayable == &mMenu)
        open(mMenu.getSelectedIndex());
    if (displayable == &mLines)
        holdLine();
    if (displayable == &mTones)
        setTone();
}

void Directory::open(int row)
{
    switch (row) {
    case Names: mNames.show(); break;
    case CallLog: mDisplay.setCurrent(&mCallLog); break;
    case Lines: mDisplay.setCurrent(&mLines); break;
    case Tones: mDisplay.setCurrent(&mTones); break;
    case Help: mDisplay.setCurrent(&mHelp); break;
    default: break; // the display has been shut down meanwhile
    }
}

void Directory::ring(int line, const std::string& caller)
{
    if (line < 1 || line > static_cast<int>(mLineRows.size()))
        return;
    LineOverviewItem& row = *mLineRows[static_cast<std::size_t>(line - 1)];
    row.setLineIdentity(caller);
    row.setLineState(caller.empty() ? LineOverviewItem::LINE_IDLE : LineOverviewItem::LINE_RINGING);
}

/// What comes for the line is kept back while the notice lies over it, so that both say the same.
void Directory::holdLine()
{
    const int line = mLines.getSelectedIndex();
    if (line < 0 || line >= static_cast<int>(mLineRows.size()))
        return;
    LineOverviewItem& row = *mLineRows[static_cast<std::size_t>(line)];
    row.holdItem(NoticeTime);
    mNotice.setType(PopupNotification::INFO);
    mNotice.setText(row.getText());
    mDisplay.setCurrent(&mNotice);
}

void Directory::setTone()
{
    const int tone = mTones.getSelectedIndex();
    if (tone < 0)
        return;
    mNotice.setType(PopupNotification::SUCCESS);
    mNotice.setText(std::string("Ring tone: ") + ToneNames[tone]);
    mDisplay.setCurrent(&mNotice);
}

#include "CallLog.h"

#include <DisplayAPI/CallLogMainItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/Display.h>
#include <PhoneSimulator/PhoneSimulator.h>

#include <algorithm>
#include <ctime>

using namespace DisplayAPI;

namespace {

std::string now()
{
    const std::time_t time = PhoneSimulator::now();
    std::tm parts{};
    localtime_r(&time, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &parts);
    return text;
}

}

CallLog::CallLog(
    Display& display, Languages& languages, std::function<void(const std::string&)> dial, std::function<void()> leave)
    : mDisplay(display)
    , mDial(std::move(dial))
    , mLeave(std::move(leave))
{
    mList.setTitle(languages.text("Call log"));
    mList.addCommandListener(this);
}

void CallLog::add(const CallService::Call& call, bool wasMissed)
{
    Entry entry{call.name, call.number, now(), 1, wasMissed};
    const auto before = std::find_if(
        mEntries.begin(), mEntries.end(), [&call](const Entry& each) { return each.number == call.number; });
    if (before != mEntries.end()) {
        entry.count = before->count + 1;
        mEntries.erase(before);
    }
    mEntries.insert(mEntries.begin(), entry);
    mMissed += wasMissed ? 1 : 0;
}

void CallLog::open()
{
    mList.clear();
    for (Entry& entry : mEntries) {
        auto* party = new CallPartyIdentifier(
            entry.name.empty() ? CallPartyIdentifier::UnknownParty : entry.name, entry.number);
        mList.append(new CallLogMainItem(party, entry.moment, entry.count, entry.isMissed, false));
        entry.isMissed = false;
    }
    mMissed = 0;
    mDisplay.setCurrent(&mList);
}

void CallLog::commandAction(Command* command, Displayable*)
{
    if (command == List::BACK_COMMAND())
        mLeave();
    const int index = mList.getSelectedIndex();
    if (command == List::SELECT_COMMAND() && index >= 0 && index < static_cast<int>(mEntries.size()))
        mDial(mEntries[static_cast<std::size_t>(index)].number);
}

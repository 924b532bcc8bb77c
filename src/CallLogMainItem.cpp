#include <DisplayAPI/CallLogMainItem.h>

#include <DisplayAPI/CallPartyIdentifier.h>

#include "CallLogMainItemPrivate.h"
#include "Road.h"

namespace DisplayAPI {

enum class CallLogMainItem::Request : int {
    Create = 18,
    SetBold = 20,
};

namespace {

auto halfOf(CallLogMainItem& item)
{
    return [&item] { return dynamic_cast<CallLogMainItemPrivateIfc*>(item.getPrivateImplemetation()); };
}

}

CallLogMainItem::CallLogMainItem(CallPartyIdentifier* party, std::string date, int count, bool bold, bool arrow)
    : CallLogMainItem(party, std::move(date), count, bold, false, -1, arrow)
{
}

CallLogMainItem::CallLogMainItem(CallPartyIdentifier* party, std::string date, int count, bool bold,
    bool completedElsewhere, int variant, bool arrow)
    : ListItem(nullptr)
{
    mName = "CallLogMainItem";
    initialise(party, date, count, bold, completedElsewhere, variant, arrow);
}

CallLogMainItem::~CallLogMainItem()
{
    destroy();
}

void CallLogMainItem::initialise(CallPartyIdentifier* party, const std::string& date, int count, bool bold,
    bool completedElsewhere, int variant, bool arrow)
{
    if (Road::post(this, Request::Create, copied(party), date, count, variant, bold, completedElsewhere, arrow))
        setPrivate(new CallLogMainItemPrivate(party, date, count, bold, completedElsewhere, variant, arrow));
}

void CallLogMainItem::setbold(bool bold)
{
    if (auto* half = Road::post(this, halfOf(*this), Request::SetBold, bold))
        half->setBold(bold);
}

void CallLogMainItem::processGuiRequest(GuiRequestEvent& event)
{
    if (event.getType() < static_cast<int>(Request::Create))
        return ListItem::processGuiRequest(event);
    switch (static_cast<Request>(event.getType())) {
    case Request::Create:
        initialise(static_cast<CallPartyIdentifier*>(event.ptrParam1), event.stringParam1, event.intParam1,
            event.boolParam1, event.boolParam2, event.intParam2, event.boolParam3);
        break;
    case Request::SetBold: setbold(event.boolParam1); break;
    }
    signalComplete(event);
}

}

#include <DisplayAPI/LineOverviewItem.h>

#include "LineOverviewItemPrivate.h"
#include "Road.h"

namespace DisplayAPI {

enum class LineOverviewItem::Request : int {
    Create = 18,
    SetLineState = 19,
    SetLineName = 20,
    SetLineNamePrefix = 21,
    SetLineIdentity = 22,
    SetLineIdentityTranslation = 23,
    SetDisplayHDIconStatus = 24,
    HoldItem = 25,
};

/// Where the road finds what acts. Not the interface, which leaves two operations out.
auto LineOverviewItem::halfOf()
{
    return [this] { return dynamic_cast<LineOverviewItemPrivate*>(getPrivateImplemetation()); };
}

LineOverviewItem::LineOverviewItem(
    LineState state, const std::string& name, const std::string& identity, bool arrow, TranslationInfo* prefix)
    : ListItem(nullptr)
{
    mName = "LineOverviewItem";
    initialise(state, name, identity, arrow, prefix);
}

LineOverviewItem::~LineOverviewItem()
{
    destroy();
}

void LineOverviewItem::initialise(
    LineState state, const std::string& name, const std::string& identity, bool arrow, TranslationInfo* prefix)
{
    if (Road::wait(this, Request::Create, state, name, identity, arrow, given(prefix)))
        setPrivate(new LineOverviewItemPrivate(state, name, identity, arrow, prefix));
}

// The line

void LineOverviewItem::setLineState(LineState state)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetLineState, state))
        half->setLineState(state);
}

void LineOverviewItem::setLineName(const std::string& name)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetLineName, name))
        half->setLineName(name);
}

void LineOverviewItem::setLineNamePrefix(TranslationInfo* prefix)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetLineNamePrefix, given(prefix)))
        half->setLineNamePrefix(prefix);
}

void LineOverviewItem::setLineIdentity(const std::string& identity)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetLineIdentity, identity))
        half->setLineIdentity(identity);
}

void LineOverviewItem::setLineIdentity(TranslationInfo* identity)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetLineIdentityTranslation, given(identity)))
        half->setLineIdentity(identity);
}

void LineOverviewItem::setDisplayHDIconStatus(bool shown)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetDisplayHDIconStatus, shown))
        half->setDisplayHDIconStatus(shown);
}

void LineOverviewItem::holdItem(int milliseconds)
{
    if (auto* half = Road::wait(this, halfOf(), Request::HoldItem, milliseconds))
        half->holdItem(milliseconds);
}

// Road across threads

void LineOverviewItem::processGuiRequest(GuiRequestEvent& event)
{
    if (event.getType() < static_cast<int>(Request::Create))
        return ListItem::processGuiRequest(event);
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    const auto state = static_cast<LineState>(event.intParam1);
    switch (static_cast<Request>(event.getType())) {
    case Request::Create: initialise(state, text, event.stringParam2, event.boolParam1, translation); break;
    case Request::SetLineState: setLineState(state); break;
    case Request::SetLineName: setLineName(text); break;
    case Request::SetLineNamePrefix: setLineNamePrefix(translation); break;
    case Request::SetLineIdentity: setLineIdentity(text); break;
    case Request::SetLineIdentityTranslation: setLineIdentity(translation); break;
    case Request::SetDisplayHDIconStatus: setDisplayHDIconStatus(event.boolParam1); break;
    case Request::HoldItem: holdItem(event.intParam1); break;
    }
    signalComplete(event);
}

}

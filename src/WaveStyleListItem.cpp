#include <DisplayAPI/WaveStyleListItem.h>

namespace DisplayAPI {

namespace {

constexpr auto RightIcon = static_cast<Icons::IconType>(11);

}

WaveStyleListItem::WaveStyleListItem()
    : ListItem(nullptr)
{
    createPlainRow();
}

WaveStyleListItem::WaveStyleListItem(const std::string&, bool)
    : WaveStyleListItem()
{
}

WaveStyleListItem::WaveStyleListItem(TranslationInfo*, bool)
    : WaveStyleListItem()
{
}

WaveStyleListItem::~WaveStyleListItem()
{
    destroy();
}

void WaveStyleListItem::processGuiRequest(GuiRequestEvent& event)
{
    ListItem::processGuiRequest(event);
}

Icons::IconType WaveStyleListItem::getRightIcon()
{
    return RightIcon;
}

// Without effect on this telephone: the interface of a richer row

void WaveStyleListItem::setLeftPrefixText(TranslationInfo*) { }
void WaveStyleListItem::setSecondLinePrefixText(const std::string&) { }
void WaveStyleListItem::setSecondLinePrefixText(TranslationInfo*) { }
void WaveStyleListItem::setType(ConversationType::Type) { }
void WaveStyleListItem::setItemType(ConversationItemType::Type) { }
void WaveStyleListItem::setPresenceState(Presence::PresenceState) { }
void WaveStyleListItem::setUCPresenceState(Icons::IconType) { }
void WaveStyleListItem::setBroadsoftCallLogDateFormat(bool) { }
void WaveStyleListItem::setLeftIcon(Icons::IconType, unsigned int) { }
void WaveStyleListItem::setRightIcon(Icons::IconType) { }
void WaveStyleListItem::setSecondLineIcon(Icons::IconType) { }
void WaveStyleListItem::setConversationNumberTypeIcon(Icons::IconType) { }
void WaveStyleListItem::setRightText(const std::string&) { }
void WaveStyleListItem::setRightText(TranslationInfo*) { }
void WaveStyleListItem::setLeftSideText(const std::string&) { }
void WaveStyleListItem::setRightTextHidden() { }
void WaveStyleListItem::setSecondLineText(const std::string&) { }
void WaveStyleListItem::setSecondLineText(TranslationInfo*) { }
void WaveStyleListItem::setActiveCallDirection(ActiveCallDirection::CallDirection) { }
void WaveStyleListItem::addImage(const Image&) { }
void WaveStyleListItem::clearImages() { }
void WaveStyleListItem::activateLeftIconsAnimatedChange(int, bool, Icons::IconType) { }
void WaveStyleListItem::deactivateLeftIconsAnimatedChange() { }
void WaveStyleListItem::setEventNotification() { }
void WaveStyleListItem::setItemShowingOnTeamScreen(bool) { }
void WaveStyleListItem::setReadOnly(bool) { }
bool WaveStyleListItem::isReadOnly()
{
    return false;
}
void WaveStyleListItem::setBluetoothProfilesIcons(const std::vector<Icons::IconType>&) { }
std::string WaveStyleListItem::waveStyleListItemText(WaveStyleListItemGuiRequests)
{
    return "Not implemented";
}
void WaveStyleListItem::setTruncated(bool) { }
bool WaveStyleListItem::isTruncated()
{
    return false;
}
void WaveStyleListItem::setItemBCALine(bool, std::string&) { }
std::string WaveStyleListItem::getText()
{
    return {};
}
std::string WaveStyleListItem::getRightSideText()
{
    return {};
}
void WaveStyleListItem::removeCommandListener(CommandListener*) { }

}

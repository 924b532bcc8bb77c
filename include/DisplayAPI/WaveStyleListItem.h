#pragma once

#include <DisplayAPI/ActiveCallDirection.h>
#include <DisplayAPI/ConversationItemType.h>
#include <DisplayAPI/ConversationType.h>
#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/Presence.h>

#include <string>
#include <vector>

namespace DisplayAPI {

class CommandListener;
class Image;

/// A row that richer telephones show in two lines with icons and pictures. Here it is a plain row without text, which
/// can be changed through a ListItem alone: the operations of this class have no effect, and what they are given stays
/// the caller's.
///
/// Threads: any. Ownership, Errors, Screen text: as ListItem.
class DISPLAYAPI_EXPORT WaveStyleListItem : public ListItem {
public:
    /// A setting of the row, by its number.
    enum WaveStyleListItemGuiRequests : int {};

    WaveStyleListItem();

    /// Both as the first; text and flag have no effect.
    WaveStyleListItem(const std::string& text, bool flag);
    WaveStyleListItem(TranslationInfo* text, bool flag);
    ~WaveStyleListItem() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    /// Always 11.
    Icons::IconType getRightIcon() override;

    // Settings, in the order of their publication

    virtual void setLeftPrefixText(TranslationInfo* text);
    virtual void setSecondLinePrefixText(const std::string& text);
    virtual void setSecondLinePrefixText(TranslationInfo* text);
    virtual void setType(ConversationType::Type type);
    virtual void setItemType(ConversationItemType::Type type);
    virtual void setPresenceState(Presence::PresenceState state);
    virtual void setUCPresenceState(Icons::IconType icon);
    virtual void setBroadsoftCallLogDateFormat(bool used);
    virtual void setLeftIcon(Icons::IconType icon, unsigned int place);
    virtual void setRightIcon(Icons::IconType icon);
    virtual void setSecondLineIcon(Icons::IconType icon);
    virtual void setConversationNumberTypeIcon(Icons::IconType icon);
    virtual void setRightText(const std::string& text);
    virtual void setRightText(TranslationInfo* text);
    virtual void setLeftSideText(const std::string& text);
    virtual void setRightTextHidden();
    virtual void setSecondLineText(const std::string& text);
    virtual void setSecondLineText(TranslationInfo* text);
    virtual void setActiveCallDirection(ActiveCallDirection::CallDirection direction);
    virtual void addImage(const Image& image);
    virtual void clearImages();
    virtual void activateLeftIconsAnimatedChange(int interval, bool repeated, Icons::IconType icon);
    virtual void deactivateLeftIconsAnimatedChange();
    virtual void setEventNotification();
    virtual void setItemShowingOnTeamScreen(bool shown);
    virtual void setReadOnly(bool readOnly);

    /// Always false.
    virtual bool isReadOnly();
    virtual void setBluetoothProfilesIcons(const std::vector<Icons::IconType>& icons);

    /// Always "Not implemented".
    virtual std::string waveStyleListItemText(WaveStyleListItemGuiRequests setting);
    virtual void setTruncated(bool truncated);

    /// Always false.
    virtual bool isTruncated();
    virtual void setItemBCALine(bool isLine, std::string& text);

    // Answers that are always empty, whatever the row shows

    std::string getText();
    std::string getRightSideText();

    void removeCommandListener(CommandListener* listener);
};

}

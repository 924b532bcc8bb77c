#pragma once

#include <DisplayAPI/ForwardedCallType.h>
#include <DisplayAPI/ListItem.h>

#include <atomic>
#include <string>

namespace DisplayAPI {

class CallConnectedItemPrivateIfc;
class CallPartyIdentifier;
class ContextMenu;
class Image;

/// A row of the list of connected calls: who is at the other end, the state of the call, how long it has lasted, and
/// where the voice is.
///
/// The duration starts when the call is connected for the first time. It runs by itself.
///
/// Threads: any. Calls return at once and run in their order; the destructor and calls that answer wait for the GUI
/// thread.
/// Ownership: as ListItem; translations handed in become the row's; parties are copied.
/// Errors: as ListItem; numbers outside an enumeration show no icon.
/// Screen text: a subitem "Branch", and "Leaf" for the second line.
class DISPLAYAPI_EXPORT CallConnectedItem : public ListItem {
public:
    enum CallStateIcon : int {
        CALL_ACTIVE = 0,
        CALL_CLEARING = 1,
        CALL_HELD_BY_THIS_END = 2,
        CALL_HELD_BY_FAR_END = 3,
        CALL_LINE_BUSY = 4,
        CALL_ALERTING = 5,
    };

    enum CallSecurityState : int {
        CALL_SECURITY_UNKNOWN = 0,
        CALL_SECURE = 1,
        CALL_INSECURE = 2,
    };

    /// A row with its party's text, or none for null. The first flag shows the mark of a context menu, the second the
    /// duration. The voice is at the speaker, else at the headset, or at neither. The picture has no effect.
    CallConnectedItem(CallStateIcon state, TranslationInfo* text, bool headset, Image* picture, bool widgetFlag1,
        bool widgetFlag2, bool speaker, bool phoneLocked, bool remoteMaintenance);
    ~CallConnectedItem() override;

    void processGuiRequest(GuiRequestEvent& event) override;
    ListItemPrivateIfc* getPrivateImplemetation() override;

    /// Null in this class. Threads: GUI thread.
    virtual ContextMenu* getContextMenu();

    // State

    /// An active call asks for the whole glass. One that is cleared stops its duration, and clears the screen if it
    /// stands alone in its list.
    void setState(CallStateIcon state);
    void setSecurityState(CallSecurityState state);
    void setRecordingState(bool recording);

    /// Whether the call has the better voice. It shows with the next setState(CALL_ACTIVE).
    void setDisplayHDIconStatus(bool shown);

    /// Stops the time, which stays readable.
    void stopDurationTimer();

    /// A disabled row can be current, but OK does nothing on it.
    void enabled(bool enabled);
    bool getEnabled();

    // Texts

    /// The party.
    void setText(std::string text);
    void setText(TranslationInfo* text);

    /// A line below the party, while the row is current.
    void setSecondLineText(std::string text);
    void setSecondLineText(TranslationInfo* text);

    /// A translation that is gone from the row comes back with the next change of locale.
    void clearSecondLineText();

    /// Always empty.
    std::string getSecondLineText();

    /// Shows the party's ready-made text, and ahead of it the prefix, or its translation. The second party and the
    /// type have no effect.
    void setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& prefixText, TranslationInfo* prefixInfo);

    // Icons

    void setHeadsetIcon(bool on);
    void setSpeakerIcon(bool on);
    void setMuteIcon(bool on);
    void setPhoneLockedIcon(bool on);
    void setRemoteMaintenanceIcon(bool on);

    // What the application knows the call and the party by. Neither is shown

    void setCallId(std::string id);
    void setCallId(TranslationInfo* id);
    std::string getCallId();
    void setPartyId(std::string id);
    std::string getPartyId();

    // Without effect on this telephone

    void setPictureClip(Image* picture);
    void setThirdLineIconText(ForwardedCallType type, std::string text);
    void addGPULine(std::string text);

    /// The translation stays the caller's.
    void addGPULine(TranslationInfo* text);
    void removeGPULine();

protected:
    /// For a row with a half of its own: makes none and posts nothing.
    CallConnectedItem();

    /// Takes the half over, and deletes an earlier one.
    void setHalf(CallConnectedItemPrivateIfc* half);

    /// What the destructor does, as ListItem::end(), for a subclass that calls it first in its own.
    void endRow();

private:
    enum class Request : int;

    void initialise(CallStateIcon state, TranslationInfo* text, bool headset, Image* picture, bool widgetFlag1,
        bool widgetFlag2, bool speaker, bool phoneLocked, bool remoteMaintenance);
    void destroy();
    void setDetails(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& prefixText, TranslationInfo* prefixInfo);

    std::string mPartyId;
    std::atomic<CallConnectedItemPrivateIfc*> mPrivate = nullptr;
};

}

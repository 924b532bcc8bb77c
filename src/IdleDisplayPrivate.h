#pragma once

#include <DisplayAPI/IdleDisplayPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <IdleDisplayMEG.h>
#include <UString.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

class VantoListBoxMEG;

namespace DisplayAPI {

class PopupDialerPrivate;

/// The idle screen on the GUI thread: an IdleDisplayMEG with its texts, and the road of the keys to the dialer.
///
/// The dialer tells by events when it takes the glass and when it gives it back.
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class IdleDisplayPrivate final : public IdleDisplayPrivateIfc {
public:
    IdleDisplayPrivate(IdleDisplay* owner, const std::string& text);
    ~IdleDisplayPrivate() override;

    // Notes

    void addSystemMessage(std::string text) override;
    void addSystemMessage(TranslationInfo* text) override;
    void clearSystemMessages() override;
    void setMissedCalls(int count) override;
    void setMessages(int count) override;
    void setCallBack(bool shown) override;
    void setEmergencyText(std::string text) override;
    void setEmergencyText(TranslationInfo* text) override;
    void displayMobileUserIcon(bool shown) override;

    // Forwarding

    void setForwardingIconVisible(bool visible) override;
    void setForwardingAddress(std::string address) override;
    void setForwardingAddress(TranslationInfo* address) override;
    void setForwardingAddress(TranslationInfo* info, CallPartyIdentifier* party) override;
    void setServerBasedForwardingAddress(std::string address) override;
    void setServerBasedForwardingAddress(TranslationInfo* address) override;

    // Whose telephone it is

    void changeLogo(std::string logo) override;
    void setCurrentPhoneNumber(std::string number) override;
    void setDisplayIdUnicode(std::string id) override;
    void setUseDisplayId(bool use) override;
    void setBrandingText(std::string text) override;

    // Menu

    void addMenuCommand(std::string text) override;
    void clearMenuCommands() override;

    /// The number of rows; nothing once the menu has gone.
    std::optional<std::size_t> menuSize() const;
    void setDefaultMenuCommandIndex(int) override { }
    int getDefaultMenuCommandIndex() override { return 0; }
    void fireMenuCommand(int index) override;
    bool isCMActiveOnIdleScreen() override;

    // Dialer

    /// Whether keys go to the dialer.
    void showDialer(bool show) { mShowDialerOnKey = show; }

    /// Takes the glass back from the dialer, if it has it.
    void uncover();

    // Life on the screen

    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override;
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void hide() override;
    void lostFocus() override;
    void localeChanged(std::string locale) override;
    void generateDisplayChanged() override { generateDisplayChangedEvent(); }
    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;

    // Screen text

    std::string serialise() override;

    /// The lines inside the rectangles; empty without a text.
    std::string serialise(const std::vector<Rect>& rects) override;

    // Without effect on this telephone

    void setSystemWindowSize(int) override { }
    void setSystemWindowText(int, std::string) override { }

private:
    template <typename Value>
    struct Field {
        Value (IdleDisplayMEG::*get)() const;
        void (IdleDisplayMEG::*set)(Value value);
    };
    struct TextField {
        UString (IdleDisplayMEG::*get)() const;
        void (IdleDisplayMEG::*set)(const UString& text);
    };
    static const TextField ForwardingAddress;
    static const TextField ServerForwardingAddress;
    static const TextField EmergencyText;
    static const TextField Logo;

    template <typename Value>
    void write(Field<Value> field, Value value);
    void write(const TextField& field, const std::string& text);
    bool survivesNotice(bool isChanged);
    VantoListBoxMEG* menu() const;
    void dialerTakesGlass();
    void dialerGivesGlass();
    void rowChosen(UEvent& event);
    void contentChanged();
    void readForwardingAgain();
    PopupDialerPrivate* dialer();
    void handOn(UKeyEvent& key);

    IdleDisplay* mOwner;
    IdleDisplayMEG* mWidget;
    std::vector<std::unique_ptr<TranslationInfo>> mSystemMessages;
    TranslationHolder mForwardingInfo;
    TranslationHolder mServerForwardingInfo;
    TranslationHolder mEmergencyInfo;
    bool mShowDialerOnKey = true;
    bool mDialerCoversIdle = false; // then the screen has no text
    bool mIsHandingOn = false;      // a key, to the dialer
    OwnershipDelegate<IdleDisplayMEG> mOwnership{&mWidget};
};

}

#pragma once

#include <DisplayAPI/DesktopPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <DesktopMEG.h>
#include <UAgent.h>

#include <array>

namespace DisplayAPI {

/// The status screen on the GUI thread: a DesktopMEG, of the kind for the software type, and the names of the days.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class DesktopPrivate final : public DesktopPrivateIfc, public UAgent {
public:
    explicit DesktopPrivate(Desktop* parent);
    ~DesktopPrivate() override;

    Desktop* getParent() const { return mParent; }

    // Icons

    void displayKeyLockIcon(bool shown) override;
    void displayDNDIcon(bool shown) override;
    void displayHeadsetIcon(bool shown) override;
    void displayRingerIcon(Desktop::RingerIconType type) override;
    void displayMaintenanceIcon(bool shown) override;
    void displayMobileUserIcon(bool shown, int icon) override;
    void displayCallbacksIcon(bool shown) override;
    void displayWifiStrengthIcon(Desktop::WifiIconType type) override;
    void displayUsbIcon(bool shown) override;
    void displayStatusBarItems(bool shown) override;
    void setSBPostTimeIcon(int which, bool on) override;

    // Clock

    void set12HourClockMode(bool is12Hour) override;
    void setTimeZoneOffset(int minutes) override;
    void setTime(int hours, int minutes, int seconds) override;
    void setDate(int day, int month, int year) override;
    void setDayLabelText(TranslatorIfc* translator) override;
    void setStatusBarDayLabels() override;
    void localeChanged(std::string locale);

    // Texts

    void setLogoText(std::string text) override;
    void setDesktopString(const std::string& text) override;
    void setStatusBarModePrev(std::string mode) override;
    std::string getSBModeText() override { return {}; }

    // Without effect on this telephone

    void setExtLabelText(std::string) override { }
    void setStatusBarMode(const std::string&, const std::string&) override { }
    void screensaverStart() override { }
    void screensaverStop() override { }
    void screensaverSetImages(std::list<std::string>*) override { }
    void screensaverSetImagesTimeout(int) override { }
    void screensaverSetSlideshowFormat(int) override { }
    void addCommandListener(CommandListener*) override { }
    void setExtensionNumberAndArrowState(bool) override { }

    // Life on the screen

    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override { }
    void enable(bool) override { }
    void widgetDismissed(DisplayablePrivate*) override { }
    bool hideOldWidgetOnFocusGained() override { return false; }
    void event(UEvent* event) override;

    // Screen text

    std::string serialise() override;
    std::string serialise(const std::vector<Rect>& rects) override;

private:
    /// Changes the widget and tells of it.
    template <typename... Parameters, typename... Arguments>
    void change(void (DesktopMEG::*operation)(Parameters...), Arguments... arguments);

    DesktopMEG* mWidget;
    Desktop* mParent;
    TranslatorIfc* mTranslator = nullptr;
    std::array<TranslationHolder, 7> mDayNames; // Monday first
    OwnershipDelegate<DesktopMEG> mOwnership{&mWidget};
};

}

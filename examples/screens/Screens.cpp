#include "Screens.h"

#include "Popups.h"
#include "Rows.h"
#include "Statuses.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace {

constexpr int Unknown = 99; // none of any enumeration

/// A screen by its name; the number says in which state.
struct Screen {
    std::string_view name;
    void (*build)(Stage& stage, int state);
    int state;
};

const std::vector<Screen>& screens()
{
    using namespace DisplayAPI;
    static const std::vector<Screen> table = {
        {"call-ringing", showCall, PopupCall::RINGING},
        {"call-connecting", showCall, PopupCall::CONNECTING},
        {"call-busy", showCall, PopupCall::BUSY},
        {"call-unobtainable", showCall, PopupCall::UNOBTAINABLE},
        {"call-incoming", showCall, PopupCall::INCOMING},
        {"call-group", showCall, PopupCall::GROUP_CALL},
        {"call-direct-line", showCall, PopupCall::DSS},
        {"call-hold-timeout", showCall, PopupCall::HOLD_TIMEOUT},
        {"call-ringing-keeping-line-2", showCall, PopupCall::RINGING_KEEP_LINE2},
        {"call-recall", showCall, PopupCall::RECALL},
        {"call-back", showCall, PopupCall::CALL_BACK},
        {"call-ringing-lamp", showCall, PopupCall::RINGING_BLF},
        {"call-ringing-group", showCall, PopupCall::RINGING_GROUP},
        {"call-unknown", showCall, Unknown},
        {"call-urgent", showPriority, PopupCall::URGENT},
        {"call-direct", showPriority, PopupCall::DIRECT},
        {"call-forwarded-always", showForwardedCall, FORWARDED_ALWAYS},
        {"call-forwarded-on-busy", showForwardedCall, FORWARDED_ON_BUSY},
        {"call-forwarded-on-dnd", showForwardedCall, FORWARDED_ON_DND},
        {"call-forwarded-no-answer", showForwardedCall, FORWARDED_NO_ANSWER},
        {"call-forwarded-for", showForwardedCall, FORWARDED_FOR},

        {"notice-none", showNotice, PopupNotification::NONE},
        {"notice-success", showNotice, PopupNotification::SUCCESS},
        {"notice-error", showNotice, PopupNotification::ERROR},
        {"notice-info", showNotice, PopupNotification::INFO},
        {"notice-lamp", showNotice, PopupNotification::BLF},
        {"notice-forwarded", showNotice, PopupNotification::FORWARDED},
        {"notice-warning", showNotice, PopupNotification::WARNING},
        {"notice-user-action", showNotice, PopupNotification::USER_ACTION},
        {"notice-usb", showNotice, PopupNotification::USB},
        {"notice-mobile-user-saving", showNotice, PopupNotification::MOBILE_USER_SAVING},
        {"notice-mobile-user-failed", showNotice, PopupNotification::MOBILE_USER_FAILED},
        {"notice-three-lines", showLongNotice, 0},

        {"question-information", showQuestion, PopupConfirm::Information},
        {"question-question", showQuestion, PopupConfirm::Question},
        {"question-recall", showQuestion, PopupConfirm::Recall},
        {"question-failure", showQuestion, PopupConfirm::Failure},
        {"question-mobile-user", showQuestion, PopupConfirm::MobileUserChanges},

        {"work-none", showWork, PopupProgress::NONE},
        {"work-info", showWork, PopupProgress::INFO},
        {"work-progress", showWork, PopupProgress::PROGRESS},
        {"work-mobile-user-fetching", showWork, PopupProgress::MOBILE_USER_FETCHING},
        {"work-mobile-user-failed", showWork, PopupProgress::MOBILE_USER_FAILED},

        {"menu", showMenu, 0},

        {"connected-active", showConnected, CallConnectedItem::CALL_ACTIVE},
        {"connected-clearing", showConnected, CallConnectedItem::CALL_CLEARING},
        {"connected-held-by-this-end", showConnected, CallConnectedItem::CALL_HELD_BY_THIS_END},
        {"connected-held-by-far-end", showConnected, CallConnectedItem::CALL_HELD_BY_FAR_END},
        {"connected-line-busy", showConnected, CallConnectedItem::CALL_LINE_BUSY},
        {"connected-alerting", showConnected, CallConnectedItem::CALL_ALERTING},
        {"connected-unknown", showConnected, Unknown},
        {"connected-secure", showSecurity, CallConnectedItem::CALL_SECURE},
        {"connected-insecure", showSecurity, CallConnectedItem::CALL_INSECURE},
        {"connected-better-voice", showBetterVoice, 0},
        {"connected-second-line", showSecondLine, 0},
        {"connected-recording", showRecording, 0},

        {"log-no-icon", showLogRow, CallLogMainItem::NoIcon},
        {"log-private", showLogRow, CallLogMainItem::Private},
        {"log-business", showLogRow, CallLogMainItem::Business1},
        {"log-business-2", showLogRow, CallLogMainItem::Business2},
        {"log-mobile", showLogRow, CallLogMainItem::Mobile},
        {"log-elsewhere", showLogRowOfElsewhere, CallLogMainItem::Mobile},
        {"log-bold", showBoldLogRow, 0},

        {"line-idle", showLine, LineOverviewItem::LINE_IDLE},
        {"line-active", showLine, LineOverviewItem::LINE_ACTIVE},
        {"line-ringing", showLine, LineOverviewItem::LINE_RINGING},
        {"line-calling", showLine, LineOverviewItem::LINE_CALLING},
        {"line-held", showLine, LineOverviewItem::LINE_HELD},
        {"line-active-elsewhere", showLine, LineOverviewItem::LINE_ACTIVE_ELSEWHERE},
        {"line-ringing-elsewhere", showLine, LineOverviewItem::LINE_RINGING_ELSEWHERE},
        {"line-calling-elsewhere", showLine, LineOverviewItem::LINE_CALLING_ELSEWHERE},
        {"line-held-elsewhere", showLine, LineOverviewItem::LINE_HELD_ELSEWHERE},

        {"row-with-icon", showRow, 0},
        {"row-of-wave-style", showWaveStyleRow, 0},
        {"row-with-bar", showBar, 0},
        {"list-of-qvt", showQVTList, 0},

        {"forwarding-checked", showForwarding, CallLogMainItem::NoIcon},
        {"forwarding-unchecked", showUncheckedForwarding, 0},
        {"forwarding-always", showForwarding, CallLogMainItem::ForwardAlways},
        {"forwarding-on-busy", showForwarding, CallLogMainItem::ForwardOnBusy},
        {"forwarding-on-no-answer", showForwarding, CallLogMainItem::ForwardOnNoAnswer},
        {"forwarding-text", showForwardingText, 0},

        {"text-of-two-lines", showText, 0},

        {"volume-handset", showVolume, 0},
        {"volume-headset", showVolume, 1},
        {"volume-speaker", showVolume, 2},
        {"volume-ringer", showVolume, 3},
        {"volume-other", showVolume, 4},
        {"volume-ringer-off", showSilence, 0},

        {"idle-messages", showIdle, int(Note::Messages)},
        {"idle-missed-calls", showIdle, int(Note::MissedCalls)},
        {"idle-system-message", showIdle, int(Note::SystemMessage)},
        {"idle-forwarded", showIdle, int(Note::Forwarded)},
        {"idle-forwarded-by-server", showIdle, int(Note::ForwardedByServer)},
        {"idle-mobile-user", showIdle, int(Note::MobileUser)},

        {"desktop-key-lock", showDesktop, int(Sign::KeyLock)},
        {"desktop-do-not-disturb", showDesktop, int(Sign::DoNotDisturb)},
        {"desktop-headset", showDesktop, int(Sign::Headset)},
        {"desktop-ringer-a", showDesktop, int(Sign::RingerA)},
        {"desktop-ringer-b", showDesktop, int(Sign::RingerB)},
        {"desktop-maintenance", showDesktop, int(Sign::Maintenance)},
        {"desktop-mobile-user", showDesktop, int(Sign::MobileUser)},
        {"desktop-call-back", showDesktop, int(Sign::CallBack)},
        {"desktop-usb", showDesktop, int(Sign::Usb)},
        {"desktop-radio-100", showRadio, Desktop::WIFI_100},
        {"desktop-radio-75", showRadio, Desktop::WIFI_75},
        {"desktop-radio-50", showRadio, Desktop::WIFI_50},
        {"desktop-radio-25", showRadio, Desktop::WIFI_25},
        {"desktop-no-radio-100", showRadio, Desktop::WIFI_UNCONNECTED_100},
        {"desktop-no-radio-25", showRadio, Desktop::WIFI_UNCONNECTED_25},
    };
    return table;
}

}

Screens::Screens(DisplayAPI::Display& display)
    : mStage(display)
{
}

void Screens::show(const std::string& name)
{
    const auto found = name.empty() ? screens().begin() + static_cast<std::ptrdiff_t>(mNext)
                                    : std::ranges::find(screens(), name, &Screen::name);
    if (found == screens().end())
        throw std::invalid_argument("no screen is called " + name);
    found->build(mStage, found->state);
    mNext = static_cast<std::size_t>(found - screens().begin() + 1) % screens().size();
}

#pragma once

#include "CallService.h"
#include "Languages.h"
#include "Screens.h"

#include <DisplayAPI/PopupNotification.h>

#include <memory>
#include <string>

/// What the telephone has to say: a notice over the current screen, which goes by itself or by any key. The newest
/// takes the place of the one before.
class Notices {
public:
    using Type = DisplayAPI::PopupNotification::InfoType;

    Notices(Screens& screens, Languages& languages);

    /// The first line is translated; the second stands as it is.
    void show(Type type, const std::string& key, const std::string& detail = "");

    /// Who has called, and where the call went.
    void showForwarded(const CallService::Party& caller, const CallService::Party& target, CallService::Diversion why);

private:
    DisplayAPI::PopupNotification& renew();
    void bringUp();

    Screens& mScreens;
    Languages& mLanguages;
    std::unique_ptr<DisplayAPI::PopupNotification> mNotice;
};

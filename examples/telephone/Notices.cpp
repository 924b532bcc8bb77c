#include "Notices.h"

#include "PartyTexts.h"

using namespace DisplayAPI;

namespace {

constexpr int NoticeTime = 3'000; // milliseconds

}

Notices::Notices(Screens& screens, Languages& languages)
    : mScreens(screens)
    , mLanguages(languages)
{
}

void Notices::show(Type type, const std::string& key, const std::string& detail)
{
    PopupNotification& notice = renew();
    notice.setType(type);
    notice.setText(mLanguages.text(key));
    if (!detail.empty())
        notice.setLine2Text(detail);
    bringUp();
}

void Notices::showForwarded(
    const CallService::Party& caller, const CallService::Party& target, CallService::Diversion why)
{
    CallPartyIdentifier party = identifierOf(caller);
    CallPartyIdentifier second = identifierOf(target);
    PopupNotification& notice = renew();
    notice.setType(PopupNotification::FORWARDED);
    notice.setForwardNotification(party, second, forwardedTypeOf(why));
    bringUp();
}

/// A new one has nothing of the one before, whatever that has shown.
PopupNotification& Notices::renew()
{
    if (mNotice)
        mNotice->dismiss();
    mNotice = std::make_unique<PopupNotification>();
    mNotice->setTimeout(NoticeTime);
    mNotice->setDismissible(true);
    return *mNotice;
}

void Notices::bringUp()
{
    mScreens.showOver(*mNotice);
}

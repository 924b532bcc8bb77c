#include <DisplayAPI/ConferenceCallItem.h>
#include <DisplayAPI/ConferenceCallItemPrivateIfc.h>

#include "ConferenceCallItemPrivate.h"
#include "Road.h"

namespace DisplayAPI {

enum class ConferenceCallItem::Request : int {
    Create = 101,
    AppendCall = 102,
    RemoveCall = 103,
    RemoveMember = 104,
    GetTitleMember = 105,
    GetSelectedMember = 106,
    GetIndexedMember = 107,
    SetCallItem = 108,
    SetTitleSuffixTranslation = 109,
    SetTitleSuffix = 110,
};

/// Where the road finds what acts: the row's half, while it is that of a conference.
auto ConferenceCallItem::halfOf()
{
    return [this] { return dynamic_cast<ConferenceCallItemPrivateIfc*>(getPrivateImplemetation()); };
}

ConferenceCallItem::ConferenceCallItem(CallStateIcon state, TranslationInfo* text, bool headset, bool widgetFlag1)
{
    mName = "ConferenceCallItem";
    initialise(state, text, headset, widgetFlag1);
}

ConferenceCallItem::~ConferenceCallItem()
{
    endRow();
}

void ConferenceCallItem::initialise(CallStateIcon state, TranslationInfo* text, bool headset, bool widgetFlag1)
{
    if (Road::wait(this, Request::Create, state, given(text), headset, widgetFlag1))
        setHalf(new ConferenceCallItemPrivate(state, text, this, headset, widgetFlag1));
}

void ConferenceCallItem::localeChanged(std::string locale)
{
    if (ListItemPrivateIfc* half = getPrivateImplemetation())
        half->localeChanged(std::move(locale));
}

// Members

void ConferenceCallItem::appendCall(CallConnectedItem* call, bool flag)
{
    if (auto* half = Road::wait(this, halfOf(), Request::AppendCall, call, flag))
        half->appendCall(call, flag);
}

void ConferenceCallItem::removeCall(CallConnectedItem* call)
{
    if (auto* half = Road::wait(this, halfOf(), Request::RemoveCall, call))
        half->removeCall(call);
}

void ConferenceCallItem::removeCall(int member)
{
    if (auto* half = Road::wait(this, halfOf(), Request::RemoveMember, member))
        half->removeCall(member);
}

CallConnectedItem* ConferenceCallItem::getIndexedMember(int member)
{
    void* call = nullptr;
    if (auto* half = Road::wait(this, halfOf(), Request::GetIndexedMember, member, result(call)))
        call = half->getIndexedCall(member);
    return static_cast<CallConnectedItem*>(call);
}

// Selection

void ConferenceCallItem::setCallItem(int row)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetCallItem, row))
        half->setCallItem(row);
}

CallConnectedItem* ConferenceCallItem::getSelectedMember()
{
    void* call = nullptr;
    if (auto* half = Road::wait(this, halfOf(), Request::GetSelectedMember, result(call)))
        call = half->getSelectedCall();
    return static_cast<CallConnectedItem*>(call);
}

// Title

CallConnectedItem* ConferenceCallItem::getTitleMember()
{
    void* call = nullptr;
    if (auto* half = Road::wait(this, halfOf(), Request::GetTitleMember, result(call)))
        call = half->getTitleCall();
    return static_cast<CallConnectedItem*>(call);
}

void ConferenceCallItem::setTitleSuffix(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetTitleSuffixTranslation, given(text)))
        half->setTitleSuffix("", text);
}

void ConferenceCallItem::setTitleSuffix(const std::string& text)
{
    if (auto* half = Road::wait(this, halfOf(), Request::SetTitleSuffix, text))
        half->setTitleSuffix(text, nullptr);
}

// Road across threads

void ConferenceCallItem::processGuiRequest(GuiRequestEvent& event)
{
    constexpr int lastOfCalls = 99;
    if (event.getType() <= lastOfCalls)
        return CallConnectedItem::processGuiRequest(event);

    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    auto* call = static_cast<CallConnectedItem*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create:
        initialise(static_cast<CallStateIcon>(event.intParam1), translation, event.boolParam1, event.boolParam2);
        break;
    case Request::AppendCall: appendCall(call, event.boolParam1); break;
    case Request::RemoveCall: removeCall(call); break;
    case Request::RemoveMember: removeCall(event.intParam1); break;
    case Request::GetTitleMember: answer(event.ptrResult, getTitleMember()); break;
    case Request::GetSelectedMember: answer(event.ptrResult, getSelectedMember()); break;
    case Request::GetIndexedMember: answer(event.ptrResult, getIndexedMember(event.intParam1)); break;
    case Request::SetCallItem: setCallItem(event.intParam1); break;
    case Request::SetTitleSuffixTranslation: setTitleSuffix(translation); break;
    case Request::SetTitleSuffix: setTitleSuffix(event.stringParam1); break;
    }
    signalComplete(event);
}

}

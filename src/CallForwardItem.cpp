#include <DisplayAPI/CallForwardItem.h>
#include <DisplayAPI/CallForwardItemPrivateIfc.h>

#include "CallForwardItemPrivate.h"
#include "Road.h"

#include <utility>

namespace DisplayAPI {

enum class CallForwardItem::Request : int {
    Create = 1,
    CreateFromText = 2,
    SwapCheck = 3,
    Check = 4,
    Uncheck = 5,
    GetCheck = 6,
    GetText = 7,
    SetTextMain = 8,
    SetTextMainTranslation = 9,
    SetTextBranch = 10,
    SetTextBranchTranslation = 11,
    Destroy = 12,
    SetReadonly = 13,
    SetCFIconVisible = 14,
    CleanBranches = 15,
};

CallForwardItem::CallForwardItem(CallLogMainItem::IconType iconType, TranslationInfo* text, bool readOnly, bool arrow)
{
    create(iconType, text, readOnly, arrow);
}

CallForwardItem::CallForwardItem(TranslationInfo* text)
{
    create(text);
}

CallForwardItem::~CallForwardItem()
{
    destroy();
}

void CallForwardItem::create(CallLogMainItem::IconType iconType, TranslationInfo* text, bool readOnly, bool arrow)
{
    if (!Road::wait(this, Request::Create, iconType, given(text), readOnly, arrow))
        return;
    setHalf(new CallForwardItemPrivate(iconType, text, readOnly, arrow));
    mIconType = CallForwardItemPrivate::hasIcon(iconType) ? iconType : CallLogMainItem::NoIcon;
}

void CallForwardItem::create(TranslationInfo* text)
{
    if (Road::wait(this, Request::CreateFromText, given(text)))
        setHalf(new CallForwardItemPrivate(text));
}

/// The row of an earlier half goes with it.
void CallForwardItem::setHalf(CallForwardItemPrivateIfc* half)
{
    mName = "CallForwardItem";
    if (mPrivate)
        mPrivate->gainOwnership();
    mPrivate.reset(half);
}

void CallForwardItem::destroy()
{
    if (Road::wait(this, Request::Destroy)) {
        retireItem(mPrivate.get());
        mPrivate.reset();
    } else {
        Road::keepIfRefused(this, mPrivate);
    }
}

ExpandingTreeListItemPrivateIfc* CallForwardItem::getPrivateImpl()
{
    return mPrivate.get();
}

// Check mark

void CallForwardItem::swapCheck()
{
    if (auto* row = Road::wait(this, mPrivate, Request::SwapCheck))
        row->swapCheck();
}

void CallForwardItem::check()
{
    if (auto* row = Road::wait(this, mPrivate, Request::Check))
        row->check();
}

void CallForwardItem::uncheck()
{
    if (auto* row = Road::wait(this, mPrivate, Request::Uncheck))
        row->uncheck();
}

bool CallForwardItem::getCheck() const
{
    bool isChecked = false;
    if (auto* row = Road::wait(this, mPrivate, Request::GetCheck, result(isChecked)))
        isChecked = row->getCheck();
    return isChecked;
}

// Texts

std::string CallForwardItem::getText() const
{
    std::string text;
    if (auto* row = Road::wait(this, mPrivate, Request::GetText, result(text)))
        text = row->getText();
    return text;
}

void CallForwardItem::setTextMain(const std::string& text)
{
    if (auto* row = Road::wait(this, mPrivate, Request::SetTextMain, text))
        row->setTextMain(text);
}

void CallForwardItem::setTextMain(TranslationInfo* text)
{
    if (auto* row = Road::wait(this, mPrivate, Request::SetTextMainTranslation, given(text)))
        row->setTextMain(text);
}

void CallForwardItem::setTextBranch(const std::string& text, TranslationInfo* prefix, eCallForwardBranchLine line)
{
    if (auto* row = Road::wait(this, mPrivate, Request::SetTextBranch, text, prefix, line))
        row->setTextBranch(text, prefix, line);
}

void CallForwardItem::setTextBranch(TranslationInfo* text, TranslationInfo* prefix, eCallForwardBranchLine line)
{
    if (auto* row = Road::wait(this, mPrivate, Request::SetTextBranchTranslation, given(text), prefix, line))
        row->setTextBranch(text, prefix, line);
}

void CallForwardItem::localeChanged(std::string locale)
{
    if (mPrivate)
        mPrivate->localeChanged(std::move(locale));
}

// State

void CallForwardItem::setReadonly(bool readOnly, bool flag)
{
    if (auto* row = Road::wait(this, mPrivate, Request::SetReadonly, readOnly, flag))
        row->setReadonly(readOnly, flag);
}

void CallForwardItem::setCFIconVisible(bool visible)
{
    if (auto* row = Road::wait(this, mPrivate, Request::SetCFIconVisible, visible))
        row->setCFIconVisible(visible);
}

CallLogMainItem::IconType CallForwardItem::iconType() const
{
    return mIconType;
}

void CallForwardItem::cleanBranches()
{
    if (auto* row = Road::wait(this, mPrivate, Request::CleanBranches))
        row->cleanBranches();
}

// Road across threads

void CallForwardItem::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create:
        create(
            static_cast<CallLogMainItem::IconType>(event.intParam1), translation, event.boolParam1, event.boolParam2);
        break;
    case Request::CreateFromText: create(translation); break;
    case Request::SwapCheck: swapCheck(); break;
    case Request::Check: check(); break;
    case Request::Uncheck: uncheck(); break;
    case Request::GetCheck: answer(event.boolResult, getCheck()); break;
    case Request::GetText: answer(event.stringResult, getText()); break;
    case Request::SetTextMain: setTextMain(text); break;
    case Request::SetTextMainTranslation: setTextMain(translation); break;
    case Request::SetTextBranch:
        setTextBranch(text, translation, static_cast<eCallForwardBranchLine>(event.intParam1));
        break;
    case Request::SetTextBranchTranslation:
        setTextBranch(translation, static_cast<TranslationInfo*>(event.ptrParam2),
            static_cast<eCallForwardBranchLine>(event.intParam1));
        break;
    case Request::Destroy: destroy(); break;
    case Request::SetReadonly: setReadonly(event.boolParam1, event.boolParam2); break;
    case Request::SetCFIconVisible: setCFIconVisible(event.boolParam1); break;
    case Request::CleanBranches: cleanBranches(); break;
    }
    signalComplete(event);
}

}

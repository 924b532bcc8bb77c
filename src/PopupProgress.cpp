#include <DisplayAPI/PopupProgress.h>
#include <DisplayAPI/PopupProgressPrivateIfc.h>

#include "PopupProgressPrivate.h"
#include "Road.h"

#include <TranslationInfo.h>

#include <algorithm>

namespace DisplayAPI {

enum class PopupProgress::Request : int {
    Create = 0,
    Destroy = 1,
    SetText = 2,
    SetTranslation = 3,
    SetStageText = 4,
    SetStageTranslation = 5,
    SetActivityText = 6,
    SetActivityTranslation = 7,
    UpdateProgressBar = 8,
    SetType = 9,
    Show = 10,
    Dismiss = 11,
};

namespace {

constexpr auto LastType = PopupProgress::ProgressType{4};

}

PopupProgress::PopupProgress()
{
    create(LastType);
}

PopupProgress::PopupProgress(ProgressType type)
{
    create(type);
}

PopupProgress::~PopupProgress()
{
    destroy();
}

void PopupProgress::create(ProgressType type)
{
    if (!Road::wait(this, Request::Create, type))
        return;
    mName = "PopupProgress";
    mPrivate = std::make_unique<PopupProgressPrivate>(this, std::min(type, LastType));
}

void PopupProgress::destroy()
{
    Road::end(this, mPrivate, Request::Destroy);
}

DisplayablePrivateIfc* PopupProgress::getPrivateImpl()
{
    return mPrivate.get();
}

// Texts

void PopupProgress::setText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetText, text))
        half->setText(text);
}

void PopupProgress::setText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetTranslation, given(text)))
        half->setText(text);
}

void PopupProgress::setCurrentStageText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetStageText, text))
        half->setCurrentStageText(text);
}

void PopupProgress::setCurrentStageText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetStageTranslation, given(text)))
        half->setCurrentStageText(text);
}

void PopupProgress::setCurrentActivityText(const std::string& text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetActivityText, text))
        half->setCurrentActivityText(text);
}

void PopupProgress::setCurrentActivityText(TranslationInfo* text)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetActivityTranslation, given(text)))
        half->setCurrentActivityText(text);
}

// Icon and bar

void PopupProgress::setType(InfoType type)
{
    if (auto* half = Road::wait(this, mPrivate, Request::SetType, type))
        half->setType(type);
}

void PopupProgress::updateProgressBar(int percent)
{
    if (auto* half = Road::wait(this, mPrivate, Request::UpdateProgressBar, percent))
        half->updateProgressBar(percent);
}

// Life on the screen

void PopupProgress::show()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Show))
        half->show();
}

void PopupProgress::dismiss()
{
    if (auto* half = Road::wait(this, mPrivate, Request::Dismiss))
        half->dismiss();
}

// Without effect on this telephone

void PopupProgress::addCommand(MenuCommand*) { }

void PopupProgress::clearCommands() { }

void PopupProgress::addCommandListener(CommandListener*) { }

void PopupProgress::displayProgressBar(bool) { }

// Road across threads

void PopupProgress::processGuiRequest(GuiRequestEvent& event)
{
    const std::string& text = event.stringParam1;
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);

    switch (static_cast<Request>(event.getType())) {
    case Request::Create: create(static_cast<ProgressType>(event.intParam1)); break;
    case Request::Destroy: destroy(); break;
    case Request::SetText: setText(text); break;
    case Request::SetTranslation: setText(translation); break;
    case Request::SetStageText: setCurrentStageText(text); break;
    case Request::SetStageTranslation: setCurrentStageText(translation); break;
    case Request::SetActivityText: setCurrentActivityText(text); break;
    case Request::SetActivityTranslation: setCurrentActivityText(translation); break;
    case Request::UpdateProgressBar: updateProgressBar(event.intParam1); break;
    case Request::SetType: setType(static_cast<InfoType>(event.intParam1)); break;
    case Request::Show: show(); break;
    case Request::Dismiss: dismiss(); break;
    }
    signalComplete(event);
}

}

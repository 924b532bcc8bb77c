#include "PopupProgressPrivate.h"

#include "CurrentApplication.h"
#include "GuiThread.h"
#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace DisplayAPI {

namespace {

struct TypeIcon {
    PopupProgress::InfoType type;
    unsigned short icon;
    const char* word;
};

constexpr TypeIcon TypeIcons[] = {
    {PopupProgress::NONE, 0, "None"},
    {PopupProgress::INFO, 21, "Info"},
    {PopupProgress::PROGRESS, 64, "None"},
    {PopupProgress::MOBILE_USER_FETCHING, 83, "Mobile User Fetching"},
    {PopupProgress::MOBILE_USER_FAILED, 82, "Mobile User Failed"},
};

const TypeIcon& iconOf(PopupProgress::InfoType type)
{
    const auto found = std::find_if(
        std::begin(TypeIcons), std::end(TypeIcons), [type](const TypeIcon& entry) { return entry.type == type; });
    return found == std::end(TypeIcons) ? TypeIcons[0] : *found;
}

}

PopupProgressPrivate::PopupProgressPrivate(Displayable* parent, PopupProgress::ProgressType type)
    : mParent(parent)
    , mWidget(new PopupProgressActualMEG(static_cast<PopupProgressActualMEG::ProgressType>(type)))
{
    assertGuiThread();
    mWidget->setListener(this);
    joinApplication(this);
}

PopupProgressPrivate::~PopupProgressPrivate()
{
    assertGuiThread();
}

UWidget* PopupProgressPrivate::getWidget()
{
    if (!mWidget || mWidget->kind == 1)
        return mWidget;
    return mWidget->getWidget();
}

// Texts

void PopupProgressPrivate::setText(const std::string& text)
{
    write(&PopupProgressActualMEG::setText, mTextInfo.show(text));
}

void PopupProgressPrivate::setText(TranslationInfo* text)
{
    write(&PopupProgressActualMEG::setText, mTextInfo.show(text));
}

void PopupProgressPrivate::setCurrentStageText(const std::string& text)
{
    write(&PopupProgressActualMEG::setStatusText1, mStageInfo.show(text));
}

void PopupProgressPrivate::setCurrentStageText(TranslationInfo* text)
{
    write(&PopupProgressActualMEG::setStatusText1, mStageInfo.show(text));
}

void PopupProgressPrivate::setCurrentActivityText(const std::string& text)
{
    write(&PopupProgressActualMEG::setStatusText2, mActivityInfo.show(text));
}

void PopupProgressPrivate::setCurrentActivityText(TranslationInfo* text)
{
    write(&PopupProgressActualMEG::setStatusText2, mActivityInfo.show(text));
}

void PopupProgressPrivate::write(Field field, const std::string& text)
{
    if (mWidget)
        (mWidget->*field)(UString::fromUTF8(text));
    generateDisplayChangedEvent();
}

void PopupProgressPrivate::localeChanged(std::string)
{
    const std::pair<Field, const TranslationHolder&> lines[] = {
        {&PopupProgressActualMEG::setText, mTextInfo},
        {&PopupProgressActualMEG::setStatusText1, mStageInfo},
        {&PopupProgressActualMEG::setStatusText2, mActivityInfo},
    };
    for (const auto& [field, line] : lines) {
        if (mWidget && line)
            (mWidget->*field)(UString::fromUTF8(line.completeString()));
    }
}

// Icon and bar

void PopupProgressPrivate::setType(PopupProgress::InfoType type)
{
    const TypeIcon& icon = iconOf(type);
    mType = icon.type;
    if (mWidget)
        mWidget->setIcon(icon.icon);
}

void PopupProgressPrivate::updateProgressBar(int percent)
{
    if (mWidget)
        mWidget->setProgress(percent);
}

// Life on the screen

void PopupProgressPrivate::show()
{
    if (mWidget)
        mWidget->popupAsNotification();
}

void PopupProgressPrivate::dismiss()
{
    // What the popup raises on its way down may delete this object.
    LifeNode life(this);
    if (mWidget)
        mWidget->dismiss();
    if (life.isAlive())
        widgetDismissed(this);
}

void PopupProgressPrivate::event(UEvent* event)
{
    if (event->type == EventType::LocaleChanged)
        localeChanged("");
}

// Screen text

std::string PopupProgressPrivate::serialise()
{
    if (!mWidget)
        return {};
    ScreenTextWriter writer;
    writer.object("PopupProgress");
    writer.field("icon", iconOf(mType).word);
    writer.field("caption", mWidget->getText().toUTF8());
    // Always there, so that the next line may have the key once more.
    writer.spacedField("string0", "");
    if (const UString stage = mWidget->getStatusText1(); !stage.isEmpty())
        writer.field("string0", stage.toUTF8());
    if (const UString activity = mWidget->getStatusText2(); !activity.isEmpty())
        writer.field("string1", activity.toUTF8());
    writer.endObject();
    return writer.take();
}

}

#include "PopupProgressPrivate.h"

#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <UEvent.h>

#include <algorithm>
#include <iterator>

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
    : PopupPrivate(new PopupProgressActualMEG(static_cast<PopupProgressActualMEG::ProgressType>(type)))
    , mParent(parent)
{
}

UWidget* PopupProgressPrivate::getWidget()
{
    if (!mWidget || mWidget->kind == 1)
        return mWidget;
    return mWidget->getWidget();
}

void PopupProgressPrivate::localeChanged(std::string)
{
    readAgain({&mText, &mStage, &mActivity});
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

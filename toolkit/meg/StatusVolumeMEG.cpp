#include "StatusVolumeMEG.h"

#include "Icons.h"
#include "TextBlock.h"
#include "TextCells.h"
#include "UApplication.h"
#include "UPainter.h"
#include "UWindowManager.h"

#include <algorithm>
#include <array>
#include <climits>

namespace {

constexpr unsigned int ShortestPart = 1000; // milliseconds, what a reader needs
constexpr unsigned long long VolumeTime = 3000;

/// What screen text and glass show for each VolumePreviewIconType.
struct Device {
    const char* word;
    const char* label;
    unsigned short icon;
};
constexpr std::array<Device, 6> devices = {{
    {"Handset", "Volume", Icons::ConnectedCall},
    {"Headset", "Volume", 90},
    {"Speaker", "Volume", 102},
    {"Ringer", "Ringer", 14},
    {"RingerOff", "Ringer off", Icons::RingerOff},
    {"Volume", "Volume", 102},
}};

const Device& device(int icon)
{
    return devices[icon >= 0 && icon < static_cast<int>(devices.size()) ? static_cast<std::size_t>(icon) : 5];
}

int toInt(unsigned int number)
{
    return static_cast<int>(std::min<unsigned int>(number, INT_MAX));
}

UWidget* focusByRequest(UWidget* widget)
{
    return UWindowManager::instance().hasFocusRequest(widget) ? widget : nullptr;
}

}

// Status message

StatusMessageMEG::StatusMessageMEG(const std::string& text, unsigned int start, unsigned int duration)
    : mText(text)
    , mShownText(TextBlock::oneLine(text))
    , mDuration(duration)
    , mTimer(this)
{
    setCoordinates(0, 0, 161, 14);
    if (TextCells::forward(mShownText, 0, UPainter::Columns) == mShownText.length() || duration == 0)
        return;
    // A start past the duration comes from an unsigned subtraction, which this one undoes.
    const unsigned int rest = duration - start;
    mTimer.setInterval(std::max(rest == 0 ? duration : rest, ShortestPart));
    mTimer.setSingleShot(true);
    mTimer.start();
}

StatusMessageMEG::~StatusMessageMEG()
{
    cover(nullptr);
}

void StatusMessageMEG::parentChanged()
{
    cover(parentWidget());
}

void StatusMessageMEG::cover(UWidget* screens)
{
    // A screen that comes later finds the line taken too, without having been told.
    if (mCovered)
        mCovered->setStatusMessageAvailable(false);
    mCovered = screens;
    if (mCovered)
        mCovered->setStatusMessageAvailable(true);
}

UString StatusMessageMEG::serialise() const
{
    if (VantoUApplication::isSoftwareQvt())
        return UString(TextBlock::oneLine(mText));
    TextBlock block("StatusMessage");
    block.field("string0", mText);
    return block.finish();
}

void StatusMessageMEG::timerEvent(UTimerEvent*)
{
    mFirstUnit = TextCells::forward(mShownText, mFirstUnit, UPainter::Columns);
    // A part begins with a word.
    while (mFirstUnit < mShownText.length() && mShownText[mFirstUnit] == ' ')
        ++mFirstUnit;
    if (mFirstUnit == mShownText.length())
        mFirstUnit = 0;
    mTimer.setInterval(std::max(mDuration, ShortestPart));
    mTimer.start();
    refresh();
}

void StatusMessageMEG::paint(UPainter& painter)
{
    painter.clearLine(0);
    painter.text(0, 0, mShownText.mid(mFirstUnit));
}

UWidget* StatusMessageMEG::focusTarget()
{
    return focusByRequest(this);
}

// Volume

VolumeIndicatorMEG::VolumeIndicatorMEG(
    VolumePreviewIconType icon, unsigned int value, unsigned int minimum, unsigned int maximum)
    : mIcon(icon)
    , mHideTimer(this, VolumeTime)
{
    setCoordinates(0, 0, 161, 30);
    mHideTimer.setSingleShot(true);
    setVolume(value, minimum, maximum);
}

VolumeIndicatorMEG::~VolumeIndicatorMEG() = default;

void VolumeIndicatorMEG::setVolume(unsigned int value, unsigned int minimum, unsigned int maximum)
{
    mValue = value;
    mMinimum = minimum;
    mMaximum = maximum;
    mHideTimer.start();
    show();
}

void VolumeIndicatorMEG::createIcon(VolumePreviewIconType icon)
{
    mIcon = icon;
    refresh();
}

void VolumeIndicatorMEG::setRingerVolumeBarLimit(int limit)
{
    mBarLimit = limit;
    refresh();
}

void VolumeIndicatorMEG::timerEvent(UTimerEvent*)
{
    hide();
}

UString VolumeIndicatorMEG::serialise() const
{
    TextBlock block("VolumeIndicator");
    block.field("icon", device(mIcon).word);
    block.field("string0", std::to_string(mValue));
    block.field("string1", std::to_string(mMinimum));
    block.field("string2", std::to_string(mMaximum));
    return block.finish();
}

void VolumeIndicatorMEG::paint(UPainter& painter)
{
    painter.clearLines(0, 1);
    const int column = painter.icon(0, 0, device(mIcon).icon);
    painter.text(0, column, UString(std::string(device(mIcon).label)));
    const int value = toInt(mValue);
    const int minimum = toInt(mMinimum);
    painter.bar(1, 0, UPainter::Columns, minimum, toInt(mMaximum), value < mBarLimit ? minimum : value);
}

UWidget* VolumeIndicatorMEG::focusTarget()
{
    return focusByRequest(this);
}

#include "FPKBarMEG.h"

#include "TextBlock.h"
#include "UPainter.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int BarLine = 2;
constexpr int KeysOfFullWidth = 4;
constexpr unsigned long long FlashTime = 500;
constexpr std::array<const char*, 3> statusWords = {"Off", "On", "Flash"};

}

FPKBarMEG::FPKBarMEG()
    : mFlashTimer(this, FlashTime)
{
    setCoordinates(0, 32, 161, 46);
}

FPKBarMEG::~FPKBarMEG() = default;

FPKBarMEG::Key* FPKBarMEG::entry(int key)
{
    return key < 0 ? nullptr : &mKeys[key];
}

void FPKBarMEG::setFPKLabel(int key, const std::string& label)
{
    if (Key* entry = this->entry(key))
        entry->label = label;
    refresh();
}

void FPKBarMEG::setFPKStatus(int key, int status)
{
    if (Key* entry = this->entry(key))
        entry->status = status == On || status == Flash ? static_cast<Status>(status) : Off;
    updateFlashing();
}

void FPKBarMEG::setAlternateLabel(int key, const std::string& label)
{
    if (Key* entry = this->entry(key))
        entry->alternateLabel = label;
    refresh();
}

void FPKBarMEG::shiftFPKLabel(int key)
{
    if (Key* entry = this->entry(key))
        entry->isShifted = !entry->isShifted;
    refresh();
}

void FPKBarMEG::shiftFPKBar(bool shifted)
{
    mIsShifted = shifted;
    refresh();
}

void FPKBarMEG::shiftChangeEventForCertainFPKey(bool shifted, int key)
{
    if (Key* entry = this->entry(key))
        entry->isShifted = shifted;
    refresh();
}

const std::string& FPKBarMEG::shownLabel(const Key& key) const
{
    const bool isAlternate = (mIsShifted || key.isShifted) && !key.alternateLabel.empty();
    return isAlternate ? key.alternateLabel : key.label;
}

std::vector<const FPKBarMEG::Key*> FPKBarMEG::labelledKeys() const
{
    std::vector<const Key*> keys;
    for (const auto& [number, key] : mKeys) {
        if (!shownLabel(key).empty())
            keys.push_back(&key);
    }
    return keys;
}

UString FPKBarMEG::serialise() const
{
    TextBlock block("FPKBar");
    for (const Key* key : labelledKeys()) {
        block.beginSubitem("FPKLabel");
        block.field("icon0", statusWords[static_cast<std::size_t>(key->status)]);
        block.field("string0", shownLabel(*key));
        block.endSubitem();
    }
    return block.finish();
}

// Painting

void FPKBarMEG::updateFlashing()
{
    const bool isFlashing
        = std::any_of(mKeys.begin(), mKeys.end(), [](const auto& entry) { return entry.second.status == Flash; });
    if (!isFlashing) {
        mFlashTimer.stop();
        mIsFlashDark = false;
    } else if (!mFlashTimer.isRunning()) {
        mFlashTimer.start();
    }
    refresh();
}

void FPKBarMEG::timerEvent(UTimerEvent*)
{
    mIsFlashDark = !mIsFlashDark;
    refresh();
}

void FPKBarMEG::paint(UPainter& painter)
{
    painter.clearLine(BarLine);
    const std::vector<const Key*> keys = labelledKeys();
    const int places = std::max(static_cast<int>(keys.size()), KeysOfFullWidth);
    for (int place = 0; place < static_cast<int>(keys.size()); ++place) {
        // Each place ends with a blank, the last one's outside the glass.
        const int column = place * (UPainter::Columns + 1) / places;
        const int columns = (place + 1) * (UPainter::Columns + 1) / places - column - 1;
        const Key& key = *keys[static_cast<std::size_t>(place)];
        const bool hasLight = key.status != Off;
        const int taken = painter.text(BarLine, column, UString(shownLabel(key)), columns - (hasLight ? 1 : 0));
        if (key.status == On || (key.status == Flash && !mIsFlashDark))
            painter.text(BarLine, column + taken, UString(std::string("*")));
    }
}

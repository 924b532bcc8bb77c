#pragma once

#include "ULoop.h"
#include "UString.h"
#include "UWidget.h"

#include <cstddef>
#include <string>

/// A message in the place of the first line, over all screens, until it is deleted. Its parent and the screens
/// there find the line taken.
///
/// A text that is longer than the line is shown in parts, one after the other.
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's.
class TOOLKIT_EXPORT StatusMessageMEG : public UWidget {
public:
    /// `duration` is the time in milliseconds for which a part of a long text stands, 0 for a fixed time; `start`
    /// is how far into this time the first part begins, so that it changes in step with the system window.
    StatusMessageMEG(const std::string& text, unsigned int start, unsigned int duration);
    ~StatusMessageMEG() override;

    /// The text as it was given.
    std::string text() const { return mText; }

    /// The message in the screen text: on software type 1 the text in one line, on others a block.
    UString serialise() const;

    // Overrides

    void timerEvent(UTimerEvent* event) override;
    void paint(UPainter& painter) override;
    void parentChanged() override;
    UWidget* focusTarget() override;
    bool isPassive() const override { return true; }
    Layer layer() const override { return Layer::StatusMessage; }

private:
    void cover(UWidget* screens);

    UPointer<UWidget> mCovered;
    std::string mText;
    UString mShownText;
    unsigned int mDuration;
    std::size_t mFirstUnit = 0; // of the part that is shown
    UTimer mTimer;
};

/// A preview of a volume, over everything. It hides itself three seconds after the volume was last set.
///
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's.
class TOOLKIT_EXPORT VolumeIndicatorMEG : public UWidget {
public:
    /// Whose volume it is.
    enum VolumePreviewIconType : int {
        Handset = 0,
        Headset = 1,
        Speaker = 2,
        Ringer = 3,
        RingerOff = 4,
        Volume = 5,
    };

    VolumeIndicatorMEG(VolumePreviewIconType icon, unsigned int value, unsigned int minimum, unsigned int maximum);
    ~VolumeIndicatorMEG() override;

    /// Sets the volume and its range, and shows the preview for three seconds from now.
    void setVolume(unsigned int value, unsigned int minimum, unsigned int maximum);

    /// Changes whose volume it is.
    void createIcon(VolumePreviewIconType icon);

    /// The lowest value for which the bar shows something; 1 at first.
    void setRingerVolumeBarLimit(int limit);

    /// The block of the preview in the screen text.
    UString serialise() const;

    // Overrides

    void timerEvent(UTimerEvent* event) override;
    void paint(UPainter& painter) override;
    UWidget* focusTarget() override;
    bool isPassive() const override { return true; }
    Layer layer() const override { return Layer::Volume; }

private:
    VolumePreviewIconType mIcon;
    unsigned int mValue = 0;
    unsigned int mMinimum = 0;
    unsigned int mMaximum = 0;
    int mBarLimit = 1;
    UTimer mHideTimer;
};

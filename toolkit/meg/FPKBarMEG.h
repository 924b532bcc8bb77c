#pragma once

#include "ULoop.h"
#include "UString.h"
#include "UWidget.h"

#include <map>
#include <string>
#include <vector>

/// The labels of the function keys, on the third line of the glass.
///
/// Keys go by the caller's numbers, any not negative, and stand in their order. A key has a label, an alternate
/// label, which is shown while the key or the whole bar is shifted, and a status. A key whose shown label is
/// empty is left out.
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's.
class TOOLKIT_EXPORT FPKBarMEG : public UWidget {
public:
    /// The light of a key.
    enum Status : int {
        Off = 0,
        On = 1,
        Flash = 2,
    };

    FPKBarMEG();
    ~FPKBarMEG() override;

    void setFPKLabel(int key, const std::string& label);

    /// Sets the light of a key; a number outside Status counts as Off.
    void setFPKStatus(int key, int status);

    /// The label of a shifted key that has none of its own for it is the ordinary one.
    void setAlternateLabel(int key, const std::string& label);

    /// Changes a key from its label to the alternate one, or back.
    void shiftFPKLabel(int key);

    /// Shifts all keys, or takes that back.
    void shiftFPKBar(bool shifted);

    /// Shifts one key, or takes that back.
    void shiftChangeEventForCertainFPKey(bool shifted, int key);

    /// The block of the bar in the screen text.
    UString serialise() const;

    // Overrides

    void timerEvent(UTimerEvent* event) override;
    void paint(UPainter& painter) override;
    Layer layer() const override { return Layer::KeyBar; }

private:
    struct Key {
        std::string label;
        std::string alternateLabel;
        Status status = Off;
        bool isShifted = false;
    };

    /// The key's entry, made on first use; null for a negative number.
    Key* entry(int key);
    const std::string& shownLabel(const Key& key) const;
    std::vector<const Key*> labelledKeys() const;
    void updateFlashing();

    std::map<int, Key> mKeys;
    bool mIsShifted = false;
    bool mIsFlashDark = false;
    UTimer mFlashTimer;
};

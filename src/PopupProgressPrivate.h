#pragma once

#include <DisplayAPI/PopupProgressPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <PopupProgressActualMEG.h>

namespace DisplayAPI {

/// The progress popup on the GUI thread: a PopupProgressActualMEG with its texts.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupProgressPrivate final : public PopupProgressPrivateIfc {
public:
    PopupProgressPrivate(Displayable* parent, PopupProgress::ProgressType type);
    ~PopupProgressPrivate() override;

    Displayable* getParent() const { return mParent; }
    Displayable* getPopupProgress() const { return mParent; }

    // Texts, icon and bar

    void setType(PopupProgress::InfoType type) override;
    void setText(const std::string& text) override;
    void setText(TranslationInfo* text) override;
    void setCurrentStageText(const std::string& text) override;
    void setCurrentStageText(TranslationInfo* text) override;
    void setCurrentActivityText(const std::string& text) override;
    void setCurrentActivityText(TranslationInfo* text) override;
    void updateProgressBar(int percent) override;
    void localeChanged(std::string locale);

    // Life on the screen

    UWidget* getWidget() override;
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override { }
    void dismiss() override;
    bool hideOldWidgetOnFocusGained() override { return false; }
    int widgetPosition() override { return 1; }
    void event(UEvent* event) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

private:
    using Field = void (PopupProgressActualMEG::*)(const UString& text);

    void write(Field field, const std::string& text);

    Displayable* mParent;
    PopupProgressActualMEG* mWidget;
    PopupProgress::InfoType mType = PopupProgress::NONE;
    TranslationHolder mTextInfo;
    TranslationHolder mStageInfo;
    TranslationHolder mActivityInfo;
    OwnershipDelegate<PopupProgressActualMEG> mOwnership{&mWidget};
};

}

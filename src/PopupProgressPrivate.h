#pragma once

#include <DisplayAPI/PopupProgressPrivateIfc.h>

#include "PopupPrivate.h"

#include <PopupProgressActualMEG.h>

namespace DisplayAPI {

/// The progress popup on the GUI thread: a PopupProgressActualMEG with its texts.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupProgressPrivate final : public PopupPrivate<PopupProgressPrivateIfc, PopupProgressActualMEG> {
public:
    PopupProgressPrivate(Displayable* parent, PopupProgress::ProgressType type);

    Displayable* getParent() const { return mParent; }
    Displayable* getPopupProgress() const { return mParent; }

    // Texts, icon and bar

    void setType(PopupProgress::InfoType type) override;
    void setText(const std::string& text) override { setLine(mText, text); }
    void setText(TranslationInfo* text) override { setLine(mText, text); }
    void setCurrentStageText(const std::string& text) override { setLine(mStage, text); }
    void setCurrentStageText(TranslationInfo* text) override { setLine(mStage, text); }
    void setCurrentActivityText(const std::string& text) override { setLine(mActivity, text); }
    void setCurrentActivityText(TranslationInfo* text) override { setLine(mActivity, text); }
    void updateProgressBar(int percent) override;
    void localeChanged(std::string locale);

    // Life on the screen

    UWidget* getWidget() override;
    void show() override;
    void event(UEvent* event) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

private:
    Displayable* mParent;
    PopupProgress::InfoType mType = PopupProgress::NONE;
    Line mText{&PopupProgressActualMEG::setText};
    Line mStage{&PopupProgressActualMEG::setStatusText1};
    Line mActivity{&PopupProgressActualMEG::setStatusText2};
};
}

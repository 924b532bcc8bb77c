#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/PopupConfirmPrivateIfc.h>

#include "PopupPrivate.h"

#include <PopupCallMEG.h>

#include <utility>

class UEvent;

namespace DisplayAPI {

class ScreenTextWriter;

/// The question popup on the GUI thread: a PopupDialogMEG with its texts and a row for each choice.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupConfirmPrivate final : public ChoicePopupPrivate<PopupConfirmPrivateIfc, PopupDialogMEG> {
public:
    explicit PopupConfirmPrivate(Displayable* parent);

    /// A popup that no handle stands for.
    explicit PopupConfirmPrivate(bool)
        : PopupConfirmPrivate(nullptr)
    {
    }

    Displayable* getParent() const { return mParent; }
    Displayable* getPopupConfirm() const { return mParent; }

    // Texts

    void setLine1PrefixText(const std::string& text) override { setLine(mLine1Prefix, text); }
    void setLine1PrefixText(TranslationInfo* text) override;
    void setText(const std::string& text) override { setLine(mText, text); }
    void setText(TranslationInfo* text) override { setLine(mText, text); }
    void setLine2PrefixText(const std::string& text) override { setLine(mLine2Prefix, text); }
    void setLine2PrefixText(TranslationInfo* text) override { setLine(mLine2Prefix, text); }
    void setLine2Text(const std::string& text) override { appendToText(mLine2.info.show(text)); }
    void setLine2Text(TranslationInfo* text) override { appendToText(mLine2.info.show(text)); }
    void setState(PopupConfirm::PopupState state) override;
    void localeChanged(std::string locale);

    // Choices

    void addCommand(Command* command) override;
    void setDefaultCommand(Command* command) override;
    void removeCommand(Command* command) override;
    void clearCommands() override;
    int getSelectedIndex() override { return currentRow(); }
    bool selectionHasChanged() override { return std::exchange(mSelectionChanged, false); }

    // Listeners

    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }
    void removeCommandListener(CommandListener* listener) override { mCommandListeners.remove(listener); }

    /// An agent outside, beside the command listeners.
    void setListener(UAgent* listener) override { UAgent::setListener(listener); }
    UAgent* getListener() const { return listener(); }

    // Life on the screen

    void show() override;
    void setTimeout(int milliseconds) override;
    void event(UEvent* event) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

    /// Empty unless a rectangle holds the whole popup.
    std::string serialise(const std::vector<URect>& rects);

private:
    void appendToText(const std::string& text);
    void translateBack(TranslatorIfc* translator);
    void popupCameUp();
    void popupWentDown();
    void windowHiddenAfterTimeout();
    void selectionMoved();
    void backSelected();
    void updateRows();
    void writeText(ScreenTextWriter& writer, const char* key) const;

    bool mSelectionChanged = false;
    Displayable* mParent;
    Command mBackCommand{"", Command::Back};
    PopupConfirm::PopupState mState = PopupConfirm::Information;
    Line mLine1Prefix{&PopupDialogMEG::setLine1PrefixText};
    Line mText{&PopupDialogMEG::setText};
    Line mLine2Prefix{&PopupDialogMEG::setLine2PrefixText};
    Line mLine2{&PopupDialogMEG::setLine2Text};
};

}

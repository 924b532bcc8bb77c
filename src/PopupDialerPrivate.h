#pragma once

#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/PopupDialerPrivateIfc.h>

#include "PopupPrivate.h"
#include "StateItem.h"

#include <PopupDialerMEG.h>

namespace DisplayAPI {

class ScreenTextWriter;

/// The dial popup on the GUI thread: a PopupDialerMEG with its texts and a row for each choice.
///
/// The widget hands the keys that it has no use for to keyEvent(), and they go on to the idle screen behind the
/// dialer, which hands them back to the widget as its own; there they end.
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupDialerPrivate final : public ChoicePopupPrivate<PopupDialerPrivateIfc, PopupDialerMEG> {
public:
    PopupDialerPrivate(Displayable* owner, bool flag);
    ~PopupDialerPrivate() override;

    // Lines

    void setLine1PrefixText(std::string text) override { putLine(mLine1Prefix, text); }
    void setLine1PrefixText(TranslationInfo* text) override { putLine(mLine1Prefix, text); }
    std::string getLine1PrefixText() const { return mLine1Prefix.info.completeString(); }
    void setText(std::string text) override { putLine(mText, text); }
    void setText(TranslationInfo* text) override { putLine(mText, text); }
    void setLine2Text(std::string text) override { putLine(mLine2, text); }
    void setLine2Text(TranslationInfo* text) override { putLine(mLine2, text); }
    std::string getLineEditText() override;
    void setLineEditText(std::string text) override { setLine(mLineEdit, text); }
    void setLineEditText(TranslationInfo* text) override { setLine(mLineEdit, text); }
    void setMode(PopupDialer::eMode mode) override;
    void setEditMode() override;
    void setSysWindowSize(int lines) override { mSysWindowSize = lines; }
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override { return true; }
    void localeChanged(std::string locale);

    // Choices

    void addCommand(MenuCommand* command) override;
    void setDefaultCommand(MenuCommand* command) override;
    void removeCommand(MenuCommand* command) override;
    void clearCommands() override;
    bool hasCommands() const { return !mCommands.empty(); }
    int getSelectedIndex() override { return currentRow(); }
    bool selectionHasChanged() override;

    // Listeners. One for commands stays until it dies

    void removeCommandListener(CommandListener*) override { }
    void addItemStateListener(ItemStateListener* listener) override { mItemStateListeners.addOnce(listener); }
    void removeItemStateListener(ItemStateListener* listener) override { mItemStateListeners.remove(listener); }

    // Life on the screen

    /// The idle screen that gets the keys and layout events; null for none. It is forgotten when it dies.
    void setParentIdleDisplay(UWidget* idleDisplay) override;
    PopupDialerMEG* dialerWidget() const { return mWidget; }
    void show() override;

    // What the user does

    void setIgnoreKeypadEvents(bool ignore) override;
    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

    /// Empty unless a rectangle holds the whole popup.
    std::string serialise(const std::vector<URect>& rects);

    // Without effect on this telephone

    void setStimulusText(std::string) override { }
    void setStimulusText(TranslationInfo*) override { }
    void showStimulusTextInHeader(bool) override { }

private:
    enum class Rows { Visible, All };

    CommandRow* rowOf(const Living<Command>& command) const;
    void uncoverParent();
    void cameUp();
    void refreshDiallerWidgets();
    void leftBackEvent();
    void textChanged();
    void textFieldShown();
    void olistboxMovement();
    std::string firstLine() const;
    void writeRows(ScreenTextWriter& writer, Rows rows) const;

    bool mSelectionChanged = false;
    Displayable* mOwner;
    UPointer<UWidget> mParent;
    bool mIsHandingOn = false; // a key, to the parent
    ListenerList<ItemStateListener> mItemStateListeners;
    Line mLine1Prefix{&PopupDialerMEG::setLine1PrefixText};
    Line mLineEdit{&PopupDialerMEG::setEditText};
    Line mText{&PopupDialerMEG::setText};
    Line mLine2{&PopupDialerMEG::setLine2Text};
    stateItem mStateItem;
    int mSysWindowSize = 0;
    std::string mSysWindowLine0;
    std::string mSysWindowLine1;
};

}

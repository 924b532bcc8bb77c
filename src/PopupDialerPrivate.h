#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/Living.h>
#include <DisplayAPI/PopupDialerPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "StateItem.h"
#include "TranslationHolder.h"

#include <PopupDialerMEG.h>
#include <UString.h>

#include <vector>

class VantoListBoxMEG;

namespace DisplayAPI {

class CommandRow;
class ScreenTextWriter;

/// The dial popup on the GUI thread: a PopupDialerMEG with its texts and a row for each choice.
///
/// The widget hands the keys that it has no use for to keyEvent(), and they go on to the idle screen behind the
/// dialer, which hands them back to the widget as its own; there they end.
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupDialerPrivate final : public PopupDialerPrivateIfc {
public:
    PopupDialerPrivate(Displayable* owner, bool flag);
    ~PopupDialerPrivate() override;

    // Lines

    void setLine1PrefixText(std::string text) override;
    void setLine1PrefixText(TranslationInfo* text) override;
    std::string getLine1PrefixText() const { return mLine1PrefixInfo.completeString(); }
    void setText(std::string text) override;
    void setText(TranslationInfo* text) override;
    void setLine2Text(std::string text) override;
    void setLine2Text(TranslationInfo* text) override;
    std::string getLineEditText() override;
    void setLineEditText(std::string text) override;
    void setLineEditText(TranslationInfo* text) override;
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
    int getSelectedIndex() override;
    bool selectionHasChanged() override;

    // Listeners

    void addItemStateListener(ItemStateListener* listener) override { mItemStateListeners.addOnce(listener); }
    void removeItemStateListener(ItemStateListener* listener) override { mItemStateListeners.remove(listener); }

    // Life on the screen

    /// The idle screen that gets the keys and layout events; null for none. It is forgotten when it dies.
    void setParentIdleDisplay(UWidget* idleDisplay) override;
    PopupDialerMEG* dialerWidget() const { return mWidget; }
    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override { }
    void dismiss() override;
    bool hideOldWidgetOnFocusGained() override { return false; }
    int widgetPosition() override { return 1; }

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
    using Field = void (PopupDialerMEG::*)(const UString& text);

    enum class Rows { Visible, All };

    VantoListBoxMEG* list() const { return mWidget ? mWidget->listbox() : nullptr; }
    void write(Field field, const std::string& text);
    void writeEditLine(const std::string& text);
    std::vector<Living<Command>>::iterator find(MenuCommand* command);
    CommandRow* rowOf(const Living<Command>& command) const;
    void uncoverParent();
    void cameUp();
    void refreshDiallerWidgets();
    void leftBackEvent();
    void textChanged();
    void textFieldShown();
    void olistboxMovement();
    void listItemSelected(const CommandRow* row);
    std::string firstLine() const;
    void writeRows(ScreenTextWriter& writer, Rows rows) const;

    bool mSelectionChanged = false;
    Displayable* mOwner;
    UPointer<UWidget> mParent;
    bool mIsHandingOn = false; // a key, to the parent
    PopupDialerMEG* mWidget;
    ListenerList<ItemStateListener> mItemStateListeners;
    std::vector<Living<Command>> mCommands; // one for each row, in the order of the rows
    int mDefaultIndex = 0;
    TranslationHolder mLine1PrefixInfo;
    TranslationHolder mLineEditInfo;
    TranslationHolder mTextInfo;
    TranslationHolder mLine2Info;
    stateItem mStateItem;
    int mSysWindowSize = 0;
    std::string mSysWindowLine0;
    std::string mSysWindowLine1;
    OwnershipDelegate<PopupDialerMEG> mOwnership{&mWidget};
};

}

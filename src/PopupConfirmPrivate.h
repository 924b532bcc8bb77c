#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Living.h>
#include <DisplayAPI/PopupConfirmPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <PopupCallMEG.h>
#include <UString.h>

#include <vector>

class UEvent;
class VantoListBoxMEG;

namespace DisplayAPI {

class CommandRow;
class ScreenTextWriter;

/// The question popup on the GUI thread: a PopupDialogMEG with its texts and a row for each choice.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class PopupConfirmPrivate final : public PopupConfirmPrivateIfc {
public:
    explicit PopupConfirmPrivate(Displayable* parent);

    /// A popup that no handle stands for.
    explicit PopupConfirmPrivate(bool flag);
    ~PopupConfirmPrivate() override;

    Displayable* getParent() const { return mParent; }
    Displayable* getPopupConfirm() const { return mParent; }

    // Texts

    void setLine1PrefixText(const std::string& text) override;
    void setLine1PrefixText(TranslationInfo* text) override;
    void setText(const std::string& text) override;
    void setText(TranslationInfo* text) override;
    void setLine2PrefixText(const std::string& text) override;
    void setLine2PrefixText(TranslationInfo* text) override;
    void setLine2Text(const std::string& text) override;
    void setLine2Text(TranslationInfo* text) override;
    void setState(PopupConfirm::PopupState state) override;
    void localeChanged(std::string locale);

    // Choices

    void addCommand(Command* command) override;
    void setDefaultCommand(Command* command) override;
    void removeCommand(Command* command) override;
    void clearCommands() override;
    int getSelectedIndex() override;
    bool selectionHasChanged() override;

    // Listeners

    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }
    void removeCommandListener(CommandListener* listener) override { mCommandListeners.remove(listener); }

    /// An agent outside, beside the command listeners.
    void setListener(UAgent* listener) override { UAgent::setListener(listener); }
    UAgent* getListener() const { return listener(); }

    // Life on the screen

    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override { }
    void dismiss() override;
    void setTimeout(int milliseconds) override;
    bool hideOldWidgetOnFocusGained() override { return false; }
    int widgetPosition() override { return 1; }
    void event(UEvent* event) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

    /// Empty unless a rectangle holds the whole popup.
    std::string serialise(const std::vector<URect>& rects);

private:
    using Field = void (PopupNotificationMEG::*)(const UString& text);

    void create();
    VantoListBoxMEG* list() const;
    void write(Field field, const std::string& text);
    void appendToText(const std::string& text);
    void translateBack(TranslatorIfc* translator);
    std::vector<Living<Command>>::iterator find(Command* command);
    void popupCameUp();
    void popupWentDown();
    void windowHiddenAfterTimeout();
    void selectionMoved();
    void rowChosen(const CommandRow& row);
    void backSelected();
    void updateRows();
    void writeText(ScreenTextWriter& writer, const char* key) const;

    bool mSelectionChanged = false;
    Displayable* mParent;
    PopupDialogMEG* mWidget = new PopupDialogMEG;
    std::vector<Living<Command>> mCommands; // one for each row, in the order of the rows, until one is removed
    int mDefaultIndex = 0;
    Command mBackCommand{"", Command::Back};
    PopupConfirm::PopupState mState = PopupConfirm::Information;
    TranslationHolder mLine1PrefixInfo;
    TranslationHolder mTextInfo;
    TranslationHolder mLine2PrefixInfo;
    TranslationHolder mLine2Info;
    OwnershipDelegate<PopupDialogMEG> mOwnership{&mWidget};
};

}

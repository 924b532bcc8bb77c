#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/ContextMenuPrivateIfc.h>
#include <DisplayAPI/Living.h>

#include <ContextMenuMEG.h>
#include <Types.h>
#include <ULoop.h>

#include <vector>

namespace DisplayAPI {

class ContextMenu;
struct CommandText;

/// The menu on the GUI thread: a ContextMenuMEG with a row for each command, and the time after which it goes.
///
/// Unlike other widgets this one is deleted with its private in any case. A toolkit tree that holds it may delete it
/// before; then everything here is without effect.
class ContextMenuPrivate final : public ContextMenuPrivateIfc {
public:
    ContextMenuPrivate(ContextMenu* owner, bool hasBackRow);
    ~ContextMenuPrivate() override;

    // Rows

    void addCommand(
        Command* command, Command* other, bool flag, bool withStatusIcon, const std::string& statusName) override;
    void addCommandWithIcon(MenuCommand* command) override;
    void clearCommands() override;
    void setDefaultCommand(MenuCommand* command) override;
    void setBackTranslator(TranslatorIfc* translator) override;
    Command* getSelectedCommand() override;
    int getSelectedIndex() override;
    bool selectionHasChanged() override;
    void setCommandText(Command* command, const std::string& text, bool flag) override;
    void setRightArrowEqualsOK(bool equals) override;
    void localeChanged(std::string locale);

    // The agent outside

    void setListener(UAgent* listener) override { UAgent::setListener(listener); }
    void removeListener(UAgent* listener) override { UAgent::removeListener(listener); }
    void removeEmitter(UAgent* emitter) override { UAgent::removeEmitter(emitter); }
    UAgent* getListener() const override { return listener(); }

    // Life on the screen

    void setWidget(UWidget* widget) override;
    UWidget* getWidget() override { return mWidget.get(); }
    void releaseOwnership() override { mOwnsWidget = false; }
    void gainOwnership() override;
    bool hasOwnership() const { return mOwnsWidget; }
    void show() override;
    void dismiss() override;
    void lostFocus() override;
    void pushBack() override;
    void setHeight(int lines);
    void setAutoHideTimeout(int seconds) override;
    void setFPKPressedNeedsDialNumber() override { mFPKPressedNeedsDialNumber = true; }
    bool hideOldWidgetOnFocusGained() override { return false; }
    int widgetPosition() override { return 2; }
    bool hasSystemWindow() override { return true; }
    void event(UEvent* event) override;
    void timerEvent(UTimerEvent* event) override;

    // Screen text

    std::string serialise() override;
    std::string serialise(const std::vector<Rect>& rects) override;

    /// Empty unless a rectangle holds the whole menu.
    std::string serialise(const std::vector<URect>& rects) const;

    /// The text of any menu; empty for null.
    std::string serialise(const ContextMenuMEG* menu) const;

    /// Keys that came while no menu was there to take them, for the toolkit.
    static std::vector<UGlobal::Key> missedKeys;
    static void appendMissedKeys(UGlobal::Key key) { missedKeys.push_back(key); }

private:
    void create();
    VantoListBoxMEG* list() const { return mWidget ? mWidget->listBox : nullptr; }
    void addRow(const CommandText& shown, bool flag, unsigned short icon);
    void countCommands(unsigned int count);
    unsigned short markStatus(const std::string& statusName);
    int indexOf(const Command* command) const;
    Command* commandOf(const VantoListBoxItemMEG* row) const;
    void killAutoHideTimer() { mAutoHideTimer.stop(); }
    void resetAutoHideTimer();
    void slideOut();
    void listMoved();
    void rowChosen(const VantoListBoxItemMEG* row);
    void arrowPressed(Command& command);
    bool tellAgent(std::uint16_t type);

    bool mSelectionChanged = false;
    ContextMenu* mOwner;
    const bool mHasBackRow;
    UPointer<ContextMenuMEG> mWidget;
    bool mOwnsWidget = true;
    std::vector<Living<Command>> mCommands; // one for each row but the one that leads back, in the order of the rows
    Command mBackCommand{"", Command::Back};
    Command mRightCommand{"", Command::Right};
    Command mDismissCommand{"", Command::Dismiss};
    int mDefaultIndex = 0;
    TranslatorIfc* mBackTranslator = nullptr;
    int mAutoHideTimeout = 0; // seconds
    UTimer mAutoHideTimer{this};
    bool mFPKPressedNeedsDialNumber = false;
    unsigned int mCommandCount = 0;
};

}

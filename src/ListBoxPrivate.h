#pragma once

#include <DisplayAPI/ListBoxPrivateIfc.h>
#include <DisplayAPI/PopupDialerPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <UAgent.h>
#include <VantoListBoxWithTitleMEG.h>

#include <string>

class VantoListBoxItemMEG;
class VantoListBoxMEG;

namespace DisplayAPI {

class Command;

/// The list on the GUI thread: drives one toolkit list with a title, and turns its events into commands.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class ListBoxPrivate : public ListBoxPrivateIfc, public UAgent {
public:
    ListBoxPrivate(Displayable* owner, bool hasBackItem);

    /// Takes over a widget that a subclass has made, and leaves it to the subclass to listen to it.
    ListBoxPrivate(Displayable* owner, VantoListBoxWithTitleMEG* widget);
    ~ListBoxPrivate() override;

    // Screen

    UWidget* getWidget() override { return mWidget; }
    VantoListBoxWithTitleMEG* getListWidget() const { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    Displayable* getParent() override { return mOwner; }
    void show() override;
    void hide() override;
    void lostFocus() override;
    void setSystemWindowSize(int) override { }
    void setSystemWindowText(int, const std::string&) override { }

    // Screen text

    /// Empty: a list has text for rectangles only.
    std::string serialise() override;
    std::string serialise(const std::vector<Rect>& rects) override;

    /// Whether the last text had a caption.
    bool hasCaption() override { return mHasCaption; }

    // Rows

    int size() override;
    void append(ListItemPrivateIfc* row) override;
    void clear() override;
    int getSelectedIndex() override;
    void setSelectedIndex(int index) override;
    void setSelected(ListItemPrivateIfc* row) override;
    void insertAt(ListItemPrivateIfc* row, int index) override;
    void removeAt(int index, ListItemPrivateIfc* row) override;
    void remove(ListItemPrivateIfc* row) override;
    void move(ListItemPrivateIfc* oldRow, ListItemPrivateIfc* newRow, int index) override;

    // Title

    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    void localeChanged(std::string locale);

    // Dialer

    void showDiallerOnInitialKeyEvent(bool show) override { mShowDialerOnKey = show; }
    void setDialler(PopupDialer* dialer) override;
    void dismissDialler() override;

    // Settings that are stored only

    bool showsDialerOnKey() const { return mShowDialerOnKey; }
    bool hasBackItem() const { return mHasBackItem; }

    // What the user does

    void event(UEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    void clicked();
    void leftEvent();
    void rightEvent();

protected:
    /// Lets the list hear of changes of the locale.
    void initialise();

    /// What stands behind every title.
    std::string mTitleSuffix;

private:
    VantoListBoxMEG* list() const { return mWidget ? mWidget->list() : nullptr; }
    void leaveScreen();
    void comeBack();
    void listenTo(VantoListBoxItemMEG* row);
    void showTitle(const std::string& title);
    void translateBack();
    void tellOwner(Command* command);

    Displayable* mOwner;
    VantoListBoxWithTitleMEG* mWidget; // null once a tree that owned it has deleted it
    UPointer<UWidget> mFormerParent;   // where the list stood when its last row was removed
    bool mHasCaption = false;
    TranslationHolder mTitleInfo;
    UPointer<PopupDialerPrivateIfc> mDialerPrivate;
    bool mDialerActive = false;
    bool mShowDialerOnKey = false;
    bool mHasBackItem = false;
    OwnershipDelegate<VantoListBoxWithTitleMEG> mOwnership{&mWidget};
};

}

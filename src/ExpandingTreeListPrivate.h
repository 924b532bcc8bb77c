#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/ExpandingTreeListPrivateIfc.h>
#include <DisplayAPI/ListenerList.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <ExpandingListMEG.h>

#include <string>
#include <vector>

namespace DisplayAPI {

class ScreenTextWriter;

/// The expanding list on the GUI thread: drives one toolkit list, and turns its events into commands.
class ExpandingTreeListPrivate final : public ExpandingTreeListPrivateIfc {
public:
    explicit ExpandingTreeListPrivate(ExpandingTreeList* parent);
    ~ExpandingTreeListPrivate() override;

    ExpandingTreeList* getParent() const { return mParent; }

    // Screen

    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override { }
    void enable(bool) override { }
    void widgetDismissed(DisplayablePrivate*) override { }
    bool hideOldWidgetOnFocusGained() override { return true; }
    int widgetPosition() override { return 0; }
    void align() override { }
    void unalign() override { }

    // Rows and title

    void append(ExpandingTreeListItemPrivateIfc* item) override;
    void clear() override;
    int getSelectedIndex() override;
    void setReadonly(int index, bool readOnly) override;
    void setRightArrowEqualsOK(bool equals) override;
    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    void localeChanged(std::string locale) override;

    // What the user does, and those who hear of it: the base's operations take none of them out

    void addCommandListener(CommandListener* listener) override { mListeners.add(listener); }
    std::vector<CommandListener*> getCommandListeners() const { return mListeners.all(); }
    void event(UEvent* event) override;
    void selectedEvent() { tell(mOkCommand); }
    void leftEvent() { tell(mBackCommand); }
    void rightEvent() { tell(mRightCommand); }

    // Screen text

    bool hasCaption() override { return true; }
    std::string serialise() override;

    /// The same, whatever the rectangles are.
    std::string serialise(const std::vector<Rect>& rects) override;

private:
    void showTitle(const std::string& title);
    void tell(Command& command);
    void rowMoved();
    int getSelectedIndexForSerialisation();
    void serialiseTitle(ScreenTextWriter& writer) const;
    void serialiseTopItem(ScreenTextWriter& writer);
    void serialiseCheckedRow(ScreenTextWriter& writer, const CallForwardListItemMEG& top) const;
    void serialiseTextRow(ScreenTextWriter& writer, const CallForwardListItemMEG& top) const;
    void serialiseCheckboxIconIfRequired(ScreenTextWriter& writer, const CallForwardListItemMEG& row) const;
    void serialiseTopItemScrollArrows(ScreenTextWriter& writer) const;

    ExpandingListMEG* mWidget = new ExpandingListMEG; // null once a tree that owned it has deleted it
    ListenerList<CommandListener> mListeners;
    Command mRightCommand{"", Command::Right};
    Command mOkCommand{"", Command::Select};
    Command mBackCommand{"", Command::Back};
    ExpandingTreeList* mParent;
    TranslationHolder mTitleInfo;
    OwnershipDelegate<ExpandingListMEG> mOwnership{&mWidget};
};

}

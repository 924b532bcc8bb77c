#pragma once

#include <DisplayAPI/QVTListPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <UWidget.h>
#include <VantoListBoxWithTitleMEG.h>

#include <map>
#include <string>

class VantoListBoxItemMEG;
class VantoListBoxMEG;

namespace DisplayAPI {

class Command;
class QVTList;

/// The QVT list on the GUI thread: drives one toolkit list, and tells its events apart from what the application does.
///
/// It is a widget that stands in no tree. A toolkit tree that holds the list's widget may delete that; then everything
/// here is without effect.
class QVTListPrivate final : public UWidget, public QVTListPrivateIfc {
public:
    explicit QVTListPrivate(QVTList* parent);
    ~QVTListPrivate() override;

    // What this class has a table of its own for, in the order of that table

    void numtitlelines(unsigned int) override { }
    void titlecolour(int) override { }
    void titletext(unsigned int line, const std::string& text) override;
    void titletext(unsigned int line, TranslationInfo* text) override;
    void cleartitle() override;
    bool selectionchanged() const override;
    void append(ListItemPrivateIfc* row) override;
    void clear() override;
    void gainOwnership() override { mOwnership.gainOwnership(); }
    Displayable* getParent() override;
    int getSelectedIndex() override;
    UWidget* getWidget() override { return mWidget; }
    void insertAt(ListItemPrivateIfc* row, int index) override;
    void lostFocus() override;
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void remove(ListItemPrivateIfc* row) override;

    /// Without effect: only the handle moves its rows.
    void move(ListItemPrivateIfc*, ListItemPrivateIfc*, int) override { }

    /// Takes the toolkit's row at `index` out, whosever it is.
    void removeAt(int index, ListItemPrivateIfc* row) override;

    /// Shows the highlight bar, too.
    void setSelectedIndex(int index) override;
    void setTitle(TranslationInfo* title) override;
    void setTitle(const std::string& title) override;
    void setSystemWindowSize(int) override { }
    void setSystemWindowText(int, const std::string&) override { }
    void setIsPageList(bool) override { }
    void setDialler(PopupDialer*) override { }
    void showDiallerOnInitialKeyEvent(bool) override { }
    void dismissDialler() override { }
    int size() override;
    std::string serialise(const std::vector<Rect>& rects) override;
    void setSelectionHighlight(bool) override { }
    void setSysWindowSize(int) override { }
    void setSysWindowText(std::string, int) override { }

    // Behind it

    void show() override;
    void hide() override;
    void setSelected(ListItemPrivateIfc* row) override;
    std::string serialise() override;
    void event(UEvent* event) override;

private:
    VantoListBoxMEG* list() const { return mWidget ? mWidget->list() : nullptr; }
    template <typename Condition>
    ListItemPrivateIfc* findHalf(Condition isWanted) const;
    void currentChanged(UAgent* row);
    void localeChanged(std::string locale);
    void tellParent(Command* command);

    std::map<unsigned int, TranslationHolder> mDisplayTexts;
    QVTList* mParent;
    mutable bool mSelectionChanged = false;
    bool mHasLastCurrentItem = false;  // or had: it may have died
    UPointer<UAgent> mLastCurrentItem; // the row to which the user moved last
    VantoListBoxWithTitleMEG* mWidget;
    OwnershipDelegate<VantoListBoxWithTitleMEG> mOwnership{&mWidget};
};

}

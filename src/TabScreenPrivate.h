#pragma once

#include <DisplayAPI/ListenerList.h>
#include <DisplayAPI/TabListener.h>
#include <DisplayAPI/TabScreenPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "ScreenHolder.h"
#include "TabData.h"

#include <TabScreenMEG.h>
#include <VantoListBoxWithTitleMEG.h>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

class VantoListBoxMEG;

namespace DisplayAPI {

/// The tab screen on the GUI thread: a TabScreenMEG, in which stands the list of titles or the widget of a tab's
/// screen.
///
/// A tree of the toolkit that holds the widget may delete it, and what stands in it; there is none at all while there
/// is no application. What concerns it is left out then.
class TabScreenPrivate final : public TabScreenPrivateIfc, private ScreenHolder {
public:
    TabScreenPrivate(TabScreen* parent, TabScreen::IconType iconType);
    ~TabScreenPrivate() override;

    TabScreen* getParent() const override { return mParent; }
    TabScreen::IconType iconType() const { return mIconType; }

    // Screen

    UWidget* getWidget() override { return mWidget; }
    TabScreenMEG* getTabWidgetMEG() const { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void lostFocus() override;

    /// The tabs' screens come on the display with this one, and leave it.
    void connectDisplayChangedSignal(DisplayPrivateIfc* display) override;
    void event(UEvent* event) override;

    // Tabs

    void addTab(const std::string& title, DisplayablePrivateIfc* displayable, bool flag) override;
    void addTab(TranslationInfo* title, DisplayablePrivateIfc* displayable, bool flag) override;
    int numberOfTabs() override { return static_cast<int>(mTabs.size()); }
    unsigned int getSelectedIndex() override { return mSelected; }
    void setSelectedIndex(unsigned int index) override;
    void setTitleForTabAtIndex(unsigned int index, const std::string& title) override;
    void setTitleForTabAtIndex(unsigned int index, TranslationInfo* title) override;
    std::string getTitleForTabAtIndex(unsigned int index) override;
    void setCurrentDisplayable(Displayable* displayable) override;
    void setCurrentDisplayableForTabAtIndex(unsigned int index, Displayable* displayable) override;
    void removeTab(TabData* tab) override;
    void removeTab(DisplayablePrivateIfc* displayable) override;
    void removeTabAtIndex(unsigned int index) override;
    void nextTab() override;

    /// The widget of the current tab's screen; null without one.
    UWidget* getWidgetOnCurrentTab() const;

    // Listeners. One that is added twice is told twice, and stays until it dies

    void addCommandListener(CommandListener* listener) override { mCommandListeners.add(listener); }
    void removeCommandListener(CommandListener*) override { }
    void clearCommandListeners() override { }
    void setTabListener(TabListener* listener) override { mTabListeners.add(listener); }

    // What is up

    void setTitle(std::string& title) override;
    void showTabList() override;
    void showTab(unsigned int index) override;
    void localeChanged(std::string locale) override;
    void showMainTabList() override { mShowsTabList = true; }

    // Screen text

    std::string serialise() override;
    std::string serialise(const std::vector<Rect>& rects) override;

private:
    /// The text of a tab's screen, and whether it has its caption already.
    struct ContentText {
        std::string text;
        bool hasCaption = false;
    };

    // Who holds the tabs' screens
    DisplayablePrivate& screen() override { return *this; }
    void screenDies(DisplayablePrivate& half) override;
    void takeBack(DisplayablePrivate& half) override;

    TabData* tabAt(unsigned int index) const;
    TabData* tabWith(const DisplayablePrivateIfc* displayable) const;
    void add(std::unique_ptr<TabData> tab);
    void giveBack(DisplayablePrivateIfc& displayable);
    bool replace(TabData& tab, DisplayablePrivateIfc* displayable);

    VantoListBoxMEG* list() const { return mTabList ? mTabList->list() : nullptr; }
    bool isTabListUp() const { return mTabList && mContent.get() == mTabList.get(); }
    bool isInTree() const { return mWidget && mWidget->parentWidget(); }
    void takeContentOut();
    void updateTabList();
    void updateWidgetTitle();
    void showContent(DisplayablePrivateIfc& displayable);
    void titleChanged();
    void tabChosen();
    void backSelected();
    std::string write(const std::function<ContentText(DisplayablePrivateIfc&)>& read) const;

    TabScreen::IconType mIconType;
    TabScreen* mParent;
    TabScreenMEG* mWidget;
    const bool mHasHadWidget; // then there is no text without it
    UPointer<VantoListBoxWithTitleMEG> mTabList;
    unsigned int mSelected = 0; // past the end, perhaps, since tabs have gone
    UPointer<UWidget> mContent; // what has been put into the widget: the list of titles, or a tab's
    std::vector<std::unique_ptr<TabData>> mTabs;
    ListenerList<TabListener> mTabListeners;
    std::atomic<bool> mShowsTabList = true; // with the next show()
    OwnershipDelegate<TabScreenMEG> mOwnership{&mWidget};
};

}

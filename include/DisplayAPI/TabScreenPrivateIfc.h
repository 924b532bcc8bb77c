#pragma once

#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/TabScreen.h>

#include <UAgent.h>

namespace DisplayAPI {

class TabData;
class TabListener;

/// The tab screen on the GUI thread, as its handle sees it. It knows the halves of the tabs' screens.
///
/// An operation that changes what can be seen ends with the display's notice, in which the subscriber may delete the
/// tab screen, and this with it. Threads: GUI thread only, but for addCommandListener() and showMainTabList().
/// Ownership: while a half is in a tab, its widget is the tab screen's to show. Titles given as a translation are taken
/// over.
/// Errors: an index outside, and a half that is in no tab, change nothing. Null is a tab without a screen.
class DISPLAYAPI_EXPORT TabScreenPrivateIfc : public DisplayablePrivate, public UAgent {
public:
    virtual TabScreen* getParent() const = 0;

    // Tabs

    virtual void addTab(const std::string& title, DisplayablePrivateIfc* displayable, bool flag) = 0;
    virtual void addTab(TranslationInfo* title, DisplayablePrivateIfc* displayable, bool flag) = 0;
    virtual int numberOfTabs() = 0;
    virtual unsigned int getSelectedIndex() = 0;

    /// Brings the tab up.
    virtual void setSelectedIndex(unsigned int index) = 0;
    virtual void setTitleForTabAtIndex(unsigned int index, const std::string& title) = 0;
    virtual void setTitleForTabAtIndex(unsigned int index, TranslationInfo* title) = 0;
    virtual std::string getTitleForTabAtIndex(unsigned int index) = 0;
    virtual void setCurrentDisplayable(Displayable* displayable) = 0;
    virtual void setCurrentDisplayableForTabAtIndex(unsigned int index, Displayable* displayable) = 0;

    /// Takes a tab out and deletes its data; its screen is whole again.
    virtual void removeTab(TabData* tab) = 0;
    virtual void removeTab(DisplayablePrivateIfc* displayable) = 0;
    virtual void removeTabAtIndex(unsigned int index) = 0;
    virtual void nextTab() = 0;

    /// Kept, and never called.
    virtual void setTabListener(TabListener* listener) = 0;

    // What is up

    /// The title of the list of titles, until the locale changes.
    virtual void setTitle(std::string& title) = 0;
    virtual void showTabList() = 0;
    virtual void showTab(unsigned int index) = 0;
    virtual void localeChanged(std::string locale) = 0;

    /// Lets the next show() bring the list of titles.
    virtual void showMainTabList() = 0;
};

}

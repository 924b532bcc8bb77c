#pragma once

#include <DisplayAPI/Displayable.h>

#include <memory>
#include <string>
#include <vector>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class TabScreenPrivateIfc;
template <typename T>
class OwnedHandles;

/// Several screens in one: a list of their titles, or the one that is chosen below its title.
///
/// It begins with the list. OK there reaches the command listeners as OK(), with the chosen tab as the current one; it
/// is for them to bring the tab up, by setCurrentTabIndex(). Left takes the tab screen off the glass and reaches them
/// as BACK_COMMAND(). While a tab is up, its screen has the keys and tells its own listeners; showTabList() leads back.
///
/// Threads: any, but for localeChanged(). Each call returns after it has run on the GUI thread.
/// Ownership: the screen of a tab belongs to the tab screen, until it is removed or replaced: then it is the
/// application's again, has its widget and is on no display. Deleting the tab screen deletes its tabs' screens, from
/// the last to the first. A screen that is deleted while it is in a tab leaves with its tab, as by removeTab(). Titles
/// given as a translation become the tab screen's; listeners stay the application's.
/// Errors: a screen that is in a tab already, of this tab screen or another, is refused, and so is one without a half
/// on the GUI thread, the tab screen itself, and one that holds it. It stays whose it is; a translation that came with
/// it is deleted. Once the loop has ended, calls from other threads than the GUI thread change nothing. Screen text: an
/// object "VantoListBox" with the titles' row; or the text of the tab's screen, where the tab's title becomes the
/// caption of the first list that has none.
class DISPLAYAPI_EXPORT TabScreen : public Displayable {
public:
    /// What stands for the tabs on telephones that show icons; it has no names and no effect here.
    enum IconType : int {};

    /// A tab screen without tabs; the flag has no effect.
    TabScreen(IconType iconType, bool flag);
    ~TabScreen() override;

    // Tabs

    /// Adds a tab at the end, with a screen or, for null, without. The flag has no effect.
    void addTab(const std::string& title, Displayable* displayable, bool flag);
    void addTab(TranslationInfo* title, Displayable* displayable, bool flag);

    /// Takes out the first tab with this screen, which null finds too. The current tab stays the same number, and the
    /// list of titles as it is until the next title comes or changes.
    void removeTab(Displayable* displayable);

    /// As removeTab(); an index outside is ignored.
    void removeTabAtIndex(int index);

    /// The number of tabs; -1 where there is no answer, since the event loop has ended.
    int numberOfTabs() const;

    /// The screens of the tabs, null for a tab without one. It is read at once, on any thread.
    std::vector<Displayable*> getDisplayableItems() const;

    /// The screen of a tab: of the first for an index below 1; null past the end.
    Displayable* getDisplayableForTabAtIndex(int index) const;

    /// The first tab with this screen, which null finds too; -1 for none.
    int getIndexForTab(Displayable* displayable) const;

    // The current tab

    /// The screen of the current tab; null without one, and if the number of the current tab is past the end.
    Displayable* currentTab() const;

    /// The number of the current tab, from 0; -1 where there is no answer, since the event loop has ended.
    int getCurrentTabIndex() const;

    /// Makes a tab current, and brings it up; an index outside changes nothing.
    void setCurrentTabIndex(int index);

    /// Makes the next tab current, behind the last one the first. It comes up unless the list of titles is there.
    void nextTab();

    /// Puts another screen into the current tab, or none for null.
    void setCurrentDisplayable(Displayable* displayable);

    /// The same for a tab; an index outside is ignored.
    void setCurrentDisplayableForTabAtIndex(int index, Displayable* displayable);

    /// Lets the list of titles come the next time that the tab screen is shown. It gives no notice.
    virtual void showTabList();

    // Titles

    /// Changes the title of a tab. The list of titles begins at its first row again, also for an index outside.
    void setTitleForTabAtIndex(int index, const std::string& title);

    /// The same with a translation; null is the empty title.
    void setTitleForTabAtIndex(int index, TranslationInfo* title);

    /// The title without what stands before and behind a translation; empty for an index outside.
    std::string getTitleForTabAtIndex(int index) const;

    /// Reads the titles again. Threads: GUI thread.
    void localeChanged(std::string locale);

    // Commands

    /// Adds a listener at once, on any thread; one that is added twice is told twice.
    void addCommandListener(CommandListener* listener);

    // What the listeners are told. The commands last as long as the process and are told apart by address.

    static Command* BACK_COMMAND();
    static Command* OK();

    /// Never posted, both.
    static Command* TABBACK_COMMAND();
    static Command* TABFWD_COMMAND();

    // Without effect on this telephone

    void previousTab();
    void leaveTabBar();
    void enterTabBar();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(IconType iconType, bool flag);
    void destroy();
    auto halfOf() const;
    bool mayHold(Displayable* displayable) const;

    std::unique_ptr<TabScreenPrivateIfc> mPrivate;
    std::unique_ptr<OwnedHandles<Displayable>> mDisplayableItems; // one for each tab
};

}

#pragma once

#include <DisplayAPI/CallLogMainItem.h>
#include <DisplayAPI/ExpandingTreeListItem.h>

#include <atomic>
#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CallForwardItemPrivateIfc;

/// A kind of call forwarding in an ExpandingTreeList: its name behind a check box or an icon, and below it where the
/// calls go.
///
/// No key changes the check mark: the application does, when the list has told it of OK.
///
/// Threads: any, but for localeChanged(). Each call returns after it has run on the GUI thread. iconType() is read at
/// once. Ownership: as ExpandingTreeListItem. Translations handed in become the item's, but for the prefix of
/// setTextBranch(). Errors: an item that shows no row, or whose list has deleted it, keeps its translations, changes
/// nothing else, and answers false and the empty text. The same holds once the loop has ended, for calls from other
/// threads than the GUI thread. Screen text: a subitem "ExpandingListBoxItem".
class DISPLAYAPI_EXPORT CallForwardItem : public ExpandingTreeListItem {
public:
    /// The line below the row that setTextBranch() is for. The numbers have no names and no effect: there is one text
    /// for both lines.
    enum eCallForwardBranchLine : int {};

    /// A row with a check box for the type 0, and with the icon of a kind of forwarding for 5, 6 and 7. Every other
    /// type shows no row. Of the translation stands what it says alone, until the locale changes. The arrow shows that
    /// Right leads on from here.
    CallForwardItem(CallLogMainItem::IconType iconType, TranslationInfo* text, bool readOnly, bool arrow);

    /// A row of text alone, with what stands before and behind the translation.
    explicit CallForwardItem(TranslationInfo* text);
    ~CallForwardItem() override;

    // Check mark

    void swapCheck();
    void check();
    void uncheck();
    bool getCheck() const;

    // Texts

    std::string getText() const;
    void setTextMain(const std::string& text);

    /// Shows the complete translation; null is the empty text.
    void setTextMain(TranslationInfo* text);

    /// Shows where the calls go, behind the prefix and a blank if there is a prefix; an empty text takes the lines
    /// away. The prefix stays the caller's, and is read now.
    void setTextBranch(const std::string& text, TranslationInfo* prefix, eCallForwardBranchLine line);

    /// The same, without what stands before and behind the translation. A change of locale reads the complete
    /// translation again, for the first line alone and without the prefix.
    void setTextBranch(TranslationInfo* text, TranslationInfo* prefix, eCallForwardBranchLine line);

    // State

    /// OK raises nothing on a read-only row. The second flag has no effect.
    void setReadonly(bool readOnly, bool flag);

    /// Shows that calls are forwarded, by the icon of a row that has one. A check box is not shown meanwhile.
    void setCFIconVisible(bool visible);

    /// 5, 6 or 7 if the item was made with that; 0 for every other type.
    CallLogMainItem::IconType iconType() const;

    /// Without effect.
    void cleanBranches();

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    ExpandingTreeListItemPrivateIfc* getPrivateImpl() override;
    void localeChanged(std::string locale) override;

private:
    enum class Request : int;

    void create(CallLogMainItem::IconType iconType, TranslationInfo* text, bool readOnly, bool arrow);
    void create(TranslationInfo* text);
    void setHalf(CallForwardItemPrivateIfc* half);
    void destroy();

    std::unique_ptr<CallForwardItemPrivateIfc> mPrivate;
    std::atomic<CallLogMainItem::IconType> mIconType = CallLogMainItem::NoIcon;
};

}

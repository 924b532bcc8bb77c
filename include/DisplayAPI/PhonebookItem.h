#pragma once

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/ListItem.h>

#include <string>

namespace DisplayAPI {

/// A row of the directory, which this telephone does not show: a list takes it, and has nothing of it on the glass.
///
/// Threads: any. The constructors wait for the GUI thread.
/// Ownership: as ListItem; a translation handed in becomes the row's.
class DISPLAYAPI_EXPORT PhonebookItem : public ListItem {
public:
    /// What stands before a directory entry or a menu command; the numbers are fixed.
    enum IconType : int {
        NoIcon = 0,
        Private = 1,
        Business1 = 2,
        Business2 = 3,
        Mobile = 4,
        Other = 5,
        ImageIcon = 6, ///< The command carries an image of its own.
        Folder = 7,
        Group = 8,
        Selection = 39,
        Service = 51,
        Feature = 52,
    };

    /// Icon, text and flags have no effect, here and below.
    PhonebookItem(IconType icon, bool flag1, std::string text, bool flag2);
    PhonebookItem(IconType icon, bool flag1, TranslationInfo* text, bool flag2);
    ~PhonebookItem() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    /// Without effect.
    virtual void rewritePhonebookListItem(IconType icon, bool flag1, std::string text, bool flag2);

    /// The icon behind the one with a party's number; none for a number above 4.
    static IconType callPartyIconToIconType(const CallPartyIdentifier::PhoneNumberIconType& type);

private:
    enum class Request : int;

    void initialise(IconType icon, bool flag1, const std::string& text, bool flag2);
    void initialise(IconType icon, bool flag1, TranslationInfo* text, bool flag2);
};

}

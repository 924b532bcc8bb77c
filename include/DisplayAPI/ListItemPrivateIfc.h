#pragma once

#include <DisplayAPI/Icons.h>

#include <string>

class TranslationInfo;
class VantoListBoxItemMEG;

namespace DisplayAPI {

/// The half of a row that lives on the GUI thread, as lists see it. What a kind of row has no use for does nothing.
///
/// Threads: GUI thread only, but for getLeftIcon().
/// Ownership: the half owns the toolkit's row, unless releaseOwnership() has said that a list does. A translation handed
/// in becomes the half's.
class ListItemPrivateIfc {
public:
    virtual ~ListItemPrivateIfc() = default;

    /// Reads the translations again.
    virtual void localeChanged(std::string locale) = 0;

    /// A list has taken the toolkit's row.
    virtual void releaseOwnership() = 0;

    /// The toolkit's row stands in no list any more.
    virtual void gainOwnership() { }
    virtual void setText(std::string) { }
    virtual void setText(TranslationInfo*) { }
    virtual void setRightText(std::string) { }
    virtual void setRightText(TranslationInfo*) { }

    /// The toolkit's row; null when the toolkit has deleted it, and for a kind of row that has none.
    virtual VantoListBoxItemMEG* getVantoListItem() = 0;
    virtual void startInfiniteProgressBar() { }
    virtual void setLeftIcon(Icons::IconType) { }

    /// Threads: any.
    virtual Icons::IconType getLeftIcon() { return {}; }
};

}

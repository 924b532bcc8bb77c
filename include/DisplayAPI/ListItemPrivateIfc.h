#pragma once

#include <DisplayAPI/Icons.h>

#include <string>

class TranslationInfo;
class VantoListBoxItemMEG;

namespace DisplayAPI {

/// The half of a row that lives on the GUI thread, as lists see it.
class ListItemPrivateIfc {
public:
    virtual ~ListItemPrivateIfc() = default;
    virtual void localeChanged(std::string locale) = 0;
    virtual void releaseOwnership() = 0;
    virtual void gainOwnership() { }
    virtual void setText(std::string) { }
    virtual void setText(TranslationInfo*) { }
    virtual void setRightText(std::string) { }
    virtual void setRightText(TranslationInfo*) { }

    /// The toolkit's row; null when the toolkit has deleted it.
    virtual VantoListBoxItemMEG* getVantoListItem() = 0;
    virtual void startInfiniteProgressBar() { }
    virtual void setLeftIcon(Icons::IconType) { }
    virtual Icons::IconType getLeftIcon() { return {}; }
};

}

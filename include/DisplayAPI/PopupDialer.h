#pragma once

#include <DisplayAPI/Dialog.h>

namespace DisplayAPI {

/// The dial popup, as the screens that hand their keys to it see it.
class DISPLAYAPI_EXPORT PopupDialer : public Dialog {
public:
    /// What the first line shows.
    enum eMode : int {
        EDIT = 0,  ///< The number being typed.
        LABEL = 1, ///< The fixed text.
    };

    /// A PopupDialerPrivateIfc, or null until it has been made.
    DisplayablePrivateIfc* getPrivateImpl() override = 0;
};

}

#pragma once

#include <DisplayAPI/Dialog.h>

namespace DisplayAPI {

class Command;

/// The dial popup, as the screens that hand their keys to it see it.
class DISPLAYAPI_EXPORT PopupDialer : public Dialog {
public:
    /// What the first line shows.
    enum eMode : int {
        EDIT = 0,  ///< The number being typed.
        LABEL = 1, ///< The fixed text.
    };

    /// Told to the listeners when the user goes left on an empty edit line. It lasts as long as the process and is
    /// told apart by its address.
    static Command* BackCommand();

    /// A PopupDialerPrivateIfc, or null until it has been made.
    DisplayablePrivateIfc* getPrivateImpl() override = 0;
};

}

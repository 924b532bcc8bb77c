#pragma once

#include <string>

class ContextMenuMEG;

namespace DisplayAPI {

/// The text block of a menu, whoever shows it: the menu's own screen, or a form as the choices of a row. Empty for
/// null. The texts that were set for the next reading of its list box are used up.
std::string contextMenuText(const ContextMenuMEG* menu);

}

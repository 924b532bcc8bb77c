#include "ContextMenuText.h"

#include "ScreenTextWriter.h"

#include <ContextMenuMEG.h>
#include <UString.h>
#include <VantoListBoxMEG.h>

namespace DisplayAPI {

std::string contextMenuText(const ContextMenuMEG* menu)
{
    if (!menu)
        return {};
    ScreenTextWriter writer;
    writer.unnamedObject();
    // Only a menu that is in has a line, and with it a name.
    const int line = menu->getStartLinePosition();
    if (line >= 1)
        writer.field("name", "ContextMenu20Line" + std::to_string(line));
    if (menu->listBox)
        writer.blocks(menu->listBox->screenText().toUTF8());
    writer.endObject();
    return writer.take();
}

}

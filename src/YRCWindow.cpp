#include <DisplayAPI/YRCWindow.h>

#include "ExistingDisplayables.h"

namespace DisplayAPI {

YRCWindow::YRCWindow(bool)
    : mPrivate(std::make_unique<Private>())
{
    mName = "YRCWindow";
}

YRCWindow::~YRCWindow()
{
    unregisterDisplayable(this);
}

void YRCWindow::processGuiRequest(GuiRequestEvent&) { }

DisplayablePrivateIfc* YRCWindow::getPrivateImpl()
{
    return nullptr;
}

void YRCWindow::setIsPhoneKeyset(bool) { }

void YRCWindow::resize(int, int) { }

void YRCWindow::move(int, int) { }

void YRCWindow::show() { }

void YRCWindow::hide() { }

void YRCWindow::setHasContextMenu(bool) { }

void YRCWindow::setHasPopup(bool) { }

void YRCWindow::setNumberOfCalls(int) { }

void YRCWindow::setHasTwoLeaves(bool) { }

void YRCWindow::setNumberOfConferenceMembers(int) { }

void YRCWindow::removeCommandListener(CommandListener*) { }

void YRCWindow::setIsSelfViewWindow(bool) { }

}

#include <DisplayAPI/PIPWindow.h>

#include "ExistingDisplayables.h"

namespace DisplayAPI {

PIPWindow::PIPWindow(bool)
    : mPrivate(std::make_unique<Private>())
{
    mName = "PIPWindow";
}

PIPWindow::~PIPWindow()
{
    unregisterDisplayable(this);
}

void PIPWindow::processGuiRequest(GuiRequestEvent&) { }

DisplayablePrivateIfc* PIPWindow::getPrivateImpl()
{
    return nullptr;
}

void PIPWindow::resize(int, int) { }

void PIPWindow::move(int, int) { }

void PIPWindow::show() { }

void PIPWindow::hide() { }

void PIPWindow::setHasContextMenu(bool) { }

void PIPWindow::setHasPopup(bool) { }

void PIPWindow::setNumberOfCalls(int) { }

void PIPWindow::setIsPhoneKeyset(bool) { }

void PIPWindow::setHasTwoLeaves(bool) { }

void PIPWindow::setNumberOfConferenceMembers(int) { }

}

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/DisplayablePrivate.h>

namespace DisplayAPI {

std::atomic<TranslatorIfc*> DisplayablePrivate::commonTranslator = nullptr;

std::string DisplayablePrivate::serialise()
{
    return "object:\nname:Not Implemented\nend:\n";
}

std::string DisplayablePrivate::serialise(const std::vector<Rect>&)
{
    return serialise();
}

void DisplayablePrivate::widgetDismissed(DisplayablePrivate* displayable)
{
    if (mDisplay)
        mDisplay->widgetDismissed(displayable);
}

void DisplayablePrivate::join(DisplayablePrivate* other)
{
    if (other)
        mDisplay = other->mDisplay;
}

void DisplayablePrivate::generateDisplayChangedEvent()
{
    if (mDisplay)
        mDisplay->displayChanged();
}

void DisplayablePrivate::postCommand(Command* command, Displayable* displayable)
{
    mCommandListeners.notify(&CommandListener::postCommandAction, command, displayable);
}

}

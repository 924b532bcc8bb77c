#include <DisplayAPI/QVTList.h>

#include "QVTListPrivate.h"
#include "Road.h"

namespace DisplayAPI {

enum class QVTList::Request : int {
    SetTitleTranslation = 25, // the base's
    Create = 95,
    SetNumDisplayLines = 97,
    SetDisplayColour = 98,
    SetDisplayText = 99,
    SetDisplayTranslation = 100,
    ClearDisplay = 101,
    SelectionHasChanged = 102,
};

QVTList::QVTList()
    : List(false)
{
    mName = "QVTList";
    create();
}

QVTList::~QVTList()
{
    destroy();
}

void QVTList::create()
{
    if (Road::post(this, Request::Create) && !mPrivate)
        mPrivate = std::make_unique<QVTListPrivate>(this);
}

auto QVTList::halfOf() const
{
    return [this] { return dynamic_cast<QVTListPrivateIfc*>(mPrivate.get()); };
}

void QVTList::appendToAlternativeDisplay(ListItem* item)
{
    append(item);
}

// Display lines

void QVTList::setNumDisplayLines(unsigned int count)
{
    if (auto* half = Road::post(this, halfOf(), Request::SetNumDisplayLines, count))
        half->numtitlelines(count);
}

void QVTList::setDisplayColour(int colour)
{
    if (auto* half = Road::post(this, halfOf(), Request::SetDisplayColour, colour))
        half->titlecolour(colour);
}

void QVTList::setDisplayText(unsigned int line, const std::string& text)
{
    if (auto* half = Road::post(this, halfOf(), Request::SetDisplayText, line, text))
        half->titletext(line, text);
}

void QVTList::setDisplayText(unsigned int line, TranslationInfo* text)
{
    if (auto* half = Road::post(this, halfOf(), Request::SetDisplayTranslation, line, given(text)))
        half->titletext(line, text);
}

void QVTList::clearDisplay()
{
    if (auto* half = Road::post(this, halfOf(), Request::ClearDisplay))
        half->cleartitle();
}

// Selection

bool QVTList::selectionHasChanged() const
{
    bool hasChanged = false;
    if (auto* half = Road::wait(this, halfOf(), Request::SelectionHasChanged, result(hasChanged)))
        hasChanged = half->selectionchanged();
    return hasChanged;
}

// Without effect

void QVTList::setIsPageList(bool) { }
void QVTList::restoreFocusAndShowHighlight() { }
void QVTList::localeChanged(const std::string&) { }
void QVTList::setSelectionHighlight(bool) { }
void QVTList::setUsedWithTab(bool) { }
void QVTList::setWrapAround(bool) { }

// Road across threads

void QVTList::processGuiRequest(GuiRequestEvent& event)
{
    // A title stays the application's, also where there is no half to leave it to.
    const bool isTitle = event.getType() == static_cast<int>(Request::SetTitleTranslation);
    if (event.getType() < static_cast<int>(Request::Create) && !(isTitle && !mPrivate))
        return List::processGuiRequest(event);
    const auto number = static_cast<unsigned int>(event.intParam1);
    switch (static_cast<Request>(event.getType())) {
    case Request::SetTitleTranslation: break;
    case Request::Create: create(); break;
    case Request::SetNumDisplayLines: setNumDisplayLines(number); break;
    case Request::SetDisplayColour: setDisplayColour(event.intParam1); break;
    case Request::SetDisplayText: setDisplayText(number, event.stringParam1); break;
    case Request::SetDisplayTranslation: setDisplayText(number, static_cast<TranslationInfo*>(event.ptrParam1)); break;
    case Request::ClearDisplay: clearDisplay(); break;
    case Request::SelectionHasChanged: answer(event.boolResult, selectionHasChanged()); break;
    }
    signalComplete(event);
}

}

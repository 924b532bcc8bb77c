#include <DisplayAPI/PhonebookItem.h>

#include "PhonebookItemPrivate.h"
#include "Road.h"

namespace DisplayAPI {

enum class PhonebookItem::Request : int {
    CreateFromText = 18,
    CreateFromTranslation = 19,
};

PhonebookItem::PhonebookItem(IconType icon, bool flag1, std::string text, bool flag2)
    : ListItem(nullptr)
{
    mName = "PhonebookItem";
    initialise(icon, flag1, text, flag2);
}

PhonebookItem::PhonebookItem(IconType icon, bool flag1, TranslationInfo* text, bool flag2)
    : ListItem(nullptr)
{
    mName = "PhonebookItem";
    initialise(icon, flag1, text, flag2);
}

PhonebookItem::~PhonebookItem()
{
    destroy();
}

void PhonebookItem::initialise(IconType icon, bool flag1, const std::string& text, bool flag2)
{
    if (Road::wait(this, Request::CreateFromText, icon, flag1, text, flag2))
        setPrivate(new PhonebookItemPrivate(nullptr));
}

void PhonebookItem::initialise(IconType icon, bool flag1, TranslationInfo* text, bool flag2)
{
    if (Road::wait(this, Request::CreateFromTranslation, icon, flag1, given(text), flag2))
        setPrivate(new PhonebookItemPrivate(text));
}

void PhonebookItem::processGuiRequest(GuiRequestEvent& event)
{
    if (event.getType() < static_cast<int>(Request::CreateFromText))
        return ListItem::processGuiRequest(event);
    const auto icon = static_cast<IconType>(event.intParam1);
    switch (static_cast<Request>(event.getType())) {
    case Request::CreateFromText: initialise(icon, event.boolParam1, event.stringParam1, event.boolParam2); break;
    case Request::CreateFromTranslation:
        initialise(icon, event.boolParam1, static_cast<TranslationInfo*>(event.ptrParam1), event.boolParam2);
        break;
    }
    signalComplete(event);
}

void PhonebookItem::rewritePhonebookListItem(IconType, bool, std::string, bool) { }

PhonebookItem::IconType PhonebookItem::callPartyIconToIconType(const CallPartyIdentifier::PhoneNumberIconType& type)
{
    constexpr int LastNumber = 4;
    return type > LastNumber ? NoIcon : static_cast<IconType>(type + 1);
}

}

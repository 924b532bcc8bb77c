#include <DisplayAPI/ListItem.h>

#include "ListItemPrivate.h"
#include "Road.h"

namespace DisplayAPI {

enum class ListItem::Request : int {
    CreateFromText = 0,
    CreateFromTranslation = 1,
    CreateFromType = 2,
    Delete = 3,
    SetText = 4,
    SetRightText = 5,
    GetText = 8,
    GetRightText = 9,
    StartInfiniteProgressBar = 14,
    SetLeftIcon = 15,
    ClearBackground = 17,
};

namespace {

VantoListBoxItemMEG* toolkitRow(ListItem& item)
{
    ListItemPrivateIfc* itemPrivate = item.getPrivateImplemetation();
    return itemPrivate ? itemPrivate->getVantoListItem() : nullptr;
}

std::string resolved(const TranslationInfo* text)
{
    return text ? text->getCompleteString() : std::string();
}

}

ListItem::ListItem()
    : ListItem(std::string(), false)
{
}

ListItem::ListItem(std::string text, bool flag)
{
    mName = "ListItem";
    if (!isGuiThread())
        postEventAsync(makeRequest(this, Request::CreateFromText, std::move(text), flag));
    else
        setPrivate(new ListItemPrivate(text, flag));
}

ListItem::ListItem(TranslationInfo* text, bool flag)
{
    mName = "ListItem";
    if (!isGuiThread())
        postEventAsync(makeRequest(this, Request::CreateFromTranslation, given(text), flag));
    else
        setPrivate(new ListItemPrivate(text, flag));
}

ListItem::ListItem(ListItemType type)
{
    mName = "ListItem";
    if (!isGuiThread())
        postEventAsync(makeRequest(this, Request::CreateFromType, type));
    else
        setPrivate(new ListItemPrivate(type));
}

ListItem::ListItem(ListItemPrivateIfc* rowPrivate)
    : mPrivate(rowPrivate)
{
}

ListItem::~ListItem()
{
    if (isGuiThread())
        destroyPrivate();
    else
        postEvent(makeRequest(this, Request::Delete));
    // Still there if the loop has ended.
    keepUntilExit(mPrivate);
}

void ListItem::processGuiRequest(GuiRequestEvent& event)
{
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    switch (static_cast<Request>(event.getType())) {
    case Request::CreateFromText: setPrivate(new ListItemPrivate(event.stringParam1, event.boolParam1)); break;
    case Request::CreateFromTranslation: setPrivate(new ListItemPrivate(translation, event.boolParam1)); break;
    case Request::CreateFromType: setPrivate(new ListItemPrivate(static_cast<ListItemType>(event.intParam1))); break;
    case Request::Delete: destroyPrivate(); break;
    case Request::SetText: setText(translation ? resolved(translation) : event.stringParam1); break;
    case Request::SetRightText: setRightText(translation ? resolved(translation) : event.stringParam1); break;
    case Request::GetText: *event.stringResult = getText(); break;
    case Request::GetRightText: *event.stringResult = getRightText(); break;
    case Request::StartInfiniteProgressBar: startInfiniteProgressBar(); break;
    case Request::SetLeftIcon:
        if (event.intParam1 != 0)
            setLeftIcon(static_cast<Icons::IconType>(event.intParam1));
        break;
    case Request::ClearBackground: clearBackground(); break;
    }
    signalComplete(event);
}

ListItemPrivateIfc* ListItem::getPrivateImplemetation()
{
    return mPrivate;
}

void ListItem::setText(std::string text)
{
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::SetText, std::move(text)));
    if (VantoListBoxItemMEG* row = toolkitRow(*this))
        row->setText(UString(text));
}

void ListItem::setText(TranslationInfo* text)
{
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::SetText, text));
    setText(resolved(text));
}

std::string ListItem::getText()
{
    std::string text;
    if (!isGuiThread())
        postEvent(makeRequest(this, Request::GetText, result(text)));
    else if (VantoListBoxItemMEG* row = toolkitRow(*this))
        text = row->getText().toUTF8();
    return text;
}

void ListItem::setRightText(std::string text)
{
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::SetRightText, std::move(text)));
    if (VantoListBoxItemMEG* row = toolkitRow(*this))
        row->setRightText(UString(text));
}

void ListItem::setRightText(TranslationInfo* text)
{
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::SetRightText, text));
    setRightText(resolved(text));
}

std::string ListItem::getRightText()
{
    std::string text;
    if (!isGuiThread())
        postEvent(makeRequest(this, Request::GetRightText, result(text)));
    else if (VantoListBoxItemMEG* row = toolkitRow(*this))
        text = row->getRightText().toUTF8();
    return text;
}

void ListItem::setLeftIcon(Icons::IconType icon)
{
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::SetLeftIcon, icon));
    if (ListItemPrivateIfc* itemPrivate = getPrivateImplemetation())
        itemPrivate->setLeftIcon(icon);
}

Icons::IconType ListItem::getLeftIcon()
{
    ListItemPrivateIfc* itemPrivate = getPrivateImplemetation();
    return itemPrivate ? itemPrivate->getLeftIcon() : Icons::IconType();
}

Icons::IconType ListItem::getRightIcon()
{
    return {};
}

void ListItem::startInfiniteProgressBar()
{
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::StartInfiniteProgressBar));
    if (ListItemPrivateIfc* itemPrivate = getPrivateImplemetation())
        itemPrivate->startInfiniteProgressBar();
}

void ListItem::clearBackground()
{
    if (!isGuiThread())
        return postEventAsync(makeRequest(this, Request::ClearBackground));
    if (VantoListBoxItemMEG* row = toolkitRow(*this))
        row->clearBackground();
}

void ListItem::enableContextMenuArrow(bool) { }

void ListItem::joinScreen(Displayable& screen, RowDies rowDies)
{
    mScreen = &screen;
    mRowDies = rowDies;
}

void ListItem::leaveScreen()
{
    mScreen = nullptr;
}

void ListItem::setPrivate(ListItemPrivateIfc* rowPrivate)
{
    delete mPrivate.exchange(rowPrivate);
}

void ListItem::retireRow(ListItemPrivateIfc* rowPrivate)
{
    retire();
    if (Displayable* screen = std::exchange(mScreen, nullptr))
        mRowDies(*screen, *this, rowPrivate);
}

void ListItem::destroyPrivate()
{
    retireRow(mPrivate);
    setPrivate(nullptr);
}

}

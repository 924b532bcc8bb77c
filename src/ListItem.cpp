#include <DisplayAPI/ListItem.h>

#include "HeldRows.h"
#include "ListItemPrivate.h"
#include "Road.h"

#include <memory>
#include <utility>

namespace DisplayAPI {

enum class ListItem::Request : int {
    CreateFromText = 0,
    CreateFromTranslation = 1,
    CreateFromType = 2,
    Destroy = 3,
    SetText = 4,
    SetRightText = 5,
    GetText = 8,
    GetRightText = 9,
    StartInfiniteProgressBar = 14,
    SetLeftIcon = 15,
    ClearBackground = 17,
};

namespace {

// Where the road finds what acts: a subclass may keep its half itself

auto halfOf(ListItem& item)
{
    return [&item] { return item.getPrivateImplemetation(); };
}

auto rowOf(ListItem& item)
{
    return [&item] {
        ListItemPrivateIfc* half = item.getPrivateImplemetation();
        return half ? half->getVantoListItem() : nullptr;
    };
}

std::string resolved(const TranslationInfo* text)
{
    return text ? text->getCompleteString() : std::string();
}

}

ListItem::ListItem()
{
    createPlainRow();
}

ListItem::ListItem(std::string text, bool flag)
{
    mName = "ListItem";
    if (Road::post(this, Request::CreateFromText, text, flag))
        setPrivate(new ListItemPrivate(text, flag));
}

ListItem::ListItem(TranslationInfo* text, bool flag)
{
    mName = "ListItem";
    if (Road::post(this, Request::CreateFromTranslation, given(text), flag))
        setPrivate(new ListItemPrivate(text, flag));
}

ListItem::ListItem(ListItemType type)
{
    mName = "ListItem";
    if (Road::post(this, Request::CreateFromType, type))
        setPrivate(new ListItemPrivate(type));
}

ListItem::ListItem(ListItemPrivateIfc* rowPrivate)
    : mPrivate(rowPrivate)
{
}

void ListItem::createPlainRow()
{
    mName = "ListItem";
    const std::string text;
    if (Road::post(this, Request::CreateFromText, text, false))
        setPrivate(new ListItemPrivate(text, false));
}

ListItem::~ListItem()
{
    destroy();
}

void ListItem::destroy()
{
    if (exists(this) && Road::wait(this, Request::Destroy)) {
        retireRow(mPrivate);
        delete mPrivate.exchange(nullptr);
    }
    if (exists(this))
        HeldRows::refuseDeath(*this, mPrivate.exchange(nullptr));
}

void ListItem::processGuiRequest(GuiRequestEvent& event)
{
    auto* translation = static_cast<TranslationInfo*>(event.ptrParam1);
    switch (static_cast<Request>(event.getType())) {
    case Request::CreateFromText: setPrivate(new ListItemPrivate(event.stringParam1, event.boolParam1)); break;
    case Request::CreateFromTranslation: setPrivate(new ListItemPrivate(translation, event.boolParam1)); break;
    case Request::CreateFromType: setPrivate(new ListItemPrivate(static_cast<ListItemType>(event.intParam1))); break;
    case Request::Destroy: destroy(); break;
    case Request::SetText: setText(translation ? resolved(translation) : event.stringParam1); break;
    case Request::SetRightText: setRightText(translation ? resolved(translation) : event.stringParam1); break;
    case Request::GetText: answer(event.stringResult, getText()); break;
    case Request::GetRightText: answer(event.stringResult, getRightText()); break;
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
    if (auto* row = Road::post(this, rowOf(*this), Request::SetText, text))
        row->setText(UString(text));
}

void ListItem::setText(TranslationInfo* text)
{
    if (Road::post(this, Request::SetText, text))
        setText(resolved(text));
}

std::string ListItem::getText()
{
    std::string text;
    if (auto* row = Road::wait(this, rowOf(*this), Request::GetText, result(text)))
        text = row->getText().toUTF8();
    return text;
}

void ListItem::setRightText(std::string text)
{
    if (auto* row = Road::post(this, rowOf(*this), Request::SetRightText, text))
        row->setRightText(UString(text));
}

void ListItem::setRightText(TranslationInfo* text)
{
    if (Road::post(this, Request::SetRightText, text))
        setRightText(resolved(text));
}

std::string ListItem::getRightText()
{
    std::string text;
    if (auto* row = Road::wait(this, rowOf(*this), Request::GetRightText, result(text)))
        text = row->getRightText().toUTF8();
    return text;
}

void ListItem::setLeftIcon(Icons::IconType icon)
{
    if (auto* half = Road::post(this, halfOf(*this), Request::SetLeftIcon, icon))
        half->setLeftIcon(icon);
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
    if (auto* half = Road::post(this, halfOf(*this), Request::StartInfiniteProgressBar))
        half->startInfiniteProgressBar();
}

void ListItem::clearBackground()
{
    if (auto* row = Road::post(this, rowOf(*this), Request::ClearBackground))
        row->clearBackground();
}

void ListItem::enableContextMenuArrow(bool) { }

void ListItem::setPrivate(ListItemPrivateIfc* rowPrivate)
{
    const std::unique_ptr<ListItemPrivateIfc> before(mPrivate.exchange(rowPrivate));
    if (before)
        privateChanged(before.get());
}

void ListItem::privateChanged(ListItemPrivateIfc* before)
{
    if (mHolder)
        mHolder->rowChanged(*this, before);
}

void ListItem::retireRow(ListItemPrivateIfc* rowPrivate)
{
    retire();
    // Dead for everybody, before the holder tells of it.
    const Living<ListItem> self(this);
    leave();
    if (RowHolder* holder = std::exchange(mHolder, nullptr))
        holder->rowDies(self, rowPrivate);
}

}

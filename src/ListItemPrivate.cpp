#include "ListItemPrivate.h"

#include "GuiThread.h"

#include <CallRowsMEG.h>

#include <array>

namespace DisplayAPI {

namespace {

// Each toolkit icon serves two public ones, which begin with this number.
constexpr int FirstLeftIcon = 345;
constexpr std::array<std::uint16_t, 8> LeftIcons = {98, 94, 97, 93, 96, 92, 95, 91};

std::uint16_t toolkitIcon(Icons::IconType icon)
{
    const int pair = icon < FirstLeftIcon ? -1 : (icon - FirstLeftIcon) / 2;
    return pair >= 0 && pair < static_cast<int>(LeftIcons.size()) ? LeftIcons[static_cast<std::size_t>(pair)] : 0;
}

}

ListItemPrivate::ListItemPrivate(const std::string& text, bool)
    : mWidget(new VantoListBoxItemMEG(UString(text), 0, false))
{
    assertGuiThread();
}

ListItemPrivate::ListItemPrivate(TranslationInfo* text, bool flag)
    : ListItemPrivate(text ? text->getCompleteString() : std::string(), flag)
{
    mTextInfo.take(text);
}

ListItemPrivate::ListItemPrivate(ListItem::ListItemType type)
    : mWidget(
        type == ListItem::InfiniteProgressItem ? new InfiniteBarItemMEG : new VantoListBoxItemMEG(UString(), 0, false))
    , mIsProgressRow(type == ListItem::InfiniteProgressItem)
{
    assertGuiThread();
}

ListItemPrivate::~ListItemPrivate()
{
    assertGuiThread();
}

void ListItemPrivate::localeChanged(std::string)
{
    if (mTextInfo)
        showText(mTextInfo.completeString());
}

void ListItemPrivate::startInfiniteProgressBar()
{
    if (mIsProgressRow && mWidget)
        static_cast<InfiniteBarItemMEG*>(mWidget)->startInfiniteProgressBar();
}

void ListItemPrivate::setLeftIcon(Icons::IconType icon)
{
    mLeftIcon = icon;
    if (mWidget)
        mWidget->setIcon(toolkitIcon(icon));
}

void ListItemPrivate::showText(const std::string& text)
{
    if (mWidget)
        mWidget->setText(UString(text));
}

void ListItemPrivate::showRightText(const std::string& text)
{
    if (mWidget)
        mWidget->setRightText(UString(text));
}

}

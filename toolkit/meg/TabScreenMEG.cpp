#include "TabScreenMEG.h"

#include "UPainter.h"

/// The title. It is the last child, so that it stands above a content that takes no heed of its place.
class TabScreenMEG::TitleLine : public UWidget {
public:
    explicit TitleLine(TabScreenMEG& screen)
        : UWidget(&screen)
        , mScreen(screen)
    {
        setCoordinates(0, 0, 161, 14);
    }

    void paint(UPainter& painter) override
    {
        if (mScreen.mTitle.isEmpty() || mScreen.isFirstLineTaken())
            return;
        painter.clearLine(0);
        painter.rowText(0, 0, mScreen.mTitle, UPainter::Columns);
    }

private:
    TabScreenMEG& mScreen;
};

TabScreenMEG::TabScreenMEG()
    : mTitleLine(new TitleLine(*this))
{
    setCoordinates(0, 0, 161, 30);
}

TabScreenMEG::~TabScreenMEG() = default;

void TabScreenMEG::setCurrent(UWidget* content)
{
    if (content == mCurrent)
        return;
    removeCurrent();
    if (!content || content == mTitleLine)
        return;
    content->setParent(this);
    if (content->parentWidget() != this)
        return;
    mCurrent = content;
    mTitleLine->setParent(nullptr);
    mTitleLine->setParent(this);
}

void TabScreenMEG::removeCurrent()
{
    if (mCurrent)
        removeWidget(mCurrent);
}

void TabScreenMEG::setTitle(const UString& title)
{
    mTitle = title;
    refresh();
}

bool TabScreenMEG::keepsFirstLine() const
{
    return !mTitle.isEmpty() || UWidget::keepsFirstLine();
}

UWidget* TabScreenMEG::focusTarget()
{
    return isVisible() && isWidgetEnabled() && mCurrent && mCurrent->isVisible() ? mCurrent->focusTarget() : nullptr;
}

void TabScreenMEG::childLeft(UWidget* child)
{
    if (child == mCurrent)
        mCurrent = nullptr;
}

void TabScreenMEG::paint(UPainter& painter)
{
    painter.clearLines(isFirstLineTaken() ? 1 : 0, 1);
}

#include "ContextMenuMEG.h"

#include "UEvent.h"
#include "UPainter.h"
#include "UWindowManager.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"

namespace {

// Numbers of icons that the library hands over as well.
constexpr std::uint16_t MuteIcon = 46;
constexpr std::uint16_t HeadsetIcon = 90;
constexpr std::uint16_t SpeakerIcon = 102;

constexpr int StatusColumns = 3; // an icon and the blank in front of it

/// The row that leads back. It asks for its text each time, so that it follows the locale.
class BackItem : public VantoListBoxItemMEG {
public:
    using VantoListBoxItemMEG::VantoListBoxItemMEG;

    UString getText() const override
    {
        const auto* list = dynamic_cast<const VantoListBoxMEG*>(parentWidget());
        return list ? list->backText() : UString();
    }
};

/// The rows of a menu, and behind them the Back row.
class MenuListBox : public VantoListBoxMEG {
public:
    MenuListBox(UWidget* parent, bool hasBackRow, long backHandle)
        : VantoListBoxMEG(parent)
        , mHasBackRow(hasBackRow)
        , mBackHandle(backHandle)
    {
    }

    VantoListBoxItemMEG* backRow() const { return mBackRow; }

    void setBackHandle(long handle)
    {
        mBackHandle = handle;
        if (mBackRow)
            mBackRow->setHandle(handle);
    }

    void translateBack(const UString& text) override
    {
        VantoListBoxMEG::translateBack(text);
        mHasBackText = !text.isEmpty();
        placeBackRow();
    }

    void childLeft(UWidget* child) override
    {
        VantoListBoxMEG::childLeft(child);
        if (child == mBackRow)
            mBackRow = nullptr;
        else if (mBackRow && count() == 1)
            delete mBackRow;
    }

protected:
    void rowAdded(VantoListBoxItemMEG* row) override
    {
        if (row != mBackRow)
            placeBackRow();
    }

private:
    void placeBackRow()
    {
        const bool hasCommands = count() > (mBackRow ? 1 : 0);
        if (!mHasBackRow || !mHasBackText || !hasCommands) {
            delete mBackRow;
            return;
        }
        if (!mBackRow) {
            mBackRow = new BackItem(UString(), mBackHandle);
            addItem(mBackRow);
        } else if (item(count() - 1) != mBackRow) {
            VantoListBoxItemMEG* row = mBackRow;
            const bool isCurrent = currentItem() == row;
            removeItem(row);
            mBackRow = row;
            addItem(row);
            if (isCurrent)
                setCurrentIndex(count() - 1);
        }
    }

    VantoListBoxItemMEG* mBackRow = nullptr;
    bool mHasBackRow;
    bool mHasBackText = false;
    long mBackHandle;
};

}

/// A command of a menu. On the menu's first line it leaves room for the status mark.
class ContextMenuMEG::Row : public VantoListBoxItemMEG {
public:
    using VantoListBoxItemMEG::VantoListBoxItemMEG;

    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override
    {
        // A row that was taken out may stand in any list.
        const UWidget* list = parentWidget();
        const auto* menu = dynamic_cast<const ContextMenuMEG*>(list ? list->parentWidget() : nullptr);
        const std::uint16_t mark = menu && line == menu->firstLine() ? menu->statusMark() : std::uint16_t{0};
        if (mark != 0 && mark != icon()) {
            columns -= StatusColumns;
            painter.icon(line, column + columns + 1, mark);
        }
        VantoListBoxItemMEG::paintRow(painter, rowLine, line, column, columns);
    }
};

ContextMenuMEG::ContextMenuMEG(UWidget* parent, bool hasBackRow, long backHandle, const std::string& backText)
    : RaisedWidget(WhileDown::Invisible, parent)
    , listBox(new MenuListBox(this, hasBackRow, backHandle))
    , mBackHandle(backHandle)
{
    listBox->setListener(this);
    listBox->translateBack(UString::fromUTF8(backText));
    setHeight(1);
}

ContextMenuMEG::~ContextMenuMEG() = default;

// Rows

void ContextMenuMEG::addCommand(const std::string& text, unsigned long handle, bool, bool, std::uint16_t icon)
{
    if (!listBox)
        return;
    auto* row = new Row(UString::fromUTF8(text), static_cast<long>(handle));
    row->setIcon(icon);
    listBox->addItem(row);
}

void ContextMenuMEG::setItemText(int index, const std::string& text, bool)
{
    if (VantoListBoxItemMEG* row = listBox ? listBox->item(index) : nullptr)
        row->setText(UString::fromUTF8(text));
}

VantoListBoxItemMEG* ContextMenuMEG::backRow() const
{
    return listBox ? static_cast<MenuListBox*>(listBox)->backRow() : nullptr;
}

void ContextMenuMEG::setBackHandle(long handle)
{
    mBackHandle = handle;
    if (listBox)
        static_cast<MenuListBox*>(listBox)->setBackHandle(handle);
}

// In and out

void ContextMenuMEG::slideIn()
{
    raise();
}

void ContextMenuMEG::slideOut()
{
    lower();
}

void ContextMenuMEG::pushBack()
{
    UWindowManager::instance().pushBackPopup(this);
}

// Look

void ContextMenuMEG::setHeight(int lines)
{
    setCoordinates(0, lines > 1 ? 0 : 15, 161, 30);
    if (listBox)
        listBox->setRect(getRect());
    refresh();
}

int ContextMenuMEG::firstLine() const
{
    return listBox ? listBox->firstLine() : 1;
}

int ContextMenuMEG::getStartLinePosition() const
{
    return isUp() && isVisible() ? firstLine() + 1 : 0;
}

void ContextMenuMEG::setDrawLineAtTop(bool drawn)
{
    setFlag(mIsLineDrawn, drawn);
}

void ContextMenuMEG::setHeadSetStatus(bool on)
{
    setFlag(mIsHeadset, on);
}

void ContextMenuMEG::setLoudSpeakerStatus(bool on)
{
    setFlag(mIsSpeaker, on);
}

void ContextMenuMEG::setMuteStatus(bool on)
{
    setFlag(mIsMute, on);
}

void ContextMenuMEG::setFlag(bool& flag, bool on)
{
    flag = on;
    refresh();
}

std::uint16_t ContextMenuMEG::statusMark() const
{
    if (mIsMute)
        return MuteIcon;
    if (mIsSpeaker)
        return SpeakerIcon;
    return mIsHeadset ? HeadsetIcon : std::uint16_t{0};
}

// Overrides

void ContextMenuMEG::event(UEvent* event)
{
    relay(*event);
}

bool ContextMenuMEG::keyEvent(UKeyEvent* key)
{
    // The answer must not need this menu any more: the list's listener may have deleted it.
    return listBox && listBox->keyEvent(key);
}

UWidget* ContextMenuMEG::focusTarget()
{
    return isUp() && isVisible() && isWidgetEnabled() && listBox && listBox->focusTarget() ? this : nullptr;
}

void ContextMenuMEG::childLeft(UWidget* child)
{
    if (child == listBox)
        listBox = nullptr;
}

void ContextMenuMEG::paint(UPainter& painter)
{
    painter.clearLines(firstLine(), 1);
    if (listBox)
        listBox->paint(painter);
    if (mIsLineDrawn && firstLine() > 0)
        painter.rule(firstLine());
}

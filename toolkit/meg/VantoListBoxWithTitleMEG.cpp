#include "VantoListBoxWithTitleMEG.h"

#include "TextCells.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"

namespace {

const URect wholeGlass(0, 0, 161, 30);
const URect titleLine(0, 0, 161, 14);
const URect belowTitle(0, 15, 161, 30);

/// The list of radio buttons.
class RadioListBox : public VantoListBoxMEG {
public:
    VantoListBoxItemMEG* selected() const { return mSelected; }
    void select(VantoListBoxItemMEG* row)
    {
        mSelected = row;
        refresh();
    }

    void childLeft(UWidget* child) override
    {
        VantoListBoxMEG::childLeft(child);
        if (mSelected == child)
            mSelected = currentItem() ? currentItem() : item(0);
    }

protected:
    void rowAdded(VantoListBoxItemMEG* row) override
    {
        if (!mSelected)
            mSelected = row;
    }

    void rowChosen(VantoListBoxItemMEG* row) override { select(row); }

    int paintRowHead(UPainter& painter, const VantoListBoxItemMEG& row, int line) const override
    {
        static const UString on("(o) ");
        static const UString off("( ) ");
        return painter.text(line, 0, &row == mSelected ? on : off);
    }

private:
    VantoListBoxItemMEG* mSelected = nullptr;
};

}

// The title

void ListTitleMEG::setText(const UString& text)
{
    mText = text;
    refresh();
}

// The list with a title

VantoListBoxWithTitleMEG::VantoListBoxWithTitleMEG()
    : VantoListBoxWithTitleMEG(new VantoListBoxMEG)
{
}

VantoListBoxWithTitleMEG::VantoListBoxWithTitleMEG(VantoListBoxMEG* list)
    : mTitle(new ListTitleMEG(this))
    , mList(list)
{
    setRect(wholeGlass);
    mTitle->setRect(titleLine);
    mList->setParent(this);
    mList->setListener(this);
}

VantoListBoxWithTitleMEG::~VantoListBoxWithTitleMEG() = default;

void VantoListBoxWithTitleMEG::setTitle(const UString& title)
{
    mTitle->setText(title);
    placeList(!title.isEmpty());
}

void VantoListBoxWithTitleMEG::placeList(bool isBelowFirstLine)
{
    if (mList->getRect() == wholeGlass || mList->getRect() == belowTitle)
        mList->setRect(isBelowFirstLine ? belowTitle : wholeGlass);
    refresh();
}

void VantoListBoxWithTitleMEG::event(UEvent* event)
{
    relay(*event);
}

UWidget* VantoListBoxWithTitleMEG::focusTarget()
{
    return isVisible() ? mList->focusTarget() : nullptr;
}

void VantoListBoxWithTitleMEG::paint(UPainter& painter)
{
    painter.clearLines(isFirstLineKept() ? 1 : 0, 1);
    if (mList->firstLine() == 0 || isFirstLineTaken())
        return;
    const UString suffix = titleSuffix();
    const int taken = TextCells::count(suffix, UPainter::Columns);
    painter.textRight(0, UPainter::Columns - 1, suffix);
    painter.rowText(0, 0, mTitle->text(), UPainter::Columns - (taken > 0 ? taken + 1 : 0));
}

// Radio buttons

RadioButtonListMEG::RadioButtonListMEG()
    : VantoListBoxWithTitleMEG(new RadioListBox)
{
}

int RadioButtonListMEG::selectedIndex() const
{
    return list()->indexOf(static_cast<RadioListBox*>(list())->selected());
}

void RadioButtonListMEG::setSelectedIndex(int index, int)
{
    VantoListBoxItemMEG* row = list()->item(index);
    if (!row)
        return;
    static_cast<RadioListBox*>(list())->select(row);
    list()->setCurrentIndex(index);
}

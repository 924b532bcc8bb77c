#pragma once

#include "Export.h"
#include "UString.h"
#include "UWidget.h"

class VantoListBoxMEG;

/// The title line of a list; the list draws it.
class TOOLKIT_EXPORT ListTitleMEG : public UWidget {
public:
    using UWidget::UWidget;

    void setText(const UString& text);
    UString text() const { return mText; }

private:
    UString mText;
};

/// A screen with a list and, while it has a title, a title line above it. The title takes one of the two
/// lines, so a list with a title shows one row. Where the first line is taken, the title gives way and the list
/// has the second line.
///
/// An event of the list goes to the list's own listener; unless somebody sets one, that is this widget, which
/// hands it on to its own listener with source and payload as they are. Nobody hears an event twice.
/// Threads: GUI thread only.
class TOOLKIT_EXPORT VantoListBoxWithTitleMEG : public UWidget {
public:
    VantoListBoxWithTitleMEG();
    ~VantoListBoxWithTitleMEG() override;

    VantoListBoxMEG* list() const { return mList; }
    ListTitleMEG* listTitle() const { return mTitle; }

    /// An empty title gives its line to the list.
    void setTitle(const UString& title);
    UString getTitle() const { return mTitle->text(); }

    void event(UEvent* event) override;
    UWidget* focusTarget() override;
    void paint(UPainter& painter) override;

protected:
    /// For lists with rows of their own; takes the list box over.
    explicit VantoListBoxWithTitleMEG(VantoListBoxMEG* list);

    /// Gives the list the second line, or both. A rectangle that somebody else has given to it stays.
    void placeList(bool isBelowFirstLine);

    /// What stands at the right end of the title line; the title gives way to it.
    virtual UString titleSuffix() const { return UString(); }

private:
    ListTitleMEG* mTitle;
    VantoListBoxMEG* mList;
};

/// A list of radio buttons. While it has rows, exactly one of them is selected: the first at the beginning,
/// then the one on which the user pressed OK. When the selected row goes, the current one takes over.
class TOOLKIT_EXPORT RadioButtonListMEG : public VantoListBoxWithTitleMEG {
public:
    RadioButtonListMEG();

    /// The index of the selected row, -1 in an empty list.
    virtual int selectedIndex() const;

    /// Selects a row and makes it current; an index outside the list is ignored. The second argument is a
    /// number of the maker's that changes nothing here.
    virtual void setSelectedIndex(int index, int reserved);
};

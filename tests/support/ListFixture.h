#pragma once

#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/List.h>
#include <DisplayAPI/ListItem.h>

#include "ListBoxPrivate.h"

#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>

#include <string>

/// A row that tells when its handle dies. Make it on the GUI thread only.
class CountedItem : public DisplayAPI::ListItem {
public:
    explicit CountedItem(const std::string& text)
        : ListItem(text, true)
    {
        ++living;
    }
    ~CountedItem() override { --living; }

    static inline int living = 0;
};

inline DisplayAPI::ListBoxPrivate& half(DisplayAPI::List& list)
{
    return dynamic_cast<DisplayAPI::ListBoxPrivate&>(*list.getPrivateImpl());
}

inline VantoListBoxMEG& box(DisplayAPI::List& list)
{
    return *dynamic_cast<VantoListBoxWithTitleMEG&>(*list.getPrivateImpl()->getWidget()).list();
}

/// The handles' texts in order, and the current one in brackets.
template <typename AnyList>
std::string rows(AnyList& list)
{
    const DisplayAPI::ListItem* selected = list.getSelected();
    std::string all;
    for (DisplayAPI::ListItem* item : list.getItems())
        all += item == selected ? "[" + item->getText() + "]" : item->getText();
    return all;
}

/// The same, read from the toolkit's list.
inline std::string toolkitRows(DisplayAPI::List& list)
{
    std::string all;
    for (int i = 0; i < box(list).numItems(); ++i) {
        const std::string text = box(list).item(i)->getText().toUTF8();
        all += i == box(list).currentIndex() ? "[" + text + "]" : text;
    }
    return all;
}

/// A telephone for lists, which watches that no row is lost.
class ListFixture : public PhoneTest {
protected:
    ~ListFixture() override { EXPECT_EQ(CountedItem::living, 0) << "rows were lost"; }

    /// A list of rows with one letter each.
    void fill(DisplayAPI::List& list, const std::string& letters)
    {
        for (const char letter : letters)
            list.append(new CountedItem(std::string(1, letter)));
    }

    /// Handles and toolkit rows, which must agree.
    std::string both(DisplayAPI::List& list)
    {
        EXPECT_EQ(rows(list), toolkitRows(list));
        return rows(list);
    }
};

#include "Gallery.h"

#include <SearchableListMEG.h>
#include <UEvent.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

namespace {

using namespace Gallery;

const char* const names[] = {"Ann Miller", "Anna Bell", "Bob Carter", "Carol Dane", "Dave Evans", "Änne Fuchs"};

/// An application that finds names by their beginning.
class Directory : public UAgent {
public:
    explicit Directory(SearchableListMEG& list)
        : mList(list)
    {
        fill();
    }

    void event(UEvent* event) override
    {
        if (event->type == EventType::SearchTextChanged)
            fill();
    }

private:
    void fill()
    {
        const std::string wanted = mList.getSearchText().toUTF8();
        mList.list()->clear();
        for (const std::string name : names) {
            if (name.starts_with(wanted))
                addRows(*mList.list(), {name});
        }
        mList.setSearchCountIndicator(mList.list()->count());
        mList.setCountIndicator(static_cast<int>(std::size(names)));
    }

    SearchableListMEG& mList;
};

const Exhibit search("search-list", R"(
    shot list
    type 2
    shot first-letter
    advance 1s
    type 66
    shot letters
    advance 1s
    shot found
    press DOWN
    shot second
    type 5
    advance 1s
    shot nothing
    press LEFT 3
    shot empty
    press LEFT
    press DOWN
    shot closed
)",
    [](Stage& stage) {
        auto* list = stage.add<SearchableListMEG>();
        list->setTitle(text("Directory"));
        list->setHintText(text("Enter name,Del"));
        const auto directory = std::make_shared<Directory>(*list);
        list->setListener(directory.get());
        stage.keep(directory);
    });

}

#pragma once

#include <DisplayAPI/List.h>

#include <string>

namespace DisplayAPI {

/// The list of telephones with the software type "Zelmark QVT": its highlight bar shows once the application has
/// selected a row, until the next row is appended, and it tells whether the user has moved since it was asked last.
///
/// It keeps texts by the number of a line for a display that this telephone does not have, and has no title.
///
/// Threads: any. Calls that change the list return at once and run in their order, as those of List do.
/// Ownership: as List, but for a title given as a translation, which stays the application's. The translations of
/// display lines become the list's.
/// Errors: as List. insertAt() with an index below 0 puts the row at the front of getItems(), and the glass does not
/// have it; nor does the glass show anything of move(). From then on the two differ, and removeAt() takes out the row
/// of getItems() and that of the glass which stand at the same index. The handle of a row that leaves the glass so
/// stays in getItems(), while it stands there; a row of the glass of which no handle there knows is deleted.
/// Screen text: none for rectangles, else the block of a screen that has no text.
class DISPLAYAPI_EXPORT QVTList : public List {
public:
    QVTList();
    ~QVTList() override;

    void processGuiRequest(GuiRequestEvent& event) override;

    /// As append().
    void appendToAlternativeDisplay(ListItem* item);

    // Display lines: stored by their number, and not shown

    void setDisplayText(unsigned int line, const std::string& text);

    /// Takes the translation over; null clears the line.
    void setDisplayText(unsigned int line, TranslationInfo* text);

    // Selection

    /// Whether the user has moved to another row since it was asked last; true at first whenever the list is shown.
    /// Losing the glass clears it. False off the GUI thread once the loop has ended.
    bool selectionHasChanged() const;

    // Without effect

    void setNumDisplayLines(unsigned int count);
    void setDisplayColour(int colour);
    void clearDisplay();
    void setIsPageList(bool isPageList) override;
    void restoreFocusAndShowHighlight();

    /// The list reads its rows' translations again by itself, through the operation of List that this one hides.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
    void localeChanged(const std::string& locale);
#pragma GCC diagnostic pop
    void setSelectionHighlight(bool highlight);
    void setUsedWithTab(bool used);
    void setWrapAround(bool wrap);

private:
    enum class Request : int;

    void create();
    auto halfOf() const;
};

}

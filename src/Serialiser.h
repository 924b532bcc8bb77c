#pragma once

#include <Rect.h>

#include <string>
#include <vector>

class BranchMEG;
class VantoListBoxWithTitleMEG;

namespace DisplayAPI {

/// Writes the text of a list: its title and its current row, whatever the number of rows. Made on the stack for
/// one text. Threads: GUI thread.
class Serialiser {
public:
    /// True once a caption has been written.
    bool hasCaption() const { return mHasCaption; }

    /// One whole object; empty for null. Of the rectangles depends only the leaf of a call.
    std::string serialiseVantoListBox(std::vector<URect> rects, VantoListBoxWithTitleMEG* list);

    /// The row of a call as a subitem Branch, and a subitem Leaf where a rectangle holds it.
    std::string serialiseBranch(std::vector<URect> rects, BranchMEG* branch, VantoListBoxWithTitleMEG* list, int index);

    /// The row at an index as one subitem; empty where there is no such row.
    std::string doCallLogListItem(int index, VantoListBoxWithTitleMEG* list);
    std::string doCallBackListItem(int index, VantoListBoxWithTitleMEG* list);

private:
    bool mHasCaption = false;
};

}

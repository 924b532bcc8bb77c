#pragma once

#include "ListBoxPrivate.h"

class RadioButtonListMEG;

namespace DisplayAPI {

class ExclusiveList;

/// The list of radio buttons on the GUI thread: a list box around a RadioButtonListMEG.
class ExclusiveListPrivate : public ListBoxPrivate {
public:
    explicit ExclusiveListPrivate(ExclusiveList* parent);

    void show() override;

    // The selected row, which need not be the current one

    int getSelectedIndex() override;
    void setSelectedIndex(int index) override;
    bool isSelected(int index) { return getSelectedIndex() == index; }

private:
    RadioButtonListMEG* radioList() const;
};

}

#include "ExclusiveListPrivate.h"

#include <DisplayAPI/ExclusiveList.h>

#include <UApplication.h>

namespace DisplayAPI {

ExclusiveListPrivate::ExclusiveListPrivate(ExclusiveList* parent)
    : ListBoxPrivate(parent, new RadioButtonListMEG)
{
    mTitleSuffix = ":";
    getListWidget()->setListener(this);
}

RadioButtonListMEG* ExclusiveListPrivate::radioList() const
{
    return static_cast<RadioButtonListMEG*>(getListWidget());
}

void ExclusiveListPrivate::show()
{
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->requestFullScreen();
    ListBoxPrivate::show();
}

int ExclusiveListPrivate::getSelectedIndex()
{
    return radioList() ? radioList()->selectedIndex() : -1;
}

void ExclusiveListPrivate::setSelectedIndex(int index)
{
    if (radioList())
        radioList()->setSelectedIndex(index, 0);
}

}

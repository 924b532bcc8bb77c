#pragma once

#include <DisplayAPI/Export.h>

#include <UAgent.h>

#include <string>

class FormItemIfc;

namespace DisplayAPI {

class MenuCommand;

/// The half of a field with choices on the GUI thread, as its handle sees it. Threads: GUI thread only.
class DISPLAYAPI_EXPORT SelectionFieldPrivateIfc : public UAgent {
public:
    // A command may have died: it is asked for by address and running number.

    virtual void setFieldContents(MenuCommand* command) = 0;
    virtual void setSelectionIndex(int index) = 0;
    virtual int getSelectionIndex() = 0;
    virtual void setSelectionCommand(const MenuCommand* command) = 0;
    virtual MenuCommand* getSelectionCommand() = 0;
    virtual void appendSelection(MenuCommand* command) = 0;
    virtual void clearSelections(MenuCommand* command) = 0;
    virtual void setInformAppOnOk(bool inform) = 0;
    virtual void localeChanged(std::string locale) = 0;
    virtual void setReadOnlyMode(bool readOnly) = 0;
    virtual bool getReadOnlyMode() = 0;
    virtual int getHighlightedIndex() = 0;
    virtual void displayCurrentSelection(bool display) = 0;
    virtual void setLabel(const std::string& label) = 0;

    /// The row; null once a form has deleted it.
    virtual FormItemIfc* getWidget() = 0;

    /// A form has taken the row.
    virtual void releaseOwnership() = 0;
};

}

#pragma once

#include <DisplayAPI/Displayable.h>

namespace DisplayAPI {

class CommandListener;

/// The place of a window that other telephones have; here it shows nothing. It has no half on the GUI thread, so
/// a display ignores it.
class DISPLAYAPI_EXPORT YRCWindow : public Displayable {
public:
    explicit YRCWindow(bool flag);
    ~YRCWindow() override;
    void processGuiRequest(GuiRequestEvent& event) override;

    /// Null: such a window can't be shown.
    DisplayablePrivateIfc* getPrivateImpl() override;

    // Without effect on this telephone

    void setIsPhoneKeyset(bool isPhoneKeyset);
    void resize(int width, int height);
    void move(int left, int top);
    void show();
    void hide();
    void setHasContextMenu(bool hasContextMenu);
    void setHasPopup(bool hasPopup);
    void setNumberOfCalls(int count);
    void setHasTwoLeaves(bool hasTwoLeaves);
    void setNumberOfConferenceMembers(int count);
    void removeCommandListener(CommandListener* listener);
    void setIsSelfViewWindow(bool isSelfView);

private:
    class Private { };

    std::unique_ptr<Private> mPrivate;
};

}

#pragma once

#include <DisplayAPI/Displayable.h>

namespace DisplayAPI {

/// The place of a picture-in-picture window that other telephones have; here it shows nothing. It has no half on
/// the GUI thread, so a display ignores it.
class DISPLAYAPI_EXPORT PIPWindow : public Displayable {
public:
    explicit PIPWindow(bool flag);
    ~PIPWindow() override;
    void processGuiRequest(GuiRequestEvent& event) override;

    /// Null: such a window can't be shown.
    DisplayablePrivateIfc* getPrivateImpl() override;

    // Without effect on this telephone

    void resize(int width, int height);
    void move(int left, int top);
    void show();
    void hide();
    void setHasContextMenu(bool hasContextMenu);
    void setHasPopup(bool hasPopup);
    void setNumberOfCalls(int count);
    void setIsPhoneKeyset(bool isPhoneKeyset);
    void setHasTwoLeaves(bool hasTwoLeaves);
    void setNumberOfConferenceMembers(int count);

private:
    class Private { };

    std::unique_ptr<Private> mPrivate;
};

}

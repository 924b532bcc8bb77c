#pragma once

#include <DisplayAPI/Dialog.h>

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class MenuCommand;
class PopupProgressPrivateIfc;

/// Work under way, over the current screen: what is done, how far it is, and a bar.
///
/// The user can do nothing about it: it takes all keys, offers no choice and sends no command. The application
/// dismisses it.
///
/// Threads: any. Each call returns after it has run on the GUI thread.
/// Ownership: translations handed in become the popup's.
/// Screen text: an object "PopupProgress" with an icon, the caption and the status lines.
class DISPLAYAPI_EXPORT PopupProgress : public Dialog {
public:
    /// The kind of work, 0 to 4, which the telephone's toolkit may show each in its own way. The numbers have no
    /// names; one above 4 counts as 4.
    enum ProgressType : int {};

    /// What the popup is about; it sets the icon. Any other number takes the icon away.
    enum InfoType : int {
        NONE = 0,
        INFO = 1,
        PROGRESS = 4,
        MOBILE_USER_FETCHING = 5,
        MOBILE_USER_FAILED = 6,
    };

    /// Makes an empty popup, of kind 4 unless another is given.
    PopupProgress();
    explicit PopupProgress(ProgressType type);
    ~PopupProgress() override;

    // Texts

    /// What is done, as "Fetching settings".
    void setText(const std::string& text);
    void setText(TranslationInfo* text);

    /// The first status line: how far the work is, as "Stage 2/4". It takes turns with the second one.
    void setCurrentStageText(const std::string& text);
    void setCurrentStageText(TranslationInfo* text);

    /// The second status line: what is done at the moment.
    void setCurrentActivityText(const std::string& text);
    void setCurrentActivityText(TranslationInfo* text);

    // Icon and bar. Neither gives a notice of a change

    void setType(InfoType type);

    /// How much is done, in per cent; there is no bar before the first call. Other numbers are cut to 0 and 100.
    void updateProgressBar(int percent);

    // Life on the screen

    /// Brings the popup up. Display::setCurrent() does this too.
    void show();

    /// Takes the popup off the screen.
    void dismiss();

    // Without effect on this telephone

    void addCommand(MenuCommand* command);
    void clearCommands();
    void addCommandListener(CommandListener* listener);
    void displayProgressBar(bool shown);

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(ProgressType type);
    void destroy();

    std::unique_ptr<PopupProgressPrivateIfc> mPrivate;
};

}

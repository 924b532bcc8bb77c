#pragma once

#include <DisplayAPI/Displayable.h>

#include <atomic>
#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class TextBoxPrivateIfc;
class Ticker;

/// A text that the user reads, in one of two kinds: below a title line, or as two lines without one.
///
/// Up and Down scroll it line by line. Left reaches the command listeners as BACK_COMMAND(); nothing else does.
///
/// Threads: any. Each call returns after it has run on the GUI thread, but for tickers and listeners, whose calls run
/// where they are made.
/// Ownership: titles given as a translation become the box's; listeners and ticker stay the application's, and a
/// listener may die at any time.
/// Errors: a box that was made after the event loop had ended ignores every call, and deletes the titles it is handed.
/// Screen text: none in serialiseByRect(), and an object "Not Implemented" in serialise().
class DISPLAYAPI_EXPORT TextBox : public Displayable {
public:
    /// What the text is for; no operation reads it.
    enum TextBoxType : int {
        PlainText = 1,
    };

    /// Makes an empty box: with a title line, or of two lines. Off the GUI thread hardware variant 1 always has the
    /// title line.
    explicit TextBox(bool twoLines);

    /// Takes the box off the screen. Deliveries that have not begun are recalled.
    ~TextBox() override;

    // Text

    /// The text in UTF-8; empty where there is no answer, since the event loop has ended.
    std::string getText() const;

    /// Shows another text from its first line on; with `keepPosition` the lines in view stay, as far as it reaches.
    void setText(const std::string& text, bool keepPosition);

    /// The length of the text in bytes of its UTF-8; -1 where there is no answer.
    int getSize() const;

    /// Always 100.
    int getMaxSize() const;

    /// While set, the first paragraph of a box of two lines stays on the first line, cut at the edge, and the rest
    /// scrolls below it. Without effect on the box with a title.
    void setTopLineSlidableOffAndTruncationOn(bool on);

    // Title: without effect on the glass in a box of two lines

    void setTitle(const std::string& title);

    /// Takes the translation over; null is an empty title.
    void setTitle(TranslationInfo* title);

    // Life on the screen

    /// Takes the text off the glass until the box is made current again.
    void hide();

    // Listeners

    /// Adds a listener; one that is in already is not added again.
    void addCommandListener(CommandListener* listener);

    /// Takes the listener out.
    void removeCommandListener(CommandListener* listener);

    // What the listeners are told. The commands last as long as the process and are told apart by address.

    static Command* BACK_COMMAND();
    static Command* RIGHT_COMMAND();
    static Command* SELECT_COMMAND();

    // Without effect on this telephone; the answers are fixed

    /// The translation stays the caller's.
    void setText(TranslationInfo* text);
    void setMaxSize(int bytes);
    void clear();
    void insert(std::string& text, int position);
    void setReadOnlyMode(bool readOnly);
    void setTextBoxType(TextBoxType type);
    void hideOptionsItem();
    void addCommand(Command* command);

    /// Always false.
    bool getReadOnlyMode() const;

    /// Always 0.
    int getCaretPosition() const;

    /// Always 1.
    TextBoxType getTextBoxType() const;

    /// The ticker is stored and handed back, and not used; null before.
    void setTicker(Ticker* ticker);
    Ticker* getTicker() const;

    // Road across threads

    void processGuiRequest(GuiRequestEvent& event) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

private:
    enum class Request : int;

    void create(bool twoLines);
    void destroy();

    std::atomic<Ticker*> mTicker = nullptr;
    std::unique_ptr<TextBoxPrivateIfc> mPrivate;
    TextBoxType mType = PlainText;
};

}

#pragma once

#include <DisplayAPI/TextBoxPrivateIfc.h>

#include "OwnershipDelegate.h"
#include "TranslationHolder.h"

#include <UWidget.h>

#include <string>

class VantoTextBoxMEG;

namespace DisplayAPI {

/// What both kinds of text boxes share: the text, the way back, and everything that has no effect.
///
/// A toolkit tree that holds the widget may delete it; then everything here is without effect.
class TextBoxHalf : public TextBoxPrivateIfc {
public:
    ~TextBoxHalf() override;

    // Text

    std::string getText() const override;
    void setText(const std::string& text, bool keepPosition) override;
    void setText(TranslationInfo*) override { }
    int getSize() override;
    int getMaxSize() override { return 100; }
    void setMaxSize(int) override { }
    bool getReadOnlyMode() override { return true; }
    void setReadOnlyMode(bool) override { }
    int getCaretPosition() override { return 0; }
    TextBox::TextBoxType getTextBoxType() override { return TextBox::PlainText; }
    void setTextBoxType(TextBox::TextBoxType) override { }
    void insert(std::string&, int) override { }
    void clear() override { }

    /// The title on the glass.
    virtual std::string getTitle() const = 0;

    // Life on the screen

    TextBox* getParent() const override { return mParent; }
    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void show() override;
    void hide() override;
    void lostFocus() override { }

    /// Without effect: listeners stay until they leave or die.
    void clearCommandListeners() override { }

    // What the user does

    void event(UEvent* event) override;
    void leftEvent();
    void rightEvent() { }

    // Screen text

    std::string serialise() override;

    /// Empty.
    std::string serialise(const std::vector<Rect>& rects) override;

protected:
    /// Takes over the widget, and its box with the text. The parent may be null.
    TextBoxHalf(TextBox* parent, UWidget* widget, VantoTextBoxMEG* box);

    /// Lets the box hear of changes of the locale, and no more.
    void initialise();
    void cleanup();

    virtual void localeChanged(std::string) { }

    /// The box with the text; null once the widget has gone.
    VantoTextBoxMEG* textBox() const { return mWidget ? mBox : nullptr; }

    TranslationHolder mTitleInfo;

private:
    TextBox* mParent;
    UWidget* mWidget;
    VantoTextBoxMEG* mBox; // the widget itself, or inside it
    OwnershipDelegate<UWidget> mOwnership{&mWidget};
};

}

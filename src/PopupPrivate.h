#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Living.h>

#include "CommandText.h"
#include "CurrentApplication.h"
#include "GuiThread.h"
#include "OwnershipDelegate.h"
#include "TellAndShow.h"
#include "TranslationHolder.h"
#include "WidgetRects.h"

#include <UAgent.h>
#include <UString.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

namespace DisplayAPI {

class Displayable;

/// What the popups share on the GUI thread: the widget and who owns it, the way down, and lines whose translations
/// follow the locale. A toolkit tree that holds the widget may delete it.
///
/// It stands between a popup's interface and its private. It adds no virtual operation, so that the order of the
/// interface stays as it is.
template <typename Interface, typename PopupWidget>
class PopupPrivate : public Interface {
public:
    UWidget* getWidget() override { return mWidget; }
    void releaseOwnership() override { mOwnership.releaseOwnership(); }
    void gainOwnership() override { mOwnership.gainOwnership(); }
    bool hasOwnership() const { return mOwnership.hasOwnership(); }
    void lostFocus() override { }
    bool hideOldWidgetOnFocusGained() override { return false; }
    int widgetPosition() override { return 1; }

    /// Without effect: listeners stay until they leave or die.
    void clearCommandListeners() override { }

    void dismiss() override
    {
        // What the popup raises on its way down may delete this object.
        LifeNode life(this);
        if (mWidget)
            mWidget->dismiss();
        if (life.isAlive())
            this->widgetDismissed(this);
    }

protected:
    using Field = void (PopupWidget::*)(const UString& text);

    /// A line of the widget, and the translation behind it.
    struct Line {
        Field field;
        TranslationHolder info = {};
    };

    /// Takes the widget over and listens to it; null where there is none.
    explicit PopupPrivate(PopupWidget* widget)
        : mWidget(widget)
    {
        assertGuiThread();
        if (mWidget)
            mWidget->setListener(this);
        joinApplication(this);
    }
    ~PopupPrivate() override
    {
        assertGuiThread();
        // The widget goes with this part, when the popup's own has gone already.
        if (mWidget)
            mWidget->removeListener(this);
    }

    /// Shows a text or a translation, which it takes over, and tells the display.
    template <typename Text>
    void setLine(Line& line, const Text& text)
    {
        putLine(line, text);
        this->generateDisplayChangedEvent();
    }

    // The same without a notice

    template <typename Text>
    void putLine(Line& line, const Text& text)
    {
        put(line.field, line.info.show(text));
    }

    void put(Field field, const std::string& text)
    {
        if (mWidget)
            (mWidget->*field)(UString(text));
    }

    /// Reads the translations in another locale.
    void readAgain(std::initializer_list<const Line*> lines)
    {
        for (const Line* line : lines) {
            if (line->info)
                put(line->field, line->info.completeString());
        }
    }

    /// True if one of the rectangles holds the whole popup.
    bool isWhollyIn(const std::vector<URect>& rects) const
    {
        return mWidget && DisplayAPI::isWhollyIn(mWidget->getRect(), rects);
    }

    PopupWidget* mWidget;

private:
    OwnershipDelegate<PopupWidget> mOwnership{&mWidget};
};

/// A popup with a row for each of its commands.
template <typename Interface, typename PopupWidget>
class ChoicePopupPrivate : public PopupPrivate<Interface, PopupWidget> {
protected:
    using PopupPrivate<Interface, PopupWidget>::PopupPrivate;

    /// Null without a widget.
    VantoListBoxMEG* list() const { return this->mWidget ? this->mWidget->listBox : nullptr; }

    /// The index of the current row, -1 without one.
    int currentRow() const { return list() ? list()->currentIndex() : -1; }

    /// A command that has died is still found by its address, unless another one lives there.
    std::vector<Living<Command>>::iterator find(Command* command)
    {
        const Living<Command> living(command);
        return std::find_if(mCommands.begin(), mCommands.end(),
            [&](const Living<Command>& entry) { return living ? entry == living : entry.isAt(command); });
    }

    /// Makes a command's row current, also when the popup comes up. One that is not there yet is added by
    /// addCommand(); where that adds none, the last row is meant.
    template <typename CommandClass>
    void makeDefault(CommandClass* command)
    {
        mDefaultIndex = -1;
        if (const auto found = find(command); found != mCommands.end()) {
            mDefaultIndex = static_cast<int>(found - mCommands.begin());
        } else {
            // The notice of the new choice may delete this object.
            LifeNode life(this);
            this->addCommand(command);
            if (!life.isAlive())
                return;
            mDefaultIndex = static_cast<int>(mCommands.size()) - 1;
        }
        if (list())
            list()->setCurrentItem(mDefaultIndex);
    }

    /// Posts the command of a chosen row, unless it has died; null for a row without one.
    void tellChoice(const CommandRow* row, Displayable* screen)
    {
        tellAndShow(*this, row ? row->command().get() : nullptr, screen);
    }

    std::vector<Living<Command>> mCommands; // in the order of adding
    int mDefaultIndex = 0;
};

}

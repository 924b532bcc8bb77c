#pragma once

#include "Export.h"
#include "UWidget.h"

/// A widget that comes up over the screens and goes down again: a popup, a menu.
///
/// While it is up it stands in the popups' layer, on top of what came up before it, and has the focus if it
/// wants keys. It is no screen, so nothing that comes up later is bound to it. Leaving the tree takes it down.
/// None of this raises an event; a popup adds its own.
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's.
class TOOLKIT_EXPORT RaisedWidget : public UWidget {
public:
    bool isUp() const;

    Layer layer() const override { return Layer::Popup; }
    void parentChanged() override;

    /// For a widget that is invisible while it is down, only hiding has an effect then.
    void setVisible(bool visible) override;

protected:
    /// What the widget's own visible flag is while it is down; nothing is painted in either case.
    enum class WhileDown {
        KeepsFlag, ///< Whatever was set.
        Invisible, ///< False, so that the widget covers nothing.
    };

    explicit RaisedWidget(WhileDown whileDown, UWidget* parent = nullptr);

    /// Makes the widget visible and brings it up, on top of all that are up, also when it is up already.
    void raise();

    /// Takes it down; one that is down stays as it is.
    void lower();

    /// Told after each raise(), and when the widget has gone down.
    virtual void upChanged() { }

private:
    WhileDown mWhileDown;
};

#include "GlassTest.h"

#include "RaisedWidget.h"

#include <algorithm>
#include <random>

namespace {

/// A menu or a popup without content.
class Raised : public RaisedWidget {
public:
    Raised(WhileDown whileDown, UWidget* parent)
        : RaisedWidget(whileDown, parent)
    {
    }

    using RaisedWidget::lower;
    using RaisedWidget::raise;
    using RaisedWidget::WhileDown;

    UWidget* focusTarget() override { return isUp() ? this : nullptr; }
};

/// What should be on the glass: the screens from the lowest on, and what has come up, in its order.
struct Model {
    struct Up {
        Raised* widget;
        bool isOverAll;  // whichever screen is on top
        UWidget* screen; // else the one on which it stands
    };

    UWidget* topScreen() const
    {
        const auto top
            = std::find_if(screens.rbegin(), screens.rend(), [](const UWidget* screen) { return screen->isVisible(); });
        return top == screens.rend() ? nullptr : *top;
    }

    UWidget* focus() const
    {
        UWidget* const top = topScreen();
        const auto shown
            = std::find_if(ups.rbegin(), ups.rend(), [top](const Up& up) { return up.isOverAll || up.screen == top; });
        return shown == ups.rend() ? top : shown->widget;
    }

    void takeDown(const Raised* widget)
    {
        std::erase_if(ups, [widget](const Up& up) { return up.widget == widget; });
    }

    std::vector<UWidget*> screens;
    std::vector<Raised*> widgets;
    std::vector<Up> ups;
};

class RaisedWidgetTest : public GlassTest { };

}

TEST_F(RaisedWidgetTest, AMenuIsInvisibleWhileItIsDown)
{
    Raised menu(Raised::WhileDown::Invisible, nullptr);
    root.addWidget(&menu);
    menu.show();
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(manager.focusWidget(), below);
    menu.raise();
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(manager.focusWidget(), &menu);
    menu.setParent(nullptr);
    EXPECT_FALSE(menu.isUp());
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(manager.focusWidget(), below);
}

TEST_F(RaisedWidgetTest, TheFocusFollowsWhateverComesAndGoes)
{
    std::mt19937 random(3);
    const auto pick = [&random](const auto& from) { return from[random() % from.size()]; };
    Model model;
    model.screens = {below};
    for (int round = 0; round < 5000; ++round) {
        const auto what = random() % 100;
        if (what < 8 || model.screens.empty()) {
            auto* screen = new PlainScreen;
            root.addWidget(screen);
            model.screens.push_back(screen);
        } else if (what < 16) {
            UWidget* screen = pick(model.screens);
            // What stands on the screen, and what is bound to it, goes or never comes back.
            std::erase_if(model.ups, [screen](const Model::Up& up) { return up.screen == screen; });
            std::erase_if(model.widgets, [screen](const Raised* widget) { return widget->parentWidget() == screen; });
            std::erase(model.screens, screen);
            delete screen;
        } else if (what < 26) {
            UWidget* screen = pick(model.screens);
            screen->setVisible(!screen->isVisible());
        } else if (what < 36 || model.widgets.empty()) {
            UWidget* const parents[] = {&root, pick(model.screens), nullptr};
            const auto whileDown = random() % 2 ? Raised::WhileDown::Invisible : Raised::WhileDown::KeepsFlag;
            model.widgets.push_back(new Raised(whileDown, parents[random() % 3]));
        } else if (what < 70) {
            Raised* widget = pick(model.widgets);
            widget->raise();
            model.takeDown(widget);
            UWidget* parent = widget->parentWidget();
            model.ups.push_back({widget, parent == &root, parent ? parent : model.topScreen()});
        } else if (what < 78) {
            Raised* widget = pick(model.widgets);
            widget->lower();
            model.takeDown(widget);
        } else if (what < 82) {
            Raised* widget = pick(model.widgets);
            manager.pushBackPopup(widget);
            std::stable_partition(
                model.ups.begin(), model.ups.end(), [widget](const Model::Up& up) { return up.widget == widget; });
        } else {
            Raised* widget = pick(model.widgets);
            if (what < 91) {
                // Out of the tree it goes down; one that was never in it stays.
                if (widget->parentWidget())
                    model.takeDown(widget);
                widget->setParent(nullptr);
            } else {
                model.takeDown(widget);
                std::erase(model.widgets, widget);
                delete widget;
            }
        }
        ASSERT_EQ(manager.focusWidget(), model.focus()) << "round " << round << ", " << what;
    }
    for (Raised* widget : model.widgets)
        delete widget;
}

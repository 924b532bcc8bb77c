#include "CellFont.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "UScreenWE1.h"
#include "UString.h"
#include "UWidget.h"
#include "UWindowManager.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace {

std::string gKeys; // what reached whom: "a+5 " is a press of OK at widget a

UWindowManager& manager()
{
    return UWindowManager::instance();
}

/// A widget with a name that it paints into a cell of its own, and which takes keys or not.
class NamedWidget : public UWidget {
public:
    NamedWidget(char name, UWidget* parent, Layer layer = Layer::Screen)
        : UWidget(parent)
        , mName(name)
        , mLayer(layer)
    {
    }

    void paint(UPainter& painter) override
    {
        if (blanks)
            painter.clearLines(0, 1);
        painter.text(0, cell, UString(std::string(1, mName)));
    }
    UWidget* focusTarget() override
    {
        if (!isWidgetEnabled() || (passive && !manager().hasFocusRequest(this)))
            return nullptr;
        return target;
    }
    bool isPassive() const override { return passive; }
    Layer layer() const override { return mLayer; }
    Role role() const override { return theRole; }
    bool keyEvent(UKeyEvent* key) override
    {
        gKeys += {mName,
            key->state() == UGlobal::KeyPressed    ? '+'
                : key->state() == UGlobal::KeyHeld ? '='
                                                   : '-',
            static_cast<char>('0' + key->key()), ' '};
        const bool answer = takesKeys;
        if (onKey)
            onKey();
        return answer;
    }

    UWidget* target = this;
    bool passive = false;
    bool takesKeys = true;
    bool blanks = false;
    int cell = 0;
    Role theRole = Role::None;
    std::function<void()> onKey;

private:
    char mName;
    Layer mLayer;
};

class WindowManagerTest : public testing::Test {
protected:
    WindowManagerTest()
    {
        gKeys.clear();
        manager().setScreen(&glass);
        manager().setFont(&font);
        manager().setRoot(&root);
        manager().setEnabled(true);
    }
    ~WindowManagerTest() override
    {
        manager().setRoot(nullptr);
        manager().setFont(nullptr);
        manager().setScreen(nullptr);
    }

    static bool key(int code, int state)
    {
        UKeyEvent event(code, state);
        return manager().dispatchKey(event);
    }
    static bool press(int code) { return key(code, UGlobal::KeyPressed); }
    static bool hold(int code) { return key(code, UGlobal::KeyHeld); }
    static bool release(int code) { return key(code, UGlobal::KeyReleased); }
    static std::string keys() { return std::exchange(gKeys, {}); }

    std::string painted()
    {
        manager().paintIfNeeded();
        std::string line = lineText(glass, 0);
        return line.substr(0, line.find_last_not_of(' ') + 1);
    }

    UScreenWE1 glass{47};
    CellFont font;
    UWidget root;
    NamedWidget* a = new NamedWidget('a', &root);
    NamedWidget* b = new NamedWidget('b', &root);
};

}

// Focus

TEST_F(WindowManagerTest, TheLastVisibleScreenThatWantsKeysHasTheFocus)
{
    EXPECT_EQ(manager().focusWidget(), b);
    b->hide();
    EXPECT_EQ(manager().focusWidget(), a);
    b->show();
    b->setEnabled(false);
    EXPECT_EQ(manager().focusWidget(), a);
    b->setEnabled(true);
    b->target = nullptr;
    EXPECT_EQ(manager().focusWidget(), a);
    a->setParent(nullptr);
    EXPECT_EQ(manager().focusWidget(), nullptr);
    EXPECT_FALSE(press(5));
    root.addWidget(a);
    EXPECT_EQ(manager().focusWidget(), a);
    root.hide();
    EXPECT_EQ(manager().focusWidget(), nullptr);
}

TEST_F(WindowManagerTest, APassivePopupJoinsInByRequestAlone)
{
    auto* note = new NamedWidget('n', &root, UWidget::Layer::Popup);
    note->passive = true;
    note->takesKeys = false;
    manager().raisePopup(note);
    press(5);
    manager().requestFocus(note);
    press(4);
    EXPECT_EQ(keys(), "b+5 n+4 b+4 ") << "what it doesn't take goes to the next";
    hold(4);
    release(4);
    EXPECT_EQ(keys(), "b=4 b-4 ") << "and so do hold and release";
    note->takesKeys = true;
    press(5);
    release(5);
    EXPECT_EQ(keys(), "n+5 n-5 ");
    manager().releaseFocus();
    press(5);
    EXPECT_EQ(keys(), "b+5 ");
    manager().requestFocus(note);
    delete note;
    EXPECT_EQ(manager().focusWidget(), b);
}

TEST_F(WindowManagerTest, AKeyThatAnOrdinaryPopupRefusesGoesNowhere)
{
    auto* popup = new NamedWidget('p', &root, UWidget::Layer::Popup);
    popup->takesKeys = false;
    manager().raisePopup(popup);
    EXPECT_FALSE(press(5));
    EXPECT_FALSE(release(5));
    EXPECT_EQ(keys(), "p+5 ");
}

// Keys

TEST_F(WindowManagerTest, HoldAndReleaseGoToWhoTookThePress)
{
    EXPECT_TRUE(press(5));
    EXPECT_TRUE(hold(5));
    EXPECT_TRUE(hold(5));
    EXPECT_TRUE(release(5));
    EXPECT_FALSE(release(5));
    EXPECT_FALSE(hold(5));
    EXPECT_EQ(keys(), "b+5 b=5 b=5 b-5 ");
}

TEST_F(WindowManagerTest, AKeyThatOpensAScreenDoesNotMoveInIt)
{
    NamedWidget* opened = nullptr;
    b->onKey = [&] {
        b->onKey = nullptr;
        opened = new NamedWidget('c', &root);
    };
    press(5);
    EXPECT_FALSE(hold(5));
    EXPECT_FALSE(release(5));
    EXPECT_EQ(keys(), "b+5 ");
    press(5);
    EXPECT_EQ(keys(), "c+5 ");
    opened->hide();
    EXPECT_FALSE(release(5)) << "the focus is another's by now";
    EXPECT_EQ(keys(), "");
}

TEST_F(WindowManagerTest, EachKeyThatIsDownHasAnOwnerOfItsOwn)
{
    press(5);
    auto* opened = new NamedWidget('c', &root);
    press(4);
    EXPECT_FALSE(release(5)) << "c took no press of this key";
    EXPECT_TRUE(hold(4));
    EXPECT_TRUE(release(4));
    EXPECT_EQ(keys(), "b+5 c+4 c=4 c-4 ");
    for (int code = 100; code < 200; ++code)
        press(code);
    EXPECT_TRUE(release(199));
    EXPECT_FALSE(release(100)) << "a key whose release was lost is forgotten some time";
    delete opened;
}

TEST_F(WindowManagerTest, AWidgetMayDieInsideItsKey)
{
    b->onKey = [&] { delete b; };
    EXPECT_TRUE(press(5));
    EXPECT_FALSE(hold(5));
    EXPECT_FALSE(release(5));
    EXPECT_EQ(keys(), "b+5 ");

    auto* note = new NamedWidget('n', &root, UWidget::Layer::Popup);
    note->passive = true;
    note->takesKeys = false;
    manager().raisePopup(note);
    manager().requestFocus(note);
    note->onKey = [&] {
        delete a;
        delete note;
    };
    EXPECT_FALSE(press(4)) << "both went, also the one that was to come next";
    EXPECT_FALSE(release(4));
    EXPECT_EQ(keys(), "n+4 ");
}

TEST_F(WindowManagerTest, AShownRoleIsFoundWhereverItStands)
{
    constexpr int idle = static_cast<int>(UWidget::Role::IdleDisplay);
    auto* inner = new NamedWidget('i', a);
    EXPECT_EQ(manager().shownWidget(idle), nullptr);
    inner->theRole = UWidget::Role::IdleDisplay;
    EXPECT_EQ(manager().shownWidget(idle), inner);
    EXPECT_EQ(manager().shownWidget(static_cast<int>(UWidget::Role::SearchableList)), nullptr);
    a->hide();
    EXPECT_EQ(manager().shownWidget(idle), nullptr);
    a->show();
    root.hide();
    EXPECT_EQ(manager().shownWidget(idle), nullptr);
}

// Painting

TEST_F(WindowManagerTest, ScreensArePaintedInTheirOrderAndBlankWhatTheyCover)
{
    b->cell = 1;
    EXPECT_EQ(painted(), "ab");
    b->blanks = true;
    manager().repaint();
    EXPECT_EQ(painted(), " b");
    b->blanks = false;
    root.addWidget(new NamedWidget('c', nullptr)); // covers the cell of a
    EXPECT_EQ(painted(), "cb");
    auto* child = new NamedWidget('d', b);
    child->cell = 4;
    EXPECT_EQ(painted(), "cb  d") << "a child that is born asks for its painting";
    b->hide();
    EXPECT_EQ(painted(), "c") << "a hidden widget hides its children";
}

TEST_F(WindowManagerTest, LayersLieOverTheScreensInTheirOrder)
{
    using Layer = UWidget::Layer;
    NamedWidget systemWindow('w', nullptr, Layer::SystemWindow);
    manager().addOverlay(&systemWindow);
    manager().addOverlay(&systemWindow);
    auto* volume = new NamedWidget('v', &root, Layer::Volume);
    auto* status = new NamedWidget('s', &root, Layer::StatusMessage);
    auto* first = new NamedWidget('p', &root, Layer::Popup);
    auto* second = new NamedWidget('q', &root, Layer::Popup);
    auto* late = new NamedWidget('l', &root);
    for (NamedWidget* widget : {&systemWindow, volume, status, first, second, late})
        widget->blanks = true;
    manager().raisePopup(second);
    manager().raisePopup(first);
    EXPECT_EQ(painted(), "v");
    volume->hide();
    EXPECT_EQ(painted(), "s");
    status->hide();
    EXPECT_EQ(painted(), "w");
    systemWindow.hide();
    EXPECT_EQ(painted(), "p") << "the popup that came up last";
    manager().lowerPopup(first);
    EXPECT_EQ(painted(), "q");
    manager().lowerPopup(second);
    EXPECT_EQ(painted(), "l") << "popups that are down are not painted";
}

TEST_F(WindowManagerTest, APopupBelowAScreenIsPaintedOnlyWhileItIsUp)
{
    auto* menu = new NamedWidget('m', b, UWidget::Layer::Popup);
    menu->cell = 2;
    a->hide();
    EXPECT_EQ(painted(), "b");
    manager().raisePopup(menu);
    EXPECT_EQ(painted(), "b m");
    EXPECT_EQ(manager().focusWidget(), menu);
    a->show();
    a->setParent(nullptr);
    root.addWidget(a);
    EXPECT_EQ(painted(), "a") << "it is covered with its screen";
    EXPECT_EQ(manager().focusWidget(), a);
    a->hide();
    b->hide();
    EXPECT_EQ(painted(), "") << "its screen is hidden";
}

TEST_F(WindowManagerTest, ADisabledScreenIsBlankAndIsPaintedOnlyWhenAsked)
{
    a->hide();
    EXPECT_EQ(painted(), "b");
    manager().setEnabled(false);
    EXPECT_EQ(painted(), "");
    manager().setEnabled(true);
    EXPECT_EQ(painted(), "b");
    EXPECT_FALSE(manager().paintIfNeeded());
    int paintings = 0;
    manager().setPaintObserver([&] { ++paintings; });
    manager().clearScreen();
    EXPECT_EQ(lineText(glass, 0).find('b'), std::string::npos) << "wiped at once";
    EXPECT_EQ(painted(), "b");
    b->refresh();
    b->refresh();
    manager().paintIfNeeded();
    EXPECT_EQ(paintings, 2);
    manager().setPaintObserver(nullptr);
}

TEST_F(WindowManagerTest, TheRootMayDieWithEverythingOnIt)
{
    auto tree = std::make_unique<UWidget>();
    auto* screen = new NamedWidget('s', tree.get());
    auto* popup = new NamedWidget('p', tree.get(), UWidget::Layer::Popup);
    manager().setRoot(tree.get());
    manager().raisePopup(popup);
    manager().requestFocus(popup);
    press(5);
    NamedWidget bound('d', nullptr, UWidget::Layer::Popup);
    manager().raisePopup(&bound);
    EXPECT_TRUE(screen->isShown());
    tree.reset();
    EXPECT_FALSE(release(5));
    EXPECT_EQ(manager().focusWidget(), nullptr);
    EXPECT_EQ(painted(), "");
    manager().setRoot(&root);
    EXPECT_EQ(manager().focusWidget(), b);
}

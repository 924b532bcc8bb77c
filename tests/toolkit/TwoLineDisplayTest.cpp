#include "TwoLineDisplay.h"
#include "GlassTest.h"

#include <memory>

namespace {

/// A handler that draws nothing, and does what the test wants with each key.
class Handler final : public GUIEventIfc {
public:
    bool onLeft(const UKeyEvent* key) override { return note('l', key); }
    bool onRight(const UKeyEvent* key) override { return note('r', key); }
    bool onUp(const UKeyEvent* key) override { return note('u', key); }
    bool onDown(const UKeyEvent* key) override { return note('d', key); }
    bool onOK(const UKeyEvent* key) override { return note('o', key); }
    bool setEventHandler(GUIEventIfc*) override { return false; }

    std::string keys;
    std::function<void()> onKey;

private:
    bool note(char name, const UKeyEvent* key)
    {
        keys += {name, static_cast<char>('0' + key->state()), ' '};
        if (onKey)
            onKey();
        return true;
    }
};

using TwoLineDisplayTest = GlassTest;

}

TEST_F(TwoLineDisplayTest, TheDisplayHandsOnEachKeyInTheStatesThatItIsMeantFor)
{
    auto display = std::make_unique<TwoLineDisplay>();
    auto handler = std::make_unique<Handler>();
    root.addWidget(display.get());
    display->setEventHandler(handler.get());
    for (const int key : {UGlobal::KeyLeft, UGlobal::KeyRight, UGlobal::KeyUp, UGlobal::KeyDown, UGlobal::KeyOk}) {
        for (const int state : {UGlobal::KeyPressed, UGlobal::KeyHeld, UGlobal::KeyReleased}) {
            UKeyEvent event(key, state);
            manager.dispatchKey(event);
        }
    }
    EXPECT_EQ(handler->keys, "l1 r1 u1 u2 u0 d1 d2 d0 o1 ");

    // The handler goes first, or the display, in the middle of a key.
    handler.reset();
    EXPECT_FALSE(press(UGlobal::KeyOk));
    handler = std::make_unique<Handler>();
    display->setEventHandler(handler.get());
    handler->onKey = [&] { display.reset(); };
    press(UGlobal::KeyUp);
    EXPECT_EQ(manager.focusWidget(), below);
    EXPECT_EQ(handler->keys, "u1 ");
}

TEST_F(TwoLineDisplayTest, OddPiecesAreCutAtTheEndOfTheirLine)
{
    TwoLineDisplay display;
    display.setParent(&root);
    for (const int number : {-1, 0, 1, 2}) {
        display.addText(number, text(std::string(1 << 20, 'x')));
        display.addIcon(number, 0xFFFF);
        for (int count = 0; count < 100000; ++count)
            display.addText(number, text("y"));
    }
    display.setScrollIndication(true);
    display.setArrowMode(99);
    EXPECT_EQ(line(0), std::string(27, 'x'));
    EXPECT_EQ(line(1), "  " + std::string(25, 'x'));
    display.setArrowMode(TwoLineDisplay::ArrowBoth);
    EXPECT_EQ(line(1), "  " + std::string(24, 'x') + "|");
}

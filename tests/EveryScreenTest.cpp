#include "EveryScreen.h"
#include "ExistingDisplayables.h"

#include <DisplayAPI/DisplayablePrivateIfc.h>

#include <UWidget.h>

using namespace DisplayAPI;

TEST_P(EveryScreenTest, MayDieInAnyNotice)
{
    for (const auto& change : everyChange()) {
        SCOPED_TRACE(change.name);
        Screen screen = makeShown();
        const bool isPopup = !screen->getPrivateImpl()->hideOldWidgetOnFocusGained();
        changes.takeNotices();
        change.make(*screen, stage);
        const int notices = changes.takeNotices();
        EXPECT_EQ(notices > 0, change.isSeen);

        for (int number = 1; number <= notices; ++number) {
            screen = makeShown();
            const Displayable* gone = screen.get();
            actInNotice(number, [&] { screen.reset(); });
            change.make(*screen, stage);
            changes.onNotice = nullptr;
            ASSERT_EQ(screen, nullptr) << "notice " << number;
            EXPECT_FALSE(displayableExists(gone));
            EXPECT_EQ(display->getCurrent(), isPopup ? &below : nullptr);
            EXPECT_EQ(screenText(), isPopup ? below.screen().text : "");
        }
    }
}

TEST_P(EveryScreenTest, BearsEveryActionInEveryNotice)
{
    TestScreen other("other", log);
    auto actions = everyChange();
    actions.push_back({"darken", [this](Displayable&, Stage&) { display->setCurrent(nullptr); }});
    actions.push_back({"show another", [&](Displayable&, Stage&) { display->setCurrent(&other); }});
    actions.push_back({"hide", [this](Displayable&, Stage&) {
                           display->hide();
                           display->show();
                       }});
    actions.push_back({"new locale", [this](Displayable&, Stage&) { display->localeChanged("de"); }});
    actions.push_back({"read", [this](Displayable&, Stage&) { screenText(); }});
    for (const auto& change : everyChange()) {
        for (const auto& action : actions) {
            SCOPED_TRACE(std::string(action.name) + " inside " + change.name);
            for (int number = 1, last = 1; number <= last; ++number) {
                const Screen screen = makeShown();
                actInNotice(number, [&] {
                    last = number + 1;
                    action.make(*screen, stage);
                });
                change.make(*screen, stage);
                changes.onNotice = nullptr;
                screenText();
                GetParam().tell(*screen);

                show(*screen);
                EXPECT_EQ(display->getCurrent(), screen.get());
                press(UGlobal::KeyDown);
                press(UGlobal::KeyOk);
                screenText();
                GetParam().tell(*screen);
            }
        }
    }
}

TEST_P(EveryScreenTest, IsQuietWhenItsWidgetHasGone)
{
    for (const bool isShown : {false, true}) {
        SCOPED_TRACE(isShown ? "on the glass" : "made");
        const Screen screen = isShown ? makeShown() : make();
        DisplayablePrivateIfc& half = *screen->getPrivateImpl();
        half.releaseOwnership();
        delete half.getWidget();
        EXPECT_EQ(half.getWidget(), nullptr);
        changeAll(*screen);
        display->localeChanged("fr");
        half.gainOwnership();
        EXPECT_EQ(half.serialise(), "");
        EXPECT_EQ(half.serialise({wholeGlass()}), "");
        GetParam().tell(*screen);

        show(below);
        show(*screen);
        EXPECT_EQ(display->getCurrent(), &below);
        EXPECT_EQ(screenText(), below.screen().text);
    }
}

TEST_P(EveryScreenTest, GivesTheSameOnBothRoads)
{
    const auto tellAll = [this] {
        std::string all;
        const Screen screen = make();
        for (const auto& change : GetParam().changes) {
            display->setCurrent(screen.get());
            change.make(*screen, stage);
            all += change.name + (": " + story(*screen));
        }
        return all + std::to_string(changes.takeNotices()) + " notices";
    };
    changes.takeNotices();
    const std::string direct = tellAll();
    changes.takeNotices(); // a form tells of its own end
    std::string posted;
    elsewhere([&] { posted = tellAll(); });
    EXPECT_EQ(direct, posted);
}

TEST_P(EveryScreenTest, OutlivesItsDisplay)
{
    const Screen screen = makeShown();
    const std::string before = story(*screen);
    const std::string told = GetParam().tell(*screen);
    endDisplay();
    EXPECT_EQ(screen->getPrivateImpl()->getWidget()->parentWidget(), nullptr);
    EXPECT_EQ(GetParam().tell(*screen), told);
    makeDisplay();
    show(below);
    show(*screen);
    EXPECT_EQ(story(*screen), before);

    comeTo(BehindTheDisplay);
    changeAll(*screen);
    makeDisplay();
    stage.hasLoop = true;
    changeAll(*screen);
    show(*screen);
    EXPECT_EQ(display->getCurrent(), screen.get());
}

TEST_P(EveryScreenTest, LosesNothingWhenTheLoopHasEnded)
{
    Screen screen;
    Screen unborn;
    elsewhere([&] { screen = makeShown(); });
    const std::string before = story(*screen);
    comeTo(BehindTheLoop);
    run(true, [&] {
        unborn = make();
        for (const Screen* refused : {&screen, &unborn}) {
            changeAll(**refused);
            GetParam().tell(**refused);
        }
    });
    EXPECT_EQ(unborn->getPrivateImpl(), nullptr);

    comeTo(UnderTheNextDisplay);
    show(below);
    show(*screen);
    EXPECT_EQ(story(*screen), before);
    show(*unborn);
    EXPECT_EQ(display->getCurrent(), screen.get());
    changeAll(*unborn);
    GetParam().tell(*unborn);
    changeAll(*screen);
}

TEST_P(EveryScreenTest, DiesInEveryOrderOnEveryThread)
{
    for (int way = 0; way < 8; ++way) {
        for (const Moment moment : Moments) {
            SCOPED_TRACE(testing::Message() << "way " << way << " moment " << moment);
            makeDisplay();
            stage.hasLoop = true;
            Screen screen;
            run(way & 1, [&] { screen = way & 2 ? makeShown() : make(); });
            comeTo(moment);
            run(way & 4, [&] {
                changeAll(*screen); // so that work is pending
                screen.reset();
            });
            if (moment == BehindTheDisplay)
                makeDisplay();
            display->setCurrent(&below);
            press(UGlobal::KeyOk);
            EXPECT_EQ(screenText(), below.screen().text);
        }
    }
}

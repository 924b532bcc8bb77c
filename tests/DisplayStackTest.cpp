#include "ExistingDisplayables.h"
#include "StackFixture.h"

#include <DisplayAPI/PIPWindow.h>
#include <DisplayAPI/YRCWindow.h>

#include <UApplication.h>

#include <cstddef>
#include <memory>
#include <new>
#include <sstream>

using namespace DisplayAPI;

namespace {

/// A visible display with an ordinary screen and two popups above it.
class DisplayStackTest : public StackFixture {
protected:
    DisplayStackTest() { makeAll(); }

    void makeAll(const std::string& softwareType = "Zelmark SIP")
    {
        makeDisplay(softwareType);
        display->show();
        bottom = makeScreen("bottom");
        middle = makeScreen("middle", Kind::Popup);
        top = makeScreen("top", Kind::Popup);
        next = makeScreen("next");
    }

    void fill()
    {
        for (TestScreen* screen : {bottom.get(), middle.get(), top.get()})
            display->setCurrent(screen);
        takeLog();
        subscriber.takeNotices();
    }

    std::string stackText()
    {
        std::string names;
        for (UWidget* child = content()->firstChild(); child; child = child->nextSibling()) {
            for (const auto* screen : {&bottom, &middle, &top, &next}) {
                if (*screen && &(*screen)->widget() == child)
                    names += (names.empty() ? "" : " ") + (*screen)->widgetName();
            }
        }
        return names;
    }

    std::unique_ptr<TestScreen> bottom;
    std::unique_ptr<TestScreen> middle;
    std::unique_ptr<TestScreen> top;
    std::unique_ptr<TestScreen> next; // an ordinary one, which is not on the stack
};

TEST_F(DisplayStackTest, EachStepLeavesItsScreensOnTheGlassAndTellsOnce)
{
    const struct {
        const char* name;
        std::function<void()> step;
        const char* stack;
        const std::unique_ptr<TestScreen>* current;
        Lines log;
    } steps[] = {
        {"a popup again", [&] { display->setCurrent(middle.get()); }, "bottom top middle", &middle, {"show middle"}},
        {"an ordinary screen", [&] { display->setCurrent(next.get()); }, "next", &next, {"show next"}},
        {"the ordinary one again", [&] { display->setCurrent(bottom.get()); }, "bottom", &bottom, {"show bottom"}},
        {"the top popup goes", [&] { top->screen().dismiss(); }, "bottom middle", &middle, {"show middle"}},
        {"one in the middle goes", [&] { middle->screen().dismiss(); }, "bottom top", &top, {}},
        {"the lowest goes", [&] { bottom->screen().dismiss(); }, "middle top", &top, {}},
        {"dark", [&] { display->setCurrent(nullptr); }, "", nullptr,
            {"lostFocus bottom", "lostFocus middle", "lostFocus top"}},
    };
    for (const auto& [name, step, stack, current, told] : steps) {
        SCOPED_TRACE(name);
        makeAll();
        fill();
        step();
        EXPECT_EQ(stackText(), stack);
        EXPECT_EQ(display->getCurrent(), current ? current->get() : nullptr);
        EXPECT_EQ(takeLog(), told);
        EXPECT_EQ(subscriber.takeNotices(), 1);
        std::string text;
        std::istringstream names(stack);
        for (std::string each; names >> each;)
            text += "object:\nname:" + each + "\nend:\n";
        EXPECT_EQ(display->serialise(), text);
        for (TestScreen* screen : {bottom.get(), middle.get(), top.get(), next.get()}) {
            SCOPED_TRACE(screen->widgetName());
            EXPECT_EQ(screen->screen().isOwner, !isInContent(*screen));
            if (isInContent(*screen)) {
                EXPECT_TRUE(screen->widget().isVisible());
                EXPECT_EQ(screen->screen().display(), display.get());
            }
        }
    }
}

TEST_F(DisplayStackTest, WhoLeavesForAnotherForgetsTheDisplayAndWhoIsDismissedKeepsIt)
{
    fill();
    top->screen().dismiss();
    EXPECT_EQ(top->screen().display(), display.get()) << "it gives its notice when the one below is back";
    top->screen().dismiss(); // it stands on no stack now
    EXPECT_EQ(stackText(), "bottom middle");
    EXPECT_EQ(subscriber.takeNotices(), 1);
    display->setCurrent(next.get());
    for (TestScreen* screen : {bottom.get(), middle.get()}) {
        EXPECT_EQ(screen->screen().display(), nullptr);
        EXPECT_FALSE(screen->widget().isVisible());
    }
    EXPECT_EQ(next->screen().display(), display.get());
}

TEST_F(DisplayStackTest, AScreenThatTellsOfItsReturnGivesTheOneNoticeOfADismissal)
{
    fill();
    middle->screen().onShow = [&] { middle->screen().generateDisplayChangedEvent(); };
    top->screen().dismiss();
    EXPECT_EQ(subscriber.takeNotices(), 1);
}

TEST_F(DisplayStackTest, WhenTheLastScreenGoesTheGlassIsDark)
{
    display->setCurrent(nullptr);
    EXPECT_EQ(subscriber.takeNotices(), 1) << "of show(): nothing was there";
    display->setCurrent(bottom.get());
    subscriber.takeNotices();
    bottom->screen().dismiss();
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_FALSE(content()->isVisible());
    EXPECT_TRUE(bottom->screen().isOwner);
    EXPECT_EQ(subscriber.takeNotices(), 1);
    display->setCurrent(middle.get());
    EXPECT_TRUE(content()->isVisible());
}

TEST_F(DisplayStackTest, AHiddenDisplayOnlyBuildsTheStackAndShowsItsTopLater)
{
    display->hide();
    fill();
    EXPECT_EQ(stackText(), "");
    EXPECT_EQ(display->getCurrent(), top.get());
    EXPECT_FALSE(content()->isVisible());
    middle->screen().dismiss();
    top->screen().dismiss();
    EXPECT_EQ(takeLog(), Lines{});
    EXPECT_TRUE(middle->screen().isOwner && top->screen().isOwner) << "what is dismissed is given back";
    display->setCurrent(top.get());
    EXPECT_EQ(subscriber.takeNotices(), 3) << "of two that leave and one that comes";

    display->show();
    EXPECT_EQ(takeLog(), Lines{"show top"});
    EXPECT_EQ(stackText(), "bottom top");
    EXPECT_TRUE(content()->isVisible());
    EXPECT_EQ(subscriber.takeNotices(), 1);
}

TEST_F(DisplayStackTest, TheCallViewKeepsTheFullScreenWhenItIsHidden)
{
    for (const bool isCallView : {false, true}) {
        makeDisplay("Zelmark SIP", isCallView ? "CallViewPhonelet" : "TestPhonelet");
        auto* application = VantoUApplication::getCurrentApplication();
        display->show();
        application->requestFullScreen();
        display->hide();
        EXPECT_EQ(application->isFullScreen(), isCallView);
    }
}

TEST_F(DisplayStackTest, WhatIsNoScreenIsIgnored)
{
    fill();
    auto* dead = makeScreen("dead").release();
    delete dead;
    auto withoutPrivate = makeScreen("without private");
    withoutPrivate->dropPrivate();
    auto withoutWidget = makeScreen("without widget");
    withoutWidget->screen().hasWidget = false;
    YRCWindow yrcWindow(true);
    PIPWindow pipWindow(false);
    const std::vector<Displayable*> screens{dead, withoutPrivate.get(), withoutWidget.get(), &yrcWindow, &pipWindow};
    for (Displayable* screen : screens) {
        display->setCurrent(screen);
        display->createServerDisplay(screen);
    }
    display->createServerDisplay(nullptr);
    display->widgetDismissed(nullptr);
    EXPECT_EQ(stackText(), "bottom middle top");
    EXPECT_EQ(display->getCurrent(), top.get());
    EXPECT_EQ(subscriber.takeNotices(), 0);
}

TEST_F(DisplayStackTest, AServerDisplayIsCurrentWithoutAStack)
{
    makeDisplay("Zelmark SIP", "TestPhonelet", true);
    display->createServerDisplay(bottom.get());
    EXPECT_EQ(display->getCurrent(), bottom.get());
    EXPECT_EQ(bottom->widget().parentWidget(), nullptr);
    EXPECT_TRUE(bottom->screen().isOwner);
    EXPECT_EQ(bottom->screen().display(), display.get());
    EXPECT_EQ(display->serialise(), "");
    EXPECT_TRUE(content()->isVisible());
    bottom.reset();
    EXPECT_EQ(display->getCurrent(), nullptr);
}

// Screens and displays that go

struct Deletion {
    const char* name;
    int screen; // 0 bottom, 1 middle, 2 top
    const char* stack;
    int current; // -1 none
};

class DeletedOnTheStack : public DisplayStackTest, public ::testing::WithParamInterface<Deletion> { };

TEST_P(DeletedOnTheStack, IsForgottenWithoutShowOrNotice)
{
    std::unique_ptr<TestScreen>* all[] = {&bottom, &middle, &top};
    fill();
    all[GetParam().screen]->reset();
    EXPECT_EQ(stackText(), GetParam().stack);
    EXPECT_EQ(display->getCurrent(), all[GetParam().current]->get());
    EXPECT_EQ(takeLog(), Lines{});
    EXPECT_EQ(subscriber.takeNotices(), 0);

    display->hide();
    display->show();
    EXPECT_EQ(display->getDisplayedRects()->size(), 2u);
    EXPECT_EQ(display->findVisibleRects().size(), 2u);
    display->setCurrent(nullptr);
    EXPECT_EQ(stackText(), "");
}

TEST_P(DeletedOnTheStack, IsDroppedByTheNextWalkIfItSaidNothing)
{
    std::unique_ptr<TestScreen>* all[] = {&bottom, &middle, &top};
    const std::vector<std::function<void()>> walks{
        [&] { display->setCurrent(nullptr); },
        [&] { display->show(); },
        [&] { display->serialise(); },
        [&] { display->serialiseByRect({}, ""); },
        [&] { display->getDisplayedRects(); },
        [&] { display->findVisibleRects(); },
        [&] { display->setStatusMessageAvailable(true); },
        [&] { display->clearSWfromDisplayable(); },
        [&] { display->removeOldCurrent(); },
        [&] { display->widgetDismissed((*all[GetParam().current])->getPrivateImpl()); },
        [&] { display.reset(); },
    };
    for (const auto& walk : walks) {
        makeAll();
        fill();
        (*all[GetParam().screen])->isRetiring = false;
        all[GetParam().screen]->reset();
        walk();
        if (display) {
            EXPECT_TRUE(!display->getCurrent() || displayableExists(display->getCurrent()));
            EXPECT_LT(display->getDisplayedRects()->size(), 3u);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Positions, DeletedOnTheStack,
    ::testing::Values(Deletion{"Bottom", 0, "middle top", 2}, Deletion{"Middle", 1, "bottom top", 2},
        Deletion{"Top", 2, "bottom middle", 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(DisplayStackTest, ADisplayThatGoesFirstGivesEveryWidgetBack)
{
    for (const bool isVisible : {true, false}) {
        makeDisplay();
        if (isVisible)
            display->show();
        auto cleared = makeScreen("cleared");
        auto dismissed = makeScreen("dismissed", Kind::Popup);
        auto joined = makeScreen("joined");
        display->setCurrent(cleared.get());
        fill();
        display->setCurrent(dismissed.get());
        dismissed->screen().dismiss();
        joined->screen().join(&top->screen());
        display.reset();
        for (TestScreen* screen :
            {cleared.get(), dismissed.get(), joined.get(), bottom.get(), middle.get(), top.get()}) {
            EXPECT_EQ(screen->screen().display(), nullptr) << screen->widgetName();
            EXPECT_TRUE(screen->screen().isOwner) << screen->widgetName();
            EXPECT_EQ(screen->widget().parentWidget(), nullptr) << screen->widgetName();
            screen->screen().generateDisplayChangedEvent();
        }
    }
}

TEST_F(DisplayStackTest, AHalfThatWasKeptFindsNoDisplayButItsOwn)
{
    // Its handle has gone and stands in no registry, as after a refused deletion.
    TestScreen::Private kept("kept", Kind::Popup, log);
    TestScreen::Private joined("joined", Kind::Popup, log);
    alignas(DisplayPrivate) std::byte memory[sizeof(DisplayPrivate)];
    const auto makeThere
        = [&memory] { return new (memory) DisplayPrivate("Other", false, "other", "", "", "", "", nullptr, nullptr); };
    DisplayPrivate* other = makeThere();
    kept.connectDisplayChangedSignal(other);
    joined.join(&kept);
    EXPECT_EQ(joined.display(), other);
    std::destroy_at(other);
    for (const bool isAnotherThere : {false, true}) {
        if (isAnotherThere) {
            other = makeThere();
            other->subscribe(&subscriber);
        }
        subscriber.takeNotices();
        for (TestScreen::Private* half : {&kept, &joined}) {
            EXPECT_EQ(half->display(), nullptr);
            half->generateDisplayChangedEvent();
            half->dismiss();
        }
        EXPECT_EQ(subscriber.takeNotices(), 0);
    }
    std::destroy_at(other);
}

#ifndef NDEBUG
TEST_F(DisplayStackTest, AnotherThreadIsStoppedAtTheDoor)
{
    // A plain fork takes a lock along that another test's worker may hold.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    constexpr unsigned int otherThread = 4'000'000'000U;
    EXPECT_DEATH(
        {
            Widget::setGuiThreadId(otherThread);
            display->setCurrent(nullptr);
        },
        "post a request");
}
#endif

// Calls from inside a notice

TEST_F(DisplayStackTest, TheSubscriberMayReadUnsubscribeAndChangeTheStack)
{
    std::string seen;
    subscriber.takeNotices();
    subscriber.onNotice = [&] {
        display->unSubscribe();
        display->subscribe(&subscriber);
        seen = display->serialiseByRect({Rect(0, 0, 162, 31)}, "");
        if (display->getCurrent() == bottom.get())
            display->setCurrent(middle.get());
    };
    display->setCurrent(bottom.get());
    EXPECT_EQ(display->getCurrent(), middle.get());
    EXPECT_EQ(seen, bottom->screen().text + middle->screen().text);
    subscriber.onNotice = [&] { display->unSubscribe(); };
    display->setCurrent(top.get());
    display->setCurrent(bottom.get());
    EXPECT_EQ(subscriber.takeNotices(), 3);
}

TEST_F(DisplayStackTest, AScreenMayGoWhileItIsBeingShown)
{
    display->setCurrent(bottom.get());
    top->screen().onShow = [&] { top->screen().dismiss(); };
    display->setCurrent(top.get());
    EXPECT_EQ(display->getCurrent(), bottom.get());
    EXPECT_TRUE(top->screen().isOwner);

    middle->screen().onShow = [&] { display->setCurrent(nullptr); };
    display->setCurrent(middle.get());
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_TRUE(middle->screen().isOwner);
}

TEST_F(DisplayStackTest, AScreenMayDeleteAnyAndComeBackWhenItLosesTheFocus)
{
    fill();
    bottom->screen().onLostFocus = [&] { bottom.reset(); };
    middle->screen().onLostFocus = [&] {
        top.reset();
        display->setCurrent(middle.get());
    };
    display->setCurrent(nullptr);
    EXPECT_EQ(takeLog(), (Lines{"lostFocus bottom", "lostFocus middle", "show middle"}));
    EXPECT_EQ(stackText(), "middle");
    EXPECT_EQ(display->getCurrent(), middle.get());
    EXPECT_FALSE(middle->screen().isOwner);
}

/// Whatever the subscriber does inside a notice, stack, glass and ownership agree behind it.
TEST_F(DisplayStackTest, TheSubscriberMayDoAnythingInsideEveryNotice)
{
    using Step = std::pair<const char*, std::function<void()>>;
    const std::vector<Step> operations{
        {"popup", [&] { display->setCurrent(middle.get()); }},
        {"ordinary", [&] { display->setCurrent(next.get()); }},
        {"dark", [&] { display->setCurrent(nullptr); }},
        {"server", [&] { display->createServerDisplay(next.get()); }},
        {"show", [&] { display->show(); }},
        {"hide", [&] { display->hide(); }},
        {"window", [&] { display->setSystemWindowSize(2); }},
        {"locale", [&] { display->stopTimer(); }},
    };
    const std::vector<Step> actions{
        {"deletes the bottom", [&] { bottom.reset(); }},
        {"deletes the middle", [&] { middle.reset(); }},
        {"deletes the top", [&] { top.reset(); }},
        {"deletes all",
            [&] {
                for (auto* screen : {&bottom, &middle, &top, &next})
                    screen->reset();
            }},
        {"dismisses", [&] { top->screen().dismiss(); }},
        {"darkens", [&] { display->setCurrent(nullptr); }},
        {"replaces", [&] { display->setCurrent(bottom.get()); }},
        {"hides", [&] { display->hide(); }},
    };
    for (const auto& [operation, run] : operations) {
        for (const auto& [action, react] : actions) {
            SCOPED_TRACE(std::string(operation) + ", " + action);
            makeAll("Zelmark QVT");
            fill();
            subscriber.onNextNotice = react;
            run();
            subscriber.onNextNotice = nullptr;
            display->show(); // a hidden display takes the widgets without putting them anywhere
            Displayable* current = display->getCurrent();
            EXPECT_TRUE(!current || displayableExists(current));
            display->serialiseByRect({Rect(0, 0, 162, 31)}, "");
            for (TestScreen* screen : {bottom.get(), middle.get(), top.get(), next.get()}) {
                if (screen) {
                    EXPECT_EQ(screen->screen().isOwner, !isInContent(*screen)) << screen->widgetName();
                }
            }
        }
    }
}

}

#include "EveryScreen.h"

#include <DisplayAPI/DisplayablePrivateIfc.h>

#include <UWidget.h>

using namespace DisplayAPI;

TEST_P(EveryRowTest, MayDieInTheNoticeOfItsComingAndGoing)
{
    for (const bool isGoing : {false, true}) {
        if (isGoing && !mayTake())
            break;
        const Screen holder = makeHolder();
        show(*holder);
        Row row = make();
        Widget* dying = row.get();
        if (isGoing)
            put(*holder, std::move(row));
        row.release();
        bool isTold = false;
        changes.onNextNotice = [&] {
            delete dying;
            isTold = true;
        };
        if (isGoing)
            GetParam().take(*holder, *dying);
        else
            GetParam().put(*holder, *dying);
        EXPECT_TRUE(isTold);
        screenText();

        Widget& next = put(*holder, make());
        show(*holder);
        story(next);
    }
}

TEST_P(EveryRowTest, IsQuietWhenItsWidgetHasGone)
{
    const Screen holder = makeHolder();
    Widget& row = put(*holder, make());
    DisplayablePrivateIfc& half = *holder->getPrivateImpl();
    half.releaseOwnership();
    delete half.getWidget(); // and the row's with it
    changeAll(row);
    display->localeChanged("fr");
    GetParam().tell(row);
    if (!mayTake())
        return;
    const Row back = take(*holder, row);
    changeAll(*back);
    GetParam().tell(*back);
    const Screen other = makeHolder();
    GetParam().put(*other, *back);
    show(*other);
    screenText();
    take(*other, *back).release();
}

TEST_P(EveryRowTest, GivesTheSameOnBothRoads)
{
    const auto tellAll = [this] {
        std::string all;
        const Screen holder = makeHolder();
        display->setCurrent(holder.get());
        Widget& row = put(*holder, make());
        for (const auto& change : GetParam().changes) {
            change.make(row, stage);
            all += change.name + (": " + story(row));
        }
        const Row back = mayTake() ? take(*holder, row) : nullptr;
        return all + (back ? story(*back) : std::string());
    };
    const std::string direct = tellAll();
    std::string posted;
    elsewhere([&] { posted = tellAll(); });
    EXPECT_EQ(direct, posted);
}

TEST_P(EveryRowTest, GoesWholeFromOneHolderToTheNext)
{
    if (!mayTake())
        return;
    Screen first = makeHolder();
    const Screen next = makeHolder();
    Widget& row = put(*first, make());
    changeAll(row);
    show(*first);
    const std::string before = story(row);
    Row back = take(*first, row);
    EXPECT_EQ(GetParam().tell(*back) + "\n", before.substr(0, before.find('\n') + 1));
    first.reset();
    GetParam().put(*next, *back);
    show(*next);
    EXPECT_EQ(story(*back.release()), before);
}

TEST_P(EveryRowTest, LosesNothingWhenTheLoopHasEnded)
{
    const Screen holder = makeHolder();
    Widget& held = put(*holder, make());
    const Row free = make();
    show(*holder);
    const std::string before = story(held);
    const std::string told = GetParam().tell(*free);
    Row unborn;
    comeTo(BehindTheLoop);
    run(true, [&] {
        unborn = make();
        for (Widget* row : {&held, free.get(), unborn.get()}) {
            changeAll(*row);
            GetParam().tell(*row);
        }
    });

    comeTo(UnderTheNextDisplay);
    show(*holder);
    EXPECT_EQ(story(held), before);
    EXPECT_EQ(GetParam().tell(*free), told);
    changeAll(*unborn);
    GetParam().tell(*unborn);
    GetParam().put(*holder, *unborn); // it stays the application's
    EXPECT_EQ(story(held), before);
    changeAll(held);
    changeAll(*free);
}

TEST_P(EveryRowTest, DiesInEveryOrderOnEveryThread)
{
    for (int way = 0; way < 16; ++way) {
        for (const Moment moment : Moments) {
            SCOPED_TRACE(testing::Message() << "way " << way << " moment " << moment);
            makeDisplay();
            stage.hasLoop = true;
            Screen holder;
            Row row;
            Widget* held = nullptr;
            run(way & 1, [&] {
                holder = makeHolder();
                display->setCurrent(holder.get());
                held = &put(*holder, make());
                if (way & 2 && mayTake())
                    row = take(*holder, *held);
            });
            comeTo(moment);
            run(way & 4, [&] {
                changeAll(*held); // so that work is pending
                if (way & 8) {
                    if (!row)
                        row.reset(held);
                    row.reset();
                }
                holder.reset();
                row.reset();
            });
            if (moment == BehindTheDisplay)
                makeDisplay();
            display->setCurrent(&below);
            press(UGlobal::KeyOk);
            EXPECT_EQ(screenText(), below.screen().text);
        }
    }
}

#include "EveryScreen.h"

#include "Deliveries.h"
#include "ThreadedPhoneTest.h"

#include <UApplication.h>
#include <ULoop.h>
#include <UScreenWE1.h>
#include <UWindowManager.h>

#include <ostream>
#include <thread>
#include <utility>

using namespace DisplayAPI;

Stage::~Stage()
{
    endDeliveries();
    for (ListItem* row : ListItem::all()) {
        if (!row->holder())
            delete row;
    }
    for (TextField* field : TextField::all()) {
        if (!field->holder())
            delete field;
    }
}

void Stage::press(int key)
{
    if (!hasLoop)
        return;
    UApplication::instance()->postKey(key, UGlobal::KeyPressed);
    UApplication::instance()->postKey(key, UGlobal::KeyReleased);
    callOnGui([] { ULoop::instance().processEvents(); });
}

void Stage::advance(std::uint64_t milliseconds)
{
    if (hasLoop)
        callOnGui([milliseconds] { ULoop::instance().advance(milliseconds); });
}

ListItem* Stage::newRow(const std::string& text)
{
    return new ListItem(text, true);
}

void Stage::takeBack(ListItem* row)
{
    const bool isRefused = !hasLoop && !Widget::isGuiThread();
    if (!isRefused && ListItem::exists(row))
        delete row;
}

TextField* Stage::newField(const std::string& label)
{
    return new TextField(translation(label), {}, translation("value"), TextField::AnyText, true);
}

void Stage::takeBack(Item* item)
{
    const bool isRefused = !hasLoop && !Widget::isGuiThread();
    if (!isRefused && Item::exists(item))
        delete item;
}

PromiseTest::~PromiseTest()
{
    if (!display)
        return;
    display->setCurrent(nullptr);
    // Behind the loop no worker is inside the stage's listener any more.
    if (stage.hasLoop)
        endLoop();
}

void PromiseTest::comeTo(Moment moment)
{
    if (moment != WhileTheLoopRuns && stage.hasLoop)
        endLoop();
    if (moment >= BehindTheDisplay)
        endDisplay();
    if (moment == UnderTheNextDisplay)
        makeDisplay();
    stage.hasLoop = moment == WhileTheLoopRuns || moment == UnderTheNextDisplay;
}

void PromiseTest::run(bool isElsewhere, const std::function<void()>& function)
{
    if (!isElsewhere)
        function();
    else if (stage.hasLoop)
        elsewhere(function);
    else
        std::thread(function).join();
}

void PromiseTest::actInNotice(int number, std::function<void()> action)
{
    changes.onNotice = [left = number, action = std::move(action)]() mutable {
        if (--left == 0)
            action();
    };
}

/// What is on the glass, as text and painted.
static std::string glass(Display& display)
{
    std::string all = display.serialiseByRect({wholeGlass()}, "");
    callOnGui([&all] {
        ULoop::instance().processEvents();
        for (const int line : {0, 1})
            all += lineText(*UWindowManager::instance().screen(), line) + "\n";
    });
    return all;
}

EveryScreenTest::Screen EveryScreenTest::makeShown()
{
    display->setCurrent(&below);
    Screen screen = make();
    display->setCurrent(screen.get());
    return screen;
}

void EveryScreenTest::changeAll(Displayable& screen)
{
    for (const auto& change : GetParam().changes)
        change.make(screen, stage);
}

std::vector<Change<Displayable>> EveryScreenTest::everyChange()
{
    auto all = GetParam().changes;
    all.push_back({"setCurrent", [this](Displayable& screen, Stage&) { display->setCurrent(&screen); }});
    return all;
}

std::string EveryScreenTest::story(Displayable& screen)
{
    return GetParam().tell(screen) + "\n" + glass(*display);
}

Widget& EveryRowTest::put(Displayable& holder, Row row)
{
    GetParam().put(holder, *row);
    return *row.release();
}

EveryRowTest::Row EveryRowTest::take(Displayable& holder, Widget& row)
{
    GetParam().take(holder, row);
    return Row(&row);
}

void EveryRowTest::changeAll(Widget& row)
{
    for (const auto& change : GetParam().changes)
        change.make(row, stage);
}

std::string EveryRowTest::story(Widget& row)
{
    return GetParam().tell(row) + "\n" + glass(*display);
}

void PrintTo(const ScreenFamily& family, std::ostream* out)
{
    *out << family.changes.size() << " changes";
}

void PrintTo(const RowFamily& family, std::ostream* out)
{
    *out << family.changes.size() << " changes";
}

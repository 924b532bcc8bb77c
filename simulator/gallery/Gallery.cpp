#include "Gallery.h"

#include <UApplication.h>
#include <UEvent.h>
#include <UPainter.h>
#include <UScreenWE1.h>
#include <UWindowManager.h>
#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <cstdio>

namespace Gallery {

namespace {

/// Prints what it hears.
class EventPrinter : public UAgent {
public:
    void event(UEvent* event) override { std::printf("  event %04X\n", event->type); }
};

/// A screen of two lines.
class TwoLines : public UWidget {
public:
    TwoLines(const std::string& first, const std::string& second)
        : mFirst(first)
        , mSecond(second)
    {
        setCoordinates(0, 0, 161, 30);
    }

    void paint(UPainter& painter) override
    {
        painter.clearLines(0, 1);
        painter.text(0, 0, mFirst);
        painter.text(1, 0, mSecond);
    }

private:
    UString mFirst;
    UString mSecond;
};

std::vector<const Exhibit*>& exhibits()
{
    static std::vector<const Exhibit*> all;
    return all;
}

}

Stage::Stage(int displayLines)
    : mListener(std::make_unique<EventPrinter>())
    , mRoot(std::make_unique<UWidget>())
{
    // The application, which is current until the stage goes, owns the screen.
    auto* screen = new UScreenWE1(displayLines == 3 ? UScreenWE1::MaximumHeight : 31);
    new VantoUApplication(text("Gallery"), screen, {}, {}, {}, {});
    mRoot->setCoordinates(0, 0, 161, 30);
    UWindowManager::instance().setRoot(mRoot.get());
    UWindowManager::instance().setEnabled(true);
}

Stage::~Stage()
{
    mRoot.reset();
    mKept.clear();
    delete VantoUApplication::getCurrentApplication();
}

void Stage::addScreen(const std::string& first, const std::string& second)
{
    add<TwoLines>(first, second);
}

void Stage::setSoftwareType(int type)
{
    VantoUApplication::getCurrentApplication()->setSoftwareType(static_cast<VantoUApplication::SoftwareType>(type));
}

const UScreenWE1& Stage::screen() const
{
    return *UWindowManager::instance().screen();
}

void addRows(VantoListBoxMEG& list, const std::vector<std::string>& texts)
{
    for (const std::string& rowText : texts)
        list.addItem(new VantoListBoxItemMEG(text(rowText), list.count() + 1));
}

Exhibit::Exhibit(std::string name, std::string script, std::function<void(Stage& stage)> build, int displayLines)
    : mName(std::move(name))
    , mScript(std::move(script))
    , mBuild(std::move(build))
    , mDisplayLines(displayLines)
{
    exhibits().push_back(this);
}

std::vector<const Exhibit*> Exhibit::all()
{
    std::vector<const Exhibit*> result = exhibits();
    std::ranges::sort(result, {}, &Exhibit::name);
    return result;
}

}

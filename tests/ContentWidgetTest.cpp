#include "ContentWidget.h"
#include "ContentWidgetFactory.h"
#include "StackFixture.h"

#include <FPKBarMEG.h>
#include <SystemWindow.h>
#include <UApplication.h>
#include <UWindowManager.h>

using namespace DisplayAPI;

namespace {

class ContentWidgetTest : public StackFixture {
protected:
    static void setThreeLines()
    {
        HardwareVersion::Set hardware;
        hardware.displayLines = 3;
        HardwareVersion::setAll(hardware);
    }
};

TEST_F(ContentWidgetTest, TheRootAndTheScreenHaveTheSizeOfTheProcess)
{
    struct Row {
        const char* application;
        int displayLines;
        int contentHeight;
        int screenHeight;
    };
    for (const Row& row : {Row{"TestPhonelet", 2, 31, 31}, Row{"DesktopPhonelet", 2, 16, 16},
             Row{"CallViewPhonelet", 3, 31, 47}, Row{"DesktopPhonelet", 3, 16, 47}}) {
        HardwareVersion::Set hardware;
        hardware.displayLines = row.displayLines;
        HardwareVersion::setAll(hardware);
        makeDisplay("Zelmark SIP", row.application);
        ContentWidgetIfc* widget = display->getContentWidget();
        EXPECT_EQ(widget->width(), 162) << row.application;
        EXPECT_EQ(widget->height(), row.contentHeight) << row.application;
        EXPECT_EQ(UWindowManager::instance().screen()->height(), row.screenHeight) << row.application;
        EXPECT_EQ(UWindowManager::instance().root(), content());
        EXPECT_EQ(widget->getParent(), display.get());
    }
    display.reset();
    EXPECT_EQ(UWindowManager::instance().root(), nullptr);
}

TEST_F(ContentWidgetTest, ASystemWindowGoesWithItsContentAlsoWhenTheSoftwareTypeHasChanged)
{
    makeDisplay("Zelmark QVT");
    auto& content = dynamic_cast<ContentWidget&>(*display->getContentWidget());
    content.setSystemWindowText(1, "Text", "status");
    EXPECT_EQ(content.getSystemWindow()->systemWindowKey(1), "status");
    display->setSoftwareType("Zelmark SIP");
    display->setSystemWindowText(0, "Text");
    EXPECT_EQ(display->getContentWidget()->getSystemWindowText(0, ""), "");
    display->setAndUpdateMuteIcon(true);
    display.reset();
    makeDisplay("Zelmark SIP");
    display->setSoftwareType("Zelmark QVT"); // there is no window now
    display->setSystemWindowText(0, "Text");
    EXPECT_EQ(display->getContentWidget()->getSystemWindowText(0, ""), "");
}

TEST_F(ContentWidgetTest, TheCallViewOfAThreeLineTelephoneShowsItsFunctionKeys)
{
    setThreeLines();
    makeDisplay("Zelmark SIP", "CallViewPhonelet");
    FPKBarMEG* bar = display->getContentWidget()->getFPKBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->parentWidget(), content());
    bar->hide();
    display->callShowFPKBarMethodFromAdminPhonelet();
    EXPECT_TRUE(bar->isVisible());

    ContentWidget neverShown; // its bar has no parent and goes with it
    EXPECT_NE(neverShown.getFPKBar(), nullptr);
}

TEST_F(ContentWidgetTest, WithoutAFunctionKeyBarItsOperationsDoNothing)
{
    setThreeLines();
    makeDisplay("Zelmark SIP", "TestPhonelet");
    EXPECT_EQ(display->getContentWidget()->getFPKBar(), nullptr);
    display->setFPKLabel(1, "Line 1");
    display->setFPKStatus(1, 1);
    display->shiftFPKLabel(1);
    display->shiftFPKBar(true);
    display->setAlternateLabel(1, "Other");
    display->shiftChangeEventForCertainFPKey(true, 1);
    display->callShowFPKBarMethodFromAdminPhonelet();
    display->showFPKBar();
    EXPECT_EQ(content()->firstChild(), nullptr);
}

TEST_F(ContentWidgetTest, AnotherFactoryBringsAnotherContentAndBelongsToTheDisplay)
{
    struct Factory : ContentWidgetFactory {
        explicit Factory(bool& hasDied)
            : died(hasDied)
        {
        }
        ~Factory() override { died = true; }
        ContentWidgetIfc* createContentWidget() override
        {
            ContentWidgetIfc* made = ContentWidgetFactory::createContentWidget();
            made->getUWidget()->setCoordinates(0, 0, 9, 9);
            return made;
        }
        bool& died;
    };
    bool hasDied = false;
    makeDisplay("Zelmark SIP", "TestPhonelet", false, new Factory(hasDied));
    EXPECT_EQ(display->getContentWidget()->width(), 10);
    display.reset();
    EXPECT_TRUE(hasDied);
}

}

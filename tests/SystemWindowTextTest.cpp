#include "ContentWidget.h"
#include "ContentWidgetFactoryIfc.h"
#include "StackFixture.h"
#include "TestTranslator.h"

#include <DisplayAPI/DisplayablePrivate.h>

#include <UApplication.h>
#include <VantoListBoxMEG.h>

#include <climits>

using namespace DisplayAPI;

namespace {

const std::vector<Rect> wholeGlass{Rect(0, 0, 162, 31)};
const std::string statusBlock = "object:\nname:StatusMessage\nstring0:Maintenance\nend:\n";
const std::string volumeBlock = "object:\nname:VolumeIndicator\nicon:Speaker\nstring0:4\nstring1:0\nstring2:9\nend:\n";
const std::string keyBlock
    = "object:\nname:FPKBar\nsubitem:\nname:FPKLabel\nicon0:Off\nstring0:Line 1\nendsubitem:\nend:\n";

/// What the lines of the system window are written as.
std::string ownLines(const std::string& first, const std::string& second = "")
{
    return "object:\nname:PopupTextField\ncaption:" + first + "\n"
        + (second.empty() ? "" : "subitem:\nname:VantoListBoxItem\nstring0:" + second + "\nendsubitem:\n") + "end:\n";
}

std::string blanks(std::size_t count)
{
    return std::string(count, ' ');
}

class SystemWindowTextTest : public StackFixture {
protected:
    /// A visible display with one screen whose text is empty.
    void makeQuietDisplay(const std::string& softwareType = "Zelmark QVT")
    {
        makeDisplay(softwareType);
        display->show();
        screen = makeScreen("quiet");
        screen->screen().text.clear();
        display->setCurrent(screen.get());
    }

    std::string text() { return display->serialiseByRect(wholeGlass, ""); }

    std::unique_ptr<TestScreen> screen;
};

TEST_F(SystemWindowTextTest, TheDocumentHasAFixedOrderOnEverySoftwareType)
{
    struct Row {
        const char* softwareType;
        std::string head;
    };
    HardwareVersion::Set hardware;
    hardware.displayLines = 3;
    hardware.isRX70 = true;
    for (const Row& row :
        {Row{"Zelmark SIP", statusBlock}, Row{"Zelmark QVT", ownLines("Maintenance")}, Row{"other", statusBlock}}) {
        HardwareVersion::setAll(hardware);
        makeDisplay(row.softwareType, "CallViewPhonelet");
        display->show();
        auto bottom = makeScreen("bottom");
        auto popup = makeScreen("popup", Kind::Popup);
        display->setCurrent(bottom.get());
        display->setCurrent(popup.get());
        display->setSystemWindowText(0, "first line");
        display->setStatusMessage("Maintenance", 10);
        display->setPreviewVolume(2, 4, 0, 9, 0);
        display->setFPKLabel(1, "Line 1");
        const std::string screens = bottom->screen().text + popup->screen().text;
        EXPECT_EQ(text(), row.head + screens + volumeBlock + keyBlock) << row.softwareType;
        EXPECT_EQ(display->serialise(), screens + volumeBlock) << row.softwareType;

        HardwareVersion::setAll({});
        EXPECT_EQ(text(), row.head + screens + volumeBlock) << "only two telephones write their function keys";
        HardwareVersion::setAll(hardware);

        display->unSubscribe();
        const bool isQvt = row.softwareType == std::string("Zelmark QVT");
        EXPECT_EQ(text(), (isQvt ? ownLines("first line") : "") + volumeBlock + keyBlock) << "without a subscriber";

        display->hide();
        EXPECT_EQ(display->serialise(), screens) << "hiding takes the volume away";
    }
}

TEST_F(SystemWindowTextTest, TheFirstLineIsTheCaptionUnlessItHasExactly24Blanks)
{
    makeQuietDisplay();
    EXPECT_EQ(text(), "");
    display->setSystemWindowSize(2);
    display->setSystemWindowText(1, "second");
    EXPECT_EQ(text(), "") << "whatever the second line holds";
    for (const std::size_t count : {23u, 24u, 25u}) {
        display->setSystemWindowText(0, blanks(count));
        EXPECT_EQ(text(), count == 24 ? "" : ownLines(blanks(count), "second")) << count;
    }
    display->setSystemWindowText(0, "");
    display->setSystemWindowText(1, "");
    EXPECT_EQ(text(), ownLines(" ", " "));
    display->setSystemWindowText(1, blanks(24));
    EXPECT_EQ(text(), ownLines(" "));
}

TEST_F(SystemWindowTextTest, TheSecondLineNeedsASizeOfTwoAndTurnsItsFirstArrow)
{
    makeQuietDisplay();
    display->setSystemWindowSize(1);
    display->setSystemWindowText(0, "first \xEE\x80\x80");
    display->setSystemWindowText(1, "a \xEE\x80\x80 b \xEE\x80\x80");
    EXPECT_EQ(text(), ownLines("first \xEE\x80\x80"));
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), ownLines("first \xEE\x80\x80", "a \xE2\x86\x95 b \xEE\x80\x80"));
}

TEST_F(SystemWindowTextTest, ACollapsedWindowTakesItsSecondLineFromTheContextMenu)
{
    makeQuietDisplay();
    display->setSystemWindowText(0, "first");
    display->setSystemWindowText(1, "own \xEE\x80\x80");
    display->setSystemWindowSize(0);
    const std::string menu = "object:\nname:ContextMenu20Line2\n";
    struct Row {
        std::string content;
        std::string line;
    };
    for (const Row& row : {
             Row{"", "own \xEE\x80\x80"},
             Row{"object:\nname:ContextMenu\nstring0:Dial?\nend:\n", "own \xEE\x80\x80"},
             Row{menu + "end:\n", "own \xEE\x80\x80"},
             Row{menu + "string0:Dial?\nstring0:Other\nend:\n", "Dial?"},
             Row{"string0:below\n" + menu + "string0:Dial?\nend:\n", "below"},
             Row{menu + "string0:without an end", "without an end"},
         }) {
        screen->screen().text = row.content;
        EXPECT_EQ(text(), ownLines("first", row.line) + row.content);
    }
    screen->screen().text = menu + "string0:" + blanks(24) + "\nend:\n";
    EXPECT_EQ(text(), ownLines("first") + screen->screen().text);

    screen->screen().text = menu + "string0:Dial?\nend:\n";
    display->setSystemWindowSize(2);
    EXPECT_EQ(text(), ownLines("first", "own \xE2\x86\x95") + screen->screen().text) << "no longer collapsed";
}

TEST_F(SystemWindowTextTest, AHiddenDisplayLeavesTheSystemWindowAsItIs)
{
    makeQuietDisplay();
    display->setSystemWindowSize(2);
    display->setSystemWindowText(0, "before");
    display->hide();
    display->setSystemWindowText(0, "while hidden");
    display->setSystemWindowSize(1);
    EXPECT_EQ(text(), ownLines("before"));
    EXPECT_EQ(display->getContentWidget()->getSWCurrentNumLines(), 2);
}

TEST_F(SystemWindowTextTest, LinesOutsideTheWindowAreIgnored)
{
    makeQuietDisplay();
    subscriber.takeNotices();
    for (const int line : {-1, 6, 1000000})
        display->setSystemWindowText(line, "text");
    EXPECT_EQ(text(), "");
    EXPECT_EQ(subscriber.takeNotices(), 0);
    display->setSystemWindowSize(7); // stored, but nothing is shown anew
    EXPECT_EQ(display->getContentWidget()->getSWCurrentNumLines(), 7);
    EXPECT_EQ(subscriber.takeNotices(), 0);
    display->setSystemWindowSize(6);
    EXPECT_EQ(subscriber.takeNotices(), 1);
}

TEST_F(SystemWindowTextTest, ANegativeSizeForgetsEveryLineAndIsToldLikeAnyOther)
{
    makeQuietDisplay();
    for (const int lines : {2, -1, INT_MIN}) {
        display->setSystemWindowText(0, "line");
        display->setSystemWindowText(1, "arrow \xEE\x80\x80");
        subscriber.takeNotices();
        display->setSystemWindowSize(lines);
        EXPECT_EQ(subscriber.takeNotices(), 1) << lines;
        EXPECT_EQ(display->getContentWidget()->getSWCurrentNumLines(), lines);
    }
    EXPECT_EQ(text(), ownLines("line")) << "and has no second line";
}

TEST_F(SystemWindowTextTest, DarkeningASystemWindowTelephoneGivesTwoNotices)
{
    makeQuietDisplay();
    std::vector<Displayable*> seen;
    subscriber.onNotice = [&] { seen.push_back(display->getCurrent()); };
    display->setCurrent(nullptr);
    EXPECT_EQ(seen, (std::vector<Displayable*>{screen.get(), nullptr})) << "the first while the stack is full";
}

TEST_F(SystemWindowTextTest, AnIncomingCallTakesTheConnectedCallsBlockOff)
{
    const std::string connected = "object:\nname:Call\nicon0:CallStateActive\nstring0:Bob\nend:\n";
    const std::string connectedHD = "object:\nname:Call\nicon0:CallStateActiveHD\nend:\n";
    const std::string incoming = "object:\nname:PopupCall\nicon0:Incoming\nend:\n";
    makeDisplay();
    auto call = makeScreen("call");
    auto popup = makeScreen("popup", Kind::Popup);
    display->setCurrent(call.get());
    display->setCurrent(popup.get());
    struct Row {
        std::string below;
        std::string above;
        std::string text;
    };
    for (const Row& row : {
             Row{connected, incoming, "\n" + incoming},
             Row{connectedHD, incoming, "\n" + incoming},
             Row{connected, connectedHD, connected + connectedHD},
             Row{"object:\nname:Idle\nend:\n", incoming, "object:\nname:Idle\nend:\n" + incoming},
             Row{"icon0:CallStateActive", "icon0:Incoming", "icon0:CallStateActiveicon0:Incoming"},
         }) {
        call->screen().text = row.below;
        popup->screen().text = row.above;
        EXPECT_EQ(text(), row.text);
    }
}

// Keys and changed lines

/// A content that notes what passes between the display and the lines of the system window.
struct NotingContent : ContentWidget {
    explicit NotingContent(Lines& noted)
        : notes(noted)
    {
    }
    void setSystemWindowText(int line, std::string text, std::string key) override
    {
        notes.push_back("write " + std::to_string(line) + " '" + text + "' for '" + key + "'");
        ContentWidget::setSystemWindowText(line, text, key);
    }
    std::string getSystemWindowText(int line, std::string key) override
    {
        notes.push_back("read " + std::to_string(line) + " for '" + key + "'");
        return ContentWidget::getSystemWindowText(line, key);
    }
    Lines& notes;
};

struct NotingFactory : ContentWidgetFactoryIfc {
    explicit NotingFactory(Lines& noted)
        : notes(noted)
    {
    }
    ContentWidgetIfc* createContentWidget() override { return new NotingContent(notes); }
    Lines& notes;
};

TEST_F(SystemWindowTextTest, TheStatusKeyGoesAlongWithEachLineDuringTheCallOnly)
{
    struct Row {
        const char* softwareType;
        std::string status;
        std::string key;
    };
    for (const Row& row : {
             Row{"Zelmark QVT", "", ""},
             Row{"Zelmark QVT", "ab", "ab"},
             Row{"Zelmark QVT", "abcdefg", "abcde"},
             Row{"Zelmark QVT", "abcdefg\nicon0:X\nicon0:Y", "abcdefg"},
             Row{"Zelmark QVT", "\nicon0:X", ""},
             Row{"Zelmark SIP", "abcdefg", ""},
         }) {
        Lines notes;
        makeDisplay(row.softwareType, "TestPhonelet", false, new NotingFactory(notes));
        display->show();
        display->setSystemWindowText(0, "first");
        notes.clear();
        display->serialiseByRect(wholeGlass, row.status);
        Lines expected{"read 0 for '" + row.key + "'"};
        if (row.softwareType == std::string("Zelmark QVT"))
            expected.push_back("read 1 for '" + row.key + "'");
        EXPECT_EQ(notes, expected) << row.status;
        notes.clear();
        display->setSystemWindowText(0, "after");
        EXPECT_EQ(notes, Lines{"write 0 'after' for ''"});
        display.reset();
    }
}

TEST_F(SystemWindowTextTest, AChangeOfSizeWritesAChangedSecondLineOnceMore)
{
    Lines notes;
    makeDisplay("Zelmark QVT", "TestPhonelet", false, new NotingFactory(notes));
    display->show();
    auto idle = makeScreen("IdleDisplay");
    auto dialer = makeScreen("PopupDialer", Kind::Popup);
    auto other = makeScreen("PopupCall", Kind::Popup);
    display->setCurrent(idle.get());
    const Lines again{"read 1 for ''", "write 1 'second' for ''"};
    const auto notesOfSize = [&](int lines) {
        notes.clear();
        display->setSystemWindowSize(lines);
        return notes;
    };
    display->setSystemWindowText(1, "second");
    EXPECT_EQ(notesOfSize(2), again);
    EXPECT_EQ(notesOfSize(2), Lines{}) << "it has been written";
    display->setSystemWindowText(1, "second");
    EXPECT_EQ(notesOfSize(1), Lines{}) << "the line is not shown any more";

    display->setSystemWindowSize(2);
    display->clearSWfromDisplayable(); // the idle screen is the first
    display->setCurrent(dialer.get());
    display->clearSWfromDisplayable();
    EXPECT_EQ(notesOfSize(2), Lines{}) << "the dialer keeps the lines of the idle screen";
    display->setCurrent(other.get());
    display->clearSWfromDisplayable();
    EXPECT_EQ(notesOfSize(2), again);
    display->clearSWfromDisplayable();
    EXPECT_EQ(notesOfSize(2), Lines{}) << "the same screen as before";
    display.reset();
}

// Status message, volume, clipboard, locale

TEST_F(SystemWindowTextTest, AStatusMessageStaysUntilItsTextChanges)
{
    makeDisplay();
    display->show();
    screen = makeScreen("screen");
    display->setCurrent(screen.get());
    display->setStatusMessage("one", 10);
    UWidget* const first = content()->lastChild();
    EXPECT_NE(first, &screen->widget());
    EXPECT_TRUE(screen->widget().isStatusMessageAvailable());
    display->setStatusMessageAvailable(false);
    display->setStatusMessage("one", 99);
    EXPECT_EQ(content()->lastChild(), first);
    EXPECT_TRUE(screen->widget().isStatusMessageAvailable());
    display->setStatusMessage("two", 10);
    EXPECT_NE(text().find("string0:two\n"), std::string::npos);
    display->setStatusMessage("", 0);
    EXPECT_EQ(content()->lastChild(), &screen->widget());
    EXPECT_FALSE(screen->widget().isStatusMessageAvailable());
    EXPECT_EQ(text(), screen->screen().text);
    display->setStatusMessage("left behind", 10); // goes with the display
}

TEST_F(SystemWindowTextTest, TheVolumeShowsTheDevice)
{
    struct Row {
        unsigned int device;
        unsigned int variant;
        const char* icon;
    };
    makeDisplay();
    for (const Row& row : {Row{0, 0, "Handset"}, Row{1, 0, "Headset"}, Row{2, 1, "Speaker"}, Row{3, 0, "Ringer"},
             Row{3, 1, "RingerOff"}, Row{3, 2, "Ringer"}, Row{4, 1, "Volume"}, Row{4000000000u, 0, "Volume"}}) {
        display->setPreviewVolume(row.device, 4, 0, 9, row.variant);
        const std::string shown = display->serialise();
        EXPECT_NE(shown.find(std::string("icon:") + row.icon + "\n"), std::string::npos) << shown;
    }
    EXPECT_TRUE(VantoUApplication::getCurrentApplication()->isFullScreen());
    EXPECT_EQ(content()->firstChild(), nullptr) << "a hidden display keeps it outside, and deletes it at its end";
    display->show();
    display->setPreviewVolume(0, 4, 0, 9, 0);
    EXPECT_NE(content()->firstChild(), nullptr);
}

TEST_F(SystemWindowTextTest, WhatTheTreeHasDeletedComesAnew)
{
    makeDisplay();
    display->show();
    for (const char* message : {"one", "one", ""}) {
        display->setStatusMessage(message, 10);
        display->setPreviewVolume(2, 4, 0, 9, 0);
        EXPECT_EQ(text().find("string0:one\n") != std::string::npos, *message != 0);
        EXPECT_EQ(display->serialise(), volumeBlock);
        while (UWidget* child = content()->firstChild())
            delete child;
    }
    EXPECT_EQ(text(), "");
}

TEST_F(SystemWindowTextTest, ALocaleChangeReadsTheListTextsAgain)
{
    TestTranslator translator;
    translator.prefix = "1:";
    makeDisplay();
    auto* application = VantoUApplication::getCurrentApplication();
    display->setTranslator(&translator);
    EXPECT_EQ(DisplayablePrivate::commonTranslator, &translator);
    EXPECT_EQ(VantoListBoxMEG::deleteText().toUTF8(), "1:Speller.menu.Delete?");
    EXPECT_EQ(VantoListBoxMEG().backText().toUTF8(), "1:Back?");
    translator.prefix = "2:";
    display->localeChanged("de");
    EXPECT_EQ(VantoListBoxMEG().backText().toUTF8(), "2:Back?");
    EXPECT_EQ(application->locale(), "de");

    application->setHardwareVariant(static_cast<VantoUApplication::HardwareVariant>(1));
    translator.prefix = "3:";
    display->localeChanged("fr");
    EXPECT_EQ(VantoListBoxMEG().backText().toUTF8(), "2:Back?");
    EXPECT_EQ(application->locale(), "fr");
    display->setTranslator(nullptr);
    display->dateFormatChanged("d");
    display->timeFormatChanged("t");
    EXPECT_EQ(display->dateFormat() + display->timeFormat(), "dt");
    EXPECT_EQ(application->dateFormat() + application->timeFormat(), "dt");
}

TEST_F(SystemWindowTextTest, WithoutAnApplicationEverythingStillAnswers)
{
    makeDisplay("Zelmark QVT");
    VantoUApplication::endCurrent();
    display->show();
    display->setSystemWindowText(0, "text");
    display->setSystemWindowSize(2);
    display->setSystemWindowTop(1);
    display->setPreviewVolume(0, 1, 0, 2, 0);
    display->localeChanged("de");
    display->dateFormatChanged("d");
    display->setSoftwareType("Zelmark SIP");
    display->exec();
    EXPECT_TRUE(display->execFinished());
    display->copy(std::string("a\0b", 3));
    EXPECT_EQ(display->paste(), std::string("a\0b", 3));
    display->shutdown();
    display->hide();
    EXPECT_EQ(text(), "");
}

}

#include <DisplayAPI/Display.h>
#include <DisplayAPI/DisplayPrivateIfc.h>
#include <DisplayAPI/DisplayRequestEvent.h>

#include "TestScreen.h"

#include <Semaphore.h>
#include <UApplication.h>
#include <ULoop.h>

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <functional>
#include <future>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace DisplayAPI;

namespace {

/// A private that writes down which operation was called with what.
class RecordingPrivate : public DisplayPrivateIfc {
public:
    void setCurrent(Displayable* screen) override { note("setCurrent", (current = screen) ? "screen" : "null"); }
    Displayable* getCurrent() override { return current; }
    void exec() override { note("exec"); }
    void shutdown() override { note("shutdown"); }
    void show() override { note("show"); }
    void hide() override { note("hide"); }
    std::string serialise() override { return note("serialise"), "all"; }
    std::string serialiseByRect(const std::vector<Rect>& asked, std::string status) override
    {
        note("serialiseByRect", asked.size(), status);
        return "seen";
    }
    void subscribe(DisplayEventIfc*) override { note("subscribe"); }
    void unSubscribe() override { note("unSubscribe"); }
    void displayChanged() override { note("displayChanged"); }
    void widgetDismissed(DisplayablePrivateIfc*) override { note("widgetDismissed"); }
    void localeChanged(std::string text) override { note("localeChanged", text); }
    void skinChanged(std::string text) override { note("skinChanged", text); }
    void dateFormatChanged(std::string text) override { note("dateFormatChanged", text); }
    void timeFormatChanged(std::string text) override { note("timeFormatChanged", text); }
    Rect* getDisplayArea() override { return note("getDisplayArea"), nullptr; }
    void setMaximised(bool on) override { note("setMaximised", on); }
    void createServerDisplay(Displayable* screen) override { note("createServerDisplay", screen ? "screen" : "null"); }
    void setTranslator(TranslatorIfc*) override { note("setTranslator"); }
    std::vector<Rect>* getDisplayedRects() override { return note("getDisplayedRects"), &rects; }
    void setSystemWindowSize(int lines) override { note("setSystemWindowSize", lines); }
    void setSystemWindowText(int line, std::string text) override { note("setSystemWindowText", line, text); }
    void setSystemWindowTop(int top) override { note("setSystemWindowTop", top); }
    void setAndUpdateHeadSetIcon(bool on) override { note("setAndUpdateHeadSetIcon", on); }
    void setAndUpdateSpeakerIcon(bool on) override { note("setAndUpdateSpeakerIcon", on); }
    void setAndUpdateMuteIcon(bool on) override { note("setAndUpdateMuteIcon", on); }
    void showTimeInSystemWindow(bool on) override { note("showTimeInSystemWindow", on); }
    void setTimeInSystemWindow(int h, int m, int s) override { note("setTimeInSystemWindow", h, m, s); }
    void setTimer(std::string time) override { note("setTimer", time); }
    void stopTimer() override { note("stopTimer"); }
    void setSoftwareType(const std::string& type) override { note("setSoftwareType", type); }
    void copy(const std::string& text) override { note("copy", clipboard = text); }
    std::string paste() override { return note("paste"), clipboard; }
    void setStatusMessage(const std::string& text, unsigned int time) override { note("setStatusMessage", text, time); }
    void startTimer(std::string time) override { note("startTimer", time); }
    void showTimer() override { note("showTimer"); }
    void hideTimer(bool on) override { note("hideTimer", on); }
    void pauseTimer() override { note("pauseTimer"); }
    void setPreviewVolume(unsigned int a, unsigned int b, unsigned int c, unsigned int d, unsigned int e) override
    {
        note("setPreviewVolume", a, b, c, d, e);
    }
    int getEditingStatus() override { return note("getEditingStatus"), 0; }
    void setFPKLabel(int key, std::string label) override { note("setFPKLabel", key, label); }
    void setFPKStatus(int key, int status) override { note("setFPKStatus", key, status); }
    void shiftFPKLabel(int key) override { note("shiftFPKLabel", key); }
    void shiftFPKBar(bool on) override { note("shiftFPKBar", on); }
    void setAlternateLabel(int key, const std::string& label) override { note("setAlternateLabel", key, label); }
    void setStatusMessageAvailable(bool on) override { note("setStatusMessageAvailable", on); }
    void showNotification(TranslationInfo*, Icons::IconType, bool, int, bool) override { note("showNotification"); }
    void showNotification(std::string, Icons::IconType, bool, int, bool) override { note("showNotification"); }
    void shiftChangeEventForCertainFPKey(bool on, int key) override { note("shiftChangeEvent", on, key); }
    void callShowFPKBarMethodFromAdminPhonelet() override { note("callShowFPKBar"); }
    void setRingerVolumeBarLimit(int limit) override { note("setRingerVolumeBarLimit", limit); }
    std::string dateFormat() override { return {}; }
    std::string timeFormat() override { return {}; }

    std::string takeNotes() { return std::exchange(mNotes, {}); }

    Displayable* current = nullptr;
    std::vector<Rect> rects{Rect(0, 0, 162, 31)};
    std::string clipboard;

private:
    template <typename... Arguments>
    void note(const char* operation, const Arguments&... arguments)
    {
        std::ostringstream line;
        line << operation;
        ((line << ' ' << arguments), ...);
        mNotes += (mNotes.empty() ? "" : "; ") + line.str();
    }

    std::string mNotes;
};

/// A display over such a private, which keeps the number of the last request.
class RecordedDisplay : public Display {
public:
    RecordedDisplay()
        : Display("test", "en", "date", "time", false, nullptr)
    {
        init(recording);
    }
    void processDisplayRequest(DisplayRequestEvent* event) override
    {
        lastRequest = event->getType();
        Display::processDisplayRequest(event);
    }

    RecordingPrivate* const recording = new RecordingPrivate;
    int lastRequest = -1;
};

class DisplayTest : public testing::Test {
protected:
    using Call = std::function<void(Display&)>;

    /// Runs a call on another thread while this one is the loop. Returns what it did to the private.
    std::string fromElsewhere(const Call& call)
    {
        auto caller = std::async(std::launch::async, [&] { call(display); });
        while (caller.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
            ULoop::instance().processEvents();
        return display.recording->takeNotes();
    }
    std::string directly(const Call& call)
    {
        call(display);
        return display.recording->takeNotes();
    }

    /// Posts an event made by hand. Returns what it did; a request that lets its caller wait is a failure.
    std::string posted(DisplayRequestEvent* event)
    {
        Semaphore answered(Semaphore::NOT_AVAILABLE);
        event->setSemaphore(&answered);
        UApplication::instance()->postEvent(event);
        ULoop::instance().processEvents();
        EXPECT_TRUE(answered.take(0));
        return display.recording->takeNotes();
    }
    DisplayRequestEvent* event(int number) { return new DisplayRequestEvent(&display, request(number)); }
    static DisplayRequestEvent::DisplayRequests request(int number)
    {
        return static_cast<DisplayRequestEvent::DisplayRequests>(number);
    }

    RecordedDisplay display;
};

}

TEST_F(DisplayTest, EachOperationHasItsNumberAndIsTheSameOnBothRoads)
{
    std::vector<std::string> log;
    TestScreen screen("screen", log);
    const std::vector<Rect> rects{Rect(0, 0, 5, 5), Rect(1, 1, 2, 2)};
    const std::string text = "a text";
    const struct {
        int number;
        std::string effect;
        Call call;
    } rows[] = {
        {0, "hide", [](Display& d) { d.hide(); }},
        {1, "show", [](Display& d) { d.show(); }},
        {2, "setCurrent screen", [&](Display& d) { d.setCurrent(&screen); }},
        {4, "shutdown", [](Display& d) { d.shutdown(); }},
        {5, "localeChanged a text", [&](Display& d) { d.localeChanged(text); }},
        {6, "dateFormatChanged a text", [&](Display& d) { d.dateFormatChanged(text); }},
        {7, "timeFormatChanged a text", [&](Display& d) { d.timeFormatChanged(text); }},
        {9, "createServerDisplay screen", [&](Display& d) { d.createServerDisplay(&screen); }},
        {10, "setMaximised 1", [](Display& d) { d.setMaximised(true); }},
        {11, "getDisplayedRects", [](Display& d) { d.getDisplayedRects(); }},
        {14, "setSystemWindowSize 2", [](Display& d) { d.setSystemWindowSize(2); }},
        {15, "setSystemWindowText 1 a text", [&](Display& d) { d.setSystemWindowText(1, text); }},
        {16, "setSystemWindowTop -3", [](Display& d) { d.setSystemWindowTop(-3); }},
        {17, "showTimeInSystemWindow 1", [](Display& d) { d.showTimeInSystemWindow(true); }},
        {18, "setTimeInSystemWindow 1 20 3", [](Display& d) { d.setTimeInSystemWindow(1, 20, 3); }},
        {19, "setTimer a text", [&](Display& d) { d.setTimer(text); }},
        {20, "stopTimer", [](Display& d) { d.stopTimer(); }},
        {21, "setSoftwareType a text", [&](Display& d) { d.setSoftwareType(text); }},
        {22, "setStatusMessage a text 4294967295", [&](Display& d) { d.setStatusMessage(text, ~0U); }},
        {23, "copy a text", [&](Display& d) { d.copy(text); }},
        {24, "paste", [](Display& d) { d.paste(); }},
        {25, "startTimer a text", [&](Display& d) { d.startTimer(text); }},
        {26, "showTimer", [](Display& d) { d.showTimer(); }},
        {27, "hideTimer 1", [](Display& d) { d.hideTimer(true); }},
        {28, "pauseTimer", [](Display& d) { d.pauseTimer(); }},
        {29, "setPreviewVolume 3 2 1 9 4294967295", [](Display& d) { d.setPreviewVolume(3, 2, 1, 9, ~0U); }},
        {30, "setFPKLabel -1 a text", [&](Display& d) { d.setFPKLabel(-1, text); }},
        {31, "setFPKStatus 4 -2", [](Display& d) { d.setFPKStatus(4, -2); }},
        {32, "shiftFPKLabel 5", [](Display& d) { d.shiftFPKLabel(5); }},
        {33, "shiftFPKBar 1", [](Display& d) { d.shiftFPKBar(true); }},
        {34, "setAlternateLabel 6 a text", [&](Display& d) { d.setAlternateLabel(6, text); }},
        {35, "setStatusMessageAvailable 1", [](Display& d) { d.setStatusMessageAvailable(true); }},
        {36, "shiftChangeEvent 1 7", [](Display& d) { d.shiftChangeEventForCertainFPKey(true, 7); }},
        {37, "callShowFPKBar", [](Display& d) { d.callShowFPKBarMethodFromAdminPhonelet(); }},
        {38, "setRingerVolumeBarLimit 8", [](Display& d) { d.setRingerVolumeBarLimit(8); }},
        {12, "serialiseByRect 2 a text", [&](Display& d) { EXPECT_EQ(d.serialiseByRect(rects, text), "seen"); }},
        {8, "serialise", [](Display& d) { EXPECT_EQ(d.serialise(), "all"); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.effect);
        display.lastRequest = -1;
        EXPECT_EQ(directly(row.call), row.effect);
        EXPECT_EQ(display.lastRequest, -1) << "nothing is queued on the GUI thread";
        EXPECT_EQ(fromElsewhere(row.call), row.effect);
        EXPECT_EQ(display.lastRequest, row.number);
    }
}

TEST_F(DisplayTest, ANumberWithoutAnOperationLetsItsCallerGo)
{
    for (const int number : {13, 39, 1000, -1, INT_MAX, INT_MIN}) {
        SCOPED_TRACE(number);
        EXPECT_EQ(posted(event(number)), "");
    }
    DisplayRequestEvent nobodys(nullptr, request(1));
    nobodys.process();
    nobodys.requestCompleted();
    EXPECT_EQ(display.recording->takeNotes(), "");
}

TEST_F(DisplayTest, TheRequestsOfADisplayThatHasDiedRunNothing)
{
    auto older = std::make_unique<Display>("older", "en", "", "", false, nullptr);
    const Display newer("newer", "en", "", "", false, nullptr);
    Semaphore answered(Semaphore::NOT_AVAILABLE);
    auto* show = new DisplayRequestEvent(older.get(), request(1));
    show->setSemaphore(&answered);
    UApplication::instance()->postEvent(show);
    older.reset();
    ULoop::instance().processEvents();
    EXPECT_FALSE(answered.take(-1));
    display.Display::processDisplayRequest(nullptr);
}

TEST_F(DisplayTest, AnExceptionEndsTheLoopAndLetsEveryCallerGo)
{
    struct Throwing : DisplayRequestEvent {
        using DisplayRequestEvent::DisplayRequestEvent;
        void process() override { throw std::runtime_error("from a subscriber"); }
    };
    for (int round = 0; round < 2; ++round) {
        ULoop::instance().open();
        Semaphore inHand(Semaphore::NOT_AVAILABLE);
        Semaphore behind(Semaphore::NOT_AVAILABLE);
        auto* first = new Throwing(&display, request(1));
        first->setSemaphore(&inHand);
        UApplication::instance()->postEvent(first);
        auto* second = event(1);
        second->setSemaphore(&behind);
        UApplication::instance()->postEvent(second);
        EXPECT_THROW(ULoop::instance().exec(), std::runtime_error);
        EXPECT_FALSE(inHand.take(-1));
        EXPECT_FALSE(behind.take(-1));
    }
}

TEST_F(DisplayTest, ResultsAreTheSameOnBothRoads)
{
    std::vector<std::string> log;
    TestScreen screen("screen", log);
    for (Displayable* current : {static_cast<Displayable*>(nullptr), static_cast<Displayable*>(&screen)}) {
        display.recording->current = current;
        const Call read = [current](Display& d) {
            EXPECT_EQ(d.getCurrent(), current);
            EXPECT_EQ(d.getCurrentWidgets().size(), current ? 1U : 0U);
        };
        directly(read);
        fromElsewhere(read);
        EXPECT_EQ(display.lastRequest, 3);
    }
    std::string odd(1 << 20, 'x');
    odd[7] = '\0';
    odd[8] = '\xFF';
    fromElsewhere([&](Display& d) {
        d.copy(odd);
        EXPECT_EQ(d.paste(), odd);
    });
    EXPECT_EQ(display.paste(), odd);
    display.recording->takeNotes();
    for (const int wanted : {3, 24})
        EXPECT_EQ(posted(event(wanted)), "") << "a result that nobody wants";
}

TEST_F(DisplayTest, TimesTravelAsEightCharacters)
{
    const struct {
        int hours, minutes, seconds;
        const char* arrives;
    } times[] = {
        {0, 0, 0, "0 0 0"},
        {23, 59, 59, "23 59 59"},
        {100, 2, 3, "10 0 0"},
        {-1, 2, 3, "-1 2 3"},
    };
    for (const auto& time : times) {
        SCOPED_TRACE(time.arrives);
        EXPECT_EQ(fromElsewhere([&](Display& d) { d.setTimeInSystemWindow(time.hours, time.minutes, time.seconds); }),
            std::string("setTimeInSystemWindow ") + time.arrives);
    }
    for (const auto& [text, arrives] : std::vector<std::pair<std::string, std::string>>{
             {"", "0 0 0"}, {"12", "12 0 0"}, {"12:3", "12 3 0"}, {"ab:cd:ef", "0 0 0"}, {"12:34:5678", "12 34 56"}})
        EXPECT_EQ(posted(new DisplayRequestEvent(&display, request(18), text)), "setTimeInSystemWindow " + arrives);

    const Call setBoth = [](Display& d) {
        d.setTimer("12:34:56.789");
        d.startTimer("1:23:45:67");
    };
    EXPECT_EQ(fromElsewhere(setBoth), "setTimer 12:34:56; startTimer 1:23:45:");
    EXPECT_EQ(directly(setBoth), "setTimer 12:34:56.789; startTimer 1:23:45:67");
}

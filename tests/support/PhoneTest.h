#pragma once

#include "CellFont.h"
#include "Subscriber.h"

#include <DisplayAPI/Display.h>

#include <HardwareVersion.h>
#include <Types.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

/// Which telephone a test works on.
struct PhoneSetup {
    std::string applicationName = "TestPhonelet";
    std::string softwareType = "Zelmark SIP";
    bool server = false;
    HardwareVersion::Set hardware = {};
};

/// The whole glass as one rectangle.
DisplayAPI::Rect wholeGlass();

/// Lines with a line feed behind each, so that blanks at the ends stay visible in a test.
std::string lines(std::initializer_list<const char*> texts);

/// The value of the first line with this key in a screen text; "(no such field)" without one.
std::string fieldOf(const std::string& screenText, const std::string& key);

/// A telephone whose GUI thread is the test itself, with a clock that stands still.
class PhoneTest : public testing::Test {
protected:
    explicit PhoneTest(const PhoneSetup& setup = {});
    ~PhoneTest() override;

    /// Takes screens and translator away and waits for the delivery in hand: the fixture's own go next.
    void TearDown() override;

    /// Runs what is queued, timers that are due, and the painting.
    void pump();

    /// Presses and releases a key, and pumps.
    void press(int key);
    void pressAndHold(int key);
    void type(const std::string& dialKeys);
    void advance(std::uint64_t milliseconds);

    /// Makes a screen current.
    void show(DisplayAPI::Displayable& screen);

    /// What the subscriber reads of the whole glass, after a check of its grammar.
    std::string screenText();
    std::string screenField(const std::string& key) { return fieldOf(screenText(), key); }

    /// A line of the painted glass, read back as text of 27 characters.
    std::string glassLine(int line);

    /// Whether the icon with this number stands there.
    bool hasIcon(int line, int column, std::uint16_t number);

    /// Runs a function on another thread, while this one is the loop.
    void elsewhere(const std::function<void()>& function);

    /// Ends the loop; then whoever is not on this thread is refused.
    void endLoop();

    /// Ends the display, as an application does that is about to go.
    void endDisplay() { display.reset(); }

    /// Makes the display, or the next one, visible and with its subscriber.
    void makeDisplay();

    CellFont font;
    Subscriber changes;
    std::unique_ptr<DisplayAPI::Display> display;

private:
    PhoneSetup mSetup;
};

#pragma once

#include "CellFont.h"
#include "Types.h"
#include "UAgent.h"
#include "UEvent.h"
#include "ULoop.h"
#include "UPainter.h"
#include "UScreenWE1.h"
#include "UString.h"
#include "UWidget.h"
#include "UWindowManager.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Notes every event that it hears, and may do something about it.
class Recorder : public UAgent {
public:
    struct Entry {
        int type;
        UAgent* source;
        UAgent* payload;

        bool operator==(const Entry&) const = default;
    };

    void event(UEvent* event) override
    {
        entries.push_back({event->type, event->source(), event->payload()});
        if (onEvent)
            onEvent(*event);
    }

    /// The types since the last call.
    std::vector<int> takeTypes()
    {
        std::vector<int> types;
        for (const Entry& entry : entries)
            types.push_back(entry.type);
        entries.clear();
        return types;
    }

    std::vector<Entry> entries;
    std::function<void(UEvent&)> onEvent;
};

/// A screen with two lines of text, which counts the keys that it gets.
class PlainScreen : public UWidget {
public:
    void paint(UPainter& painter) override
    {
        painter.clearLines(0, 1);
        painter.text(0, 0, UString(std::string("upper")));
        painter.text(1, 0, UString(std::string("lower")));
    }
    UWidget* focusTarget() override { return this; }
    bool keyEvent(UKeyEvent*) override
    {
        ++keys;
        return true;
    }

    int keys = 0;
};

/// The glass with a font that can be read back, a root with a screen on it, and a clock that stands still.
class GlassTest : public testing::Test {
protected:
    using Types = std::vector<int>;

    GlassTest()
    {
        ULoop::instance().setManualClock(true);
        manager.setScreen(&glass);
        manager.setFont(&font);
        manager.setRoot(&root);
        manager.setEnabled(true);
        root.setCoordinates(0, 0, 161, 30);
        root.addWidget(below);
    }

    ~GlassTest() override
    {
        manager.setRoot(nullptr);
        manager.setFont(nullptr);
        manager.setScreen(nullptr);
    }

    static UString text(const std::string& text) { return UString(text); }
    static void advance(std::uint64_t milliseconds) { ULoop::instance().advance(milliseconds); }

    /// Presses and releases a key. Returns whether the press was used.
    bool press(int key)
    {
        UKeyEvent down(key, UGlobal::KeyPressed);
        const bool isUsed = manager.dispatchKey(down);
        UKeyEvent up(key, UGlobal::KeyReleased);
        manager.dispatchKey(up);
        return isUsed;
    }

    /// What stands on a line of the glass; an icon reads as two boxes.
    std::string line(int number)
    {
        manager.paintIfNeeded();
        return lineText(glass, number);
    }

    static std::string padded(std::string text, std::size_t cells)
    {
        text.resize(text.size() + UPainter::Columns - cells, ' ');
        return text;
    }

    /// Text without icons, filled up to the width of the glass.
    static std::string whole(const std::string& text) { return padded(text, UString(text).length()); }

    bool hasIcon(int line, int column, std::uint16_t number)
    {
        manager.paintIfNeeded();
        return screenHasIcon(glass, line, column, number);
    }

    UWindowManager& manager = UWindowManager::instance();
    UScreenWE1 glass{47};
    CellFont font;
    UWidget root;
    PlainScreen* below = new PlainScreen;
};

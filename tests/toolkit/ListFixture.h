#pragma once

#include "CellFont.h"
#include "EventTypes.h"
#include "Types.h"
#include "UEvent.h"
#include "ULoop.h"
#include "UScreenWE1.h"
#include "UWidget.h"
#include "UWindowManager.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoListBoxWithTitleMEG.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// Writes down what it is told, and can do something while it is told.
class RecordingAgent : public UAgent {
public:
    void event(UEvent* event) override
    {
        types.push_back(event->type);
        sources.push_back(event->source());
        payloads.push_back(event->payload());
        if (onEvent)
            onEvent();
    }
    bool keyEvent(UKeyEvent* key) override
    {
        keys.push_back(key->key());
        if (onKey)
            onKey();
        return usesKeys;
    }

    std::vector<int> types;
    std::vector<UAgent*> sources;
    std::vector<UAgent*> payloads;
    std::vector<int> keys;
    std::function<void()> onEvent;
    std::function<void()> onKey;
    bool usesKeys = false;
};

/// A telephone with a content root, on which a test puts a list.
class ListFixture : public testing::Test {
protected:
    ListFixture()
    {
        ULoop::instance().setManualClock(true);
        UWindowManager& manager = UWindowManager::instance();
        manager.setScreen(&screen);
        manager.setFont(&font);
        manager.setRoot(&root);
        manager.setEnabled(true);
    }
    ~ListFixture() override
    {
        UWindowManager& manager = UWindowManager::instance();
        manager.setRoot(nullptr);
        manager.setFont(nullptr);
        manager.setScreen(nullptr);
    }

    static UString text(const std::string& utf8) { return UString(utf8); }

    static bool press(int key)
    {
        UKeyEvent event(key, UGlobal::KeyPressed);
        return UWindowManager::instance().dispatchKey(event);
    }

    /// A line of the glass, all 27 cells.
    std::string line(int number)
    {
        UWindowManager::instance().paintIfNeeded();
        return lineText(screen, number);
    }

    bool isInverse(int number)
    {
        UWindowManager::instance().paintIfNeeded();
        return lineIsInverse(screen, number);
    }

    /// Fills a list with plain rows and gives them back.
    static std::vector<VantoListBoxItemMEG*> addRows(VantoListBoxMEG& list, const std::vector<std::string>& texts)
    {
        std::vector<VantoListBoxItemMEG*> rows;
        for (const std::string& rowText : texts) {
            rows.push_back(new VantoListBoxItemMEG(text(rowText), static_cast<long>(rows.size()) + 1, false));
            list.addItem(rows.back());
        }
        return rows;
    }

    static std::vector<std::string> texts(const VantoListBoxMEG& list)
    {
        std::vector<std::string> result;
        for (int index = 0; index < list.count(); ++index)
            result.push_back(list.item(index)->getText().toUTF8());
        return result;
    }

    CellFont font;
    UScreenWE1 screen;
    UWidget root;
};

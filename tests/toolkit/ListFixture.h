#pragma once

#include "EventTypes.h"
#include "GlassTest.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoListBoxWithTitleMEG.h"

#include <functional>
#include <string>
#include <vector>

/// A recorder that is asked for keys, too.
class KeyRecorder : public Recorder {
public:
    bool keyEvent(UKeyEvent* key) override
    {
        keys.push_back(key->key());
        if (onKey)
            onKey();
        return usesKeys;
    }

    std::vector<int> keys; // with the releases
    std::function<void()> onKey;
    bool usesKeys = false;
};

/// A list on the glass, with a recorder for listener.
class ListFixture : public GlassTest {
protected:
    ListFixture()
    {
        widget->setParent(&root);
        list.setListener(&agent);
    }

    bool isInverse(int number)
    {
        manager.paintIfNeeded();
        return lineIsInverse(glass, number);
    }

    UScreenWE1 picture()
    {
        manager.paintIfNeeded();
        return glass;
    }

    /// Fills a list with plain rows, whose handles count from 1.
    static std::vector<VantoListBoxItemMEG*> addRows(VantoListBoxMEG& box, const std::vector<std::string>& rowTexts)
    {
        std::vector<VantoListBoxItemMEG*> rows;
        for (const std::string& rowText : rowTexts) {
            rows.push_back(new VantoListBoxItemMEG(text(rowText), static_cast<long>(rows.size()) + 1, false));
            box.addItem(rows.back());
        }
        return rows;
    }

    KeyRecorder agent;
    VantoListBoxWithTitleMEG* widget = new VantoListBoxWithTitleMEG;
    VantoListBoxMEG& list = *widget->list();
};

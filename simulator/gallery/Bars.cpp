#include "Gallery.h"

#include <FPKBarMEG.h>
#include <StatusVolumeMEG.h>
#include <SystemWindow.h>
#include <VantoListBoxMEG.h>
#include <VantoListBoxWithTitleMEG.h>

namespace {

using namespace Gallery;

const Exhibit statusMessage("status-message", R"(
    shot over-list
)",
    [](Stage& stage) {
        auto* list = stage.add<VantoListBoxWithTitleMEG>();
        addRows(*list->list(), {"Bob", "Carol"});
        stage.add<StatusMessageMEG>("Maintenance tonight", 0U, 0U);
    });

const Exhibit volume("volume", R"(
    shot shown
    advance 3s
    shot gone
)",
    [](Stage& stage) {
        stage.addScreen("4711           Example Ltd.", "3 missed calls");
        stage.add<VolumeIndicatorMEG>(VolumeIndicatorMEG::Speaker, 4U, 0U, 10U);
    });

const Exhibit systemWindow("system-window", R"(
    shot two
    advance 61s
    shot later
)",
    [](Stage& stage) {
        stage.setSoftwareType(1);
        stage.addScreen("below", "below");
        const std::shared_ptr<SystemWindow> window(new SystemWindow, [](SystemWindow* shown) { shown->release(); });
        window->setSystemWindowSize(2);
        window->setSystemWindowText(0, "4711", "");
        window->setSystemWindowText(1, "Bob 4712", "");
        window->setTime(10, 42, 0);
        window->showTime(true);
        window->setAndUpdateHeadSetIcon(true);
        stage.keep(window);
    });

const Exhibit functionKeys(
    "function-keys", R"(
    shot labels
)",
    [](Stage& stage) {
        stage.addScreen("4711           Example Ltd.", "3 missed calls");
        auto* bar = stage.add<FPKBarMEG>();
        int key = 0;
        for (const char* label : {"Line1", "Line2", "DND", "Fwd"})
            bar->setFPKLabel(key++, label);
        bar->setFPKStatus(0, 1);
    },
    3);

}

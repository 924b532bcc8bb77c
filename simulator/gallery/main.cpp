#include "Gallery.h"

#include "BlockDrawing.h"
#include "FixedFont.h"
#include "Picture.h"
#include "Script.h"
#include "UsageError.h"

#include <HardwareVersion.h>
#include <Types.h>
#include <UEvent.h>
#include <ULoop.h>
#include <UWindowManager.h>

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <sstream>

// Shows the widgets of the toolkit, each by its script, without the library above them.

namespace {

using Gallery::Exhibit;
using Gallery::Stage;
using Simulator::Step;

struct Options {
    std::string folder = "gallery";
    std::string font;
    int scale = 4;
    std::vector<std::string> names;
};

void key(int code, int state)
{
    UKeyEvent event(code, state);
    UWindowManager::instance().dispatchKey(event);
    ULoop::instance().processEvents();
}

void press(const Step& step)
{
    for (int code : step.keys) {
        for (int count = 0; count < step.count; ++count) {
            key(code, UGlobal::KeyPressed);
            key(code, UGlobal::KeyReleased);
        }
    }
}

void show(const Stage& stage)
{
    for (const std::string& line : Simulator::drawFramedBlocks(stage.screen()))
        std::cout << line << "\n";
}

void play(const Exhibit& exhibit, const Step& step, const Stage& stage, const Options& options)
{
    switch (step.kind) {
    case Step::Kind::Press: press(step); break;
    case Step::Kind::Hold:
        key(step.keys.front(), UGlobal::KeyPressed);
        key(step.keys.front(), UGlobal::KeyHeld);
        break;
    case Step::Kind::Release: key(step.keys.front(), UGlobal::KeyReleased); break;
    case Step::Kind::Advance: ULoop::instance().advance(static_cast<std::uint64_t>(step.time.count())); break;
    case Step::Kind::Show: show(stage); break;
    case Step::Kind::Say: std::cout << step.text << "\n"; break;
    case Step::Kind::Shot: {
        const std::string file = options.folder + "/" + exhibit.name() + "-" + step.text + ".png";
        Simulator::writePicture(Simulator::drawPicture(stage.screen(), options.scale), file);
        break;
    }
    default: throw Simulator::UsageError("an exhibit has no screen text to look for");
    }
    ULoop::instance().processEvents();
}

void show(const Exhibit& exhibit, const Options& options)
{
    std::cout << exhibit.name() << "\n" << std::flush;
    std::istringstream input(exhibit.script());
    const Simulator::Script script = Simulator::parseScript(input, exhibit.name());
    HardwareVersion::Set hardware;
    hardware.displayLines = exhibit.displayLines();
    HardwareVersion::setAll(hardware);
    Stage stage(exhibit.displayLines());
    exhibit.build(stage);
    ULoop::instance().processEvents();
    for (const Step& step : script.steps)
        play(exhibit, step, stage, options);
    std::fflush(stdout);
}

bool isWanted(const Exhibit& exhibit, const std::vector<std::string>& names)
{
    return names.empty() || std::ranges::find(names, exhibit.name()) != names.end();
}

void showAll(const Options& options)
{
    const Simulator::FixedFont font(options.font);
    UWindowManager::instance().setFont(&font);
    ULoop::instance().setManualClock(true);
    std::filesystem::create_directories(options.folder);
    int shown = 0;
    for (const Exhibit* exhibit : Exhibit::all()) {
        if (!isWanted(*exhibit, options.names))
            continue;
        show(*exhibit, options);
        ++shown;
    }
    UWindowManager::instance().setFont(nullptr);
    if (shown < static_cast<int>(options.names.size()))
        throw Simulator::UsageError("there is no exhibit of one of the names");
}

}

int main(int argc, char** argv)
{
    Options options;
    CLI::App app("Shows the widgets of the toolkit, and writes a picture of each step.");
    app.add_option("--out", options.folder, "Folder for the pictures")->capture_default_str()->type_name("FOLDER");
    app.add_option("--scale", options.scale, "Size of a pixel in pictures")->check(CLI::Range(1, 32))->type_name("N");
    app.add_option("--font", options.font, "A bitmap font of 6x13 pixels")->type_name("FILE");
    app.add_option("names", options.names, "The exhibits to show; all without one");
    CLI11_PARSE(app, argc, argv);
    try {
        showAll(options);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "gallery: " << error.what() << std::endl;
        return 1;
    }
}

#include "Gallery.h"

#include "BlockDrawing.h"
#include "FixedFont.h"
#include "GoldenFolder.h"
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
#include <optional>
#include <sstream>
#include <stdexcept>

// Shows the widgets of the toolkit, each by its script, without the library above them.

namespace {

using Gallery::Exhibit;
using Gallery::Stage;
using Simulator::GoldenFolder;
using Simulator::Step;

struct Options {
    std::string folder = "gallery";
    std::string golden;
    bool updates = false;
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

void shoot(const std::string& name, const Stage& stage, const Options& options, GoldenFolder* goldens)
{
    const std::string file = options.folder + "/" + name + ".png";
    const Simulator::Picture picture = Simulator::drawPicture(stage.screen(), options.scale);
    Simulator::writePicture(picture, file);
    const std::string difference = goldens ? goldens->check(file, picture, std::nullopt) : "";
    if (!difference.empty())
        throw std::runtime_error(difference);
}

void play(const Exhibit& exhibit, const Step& step, const Stage& stage, const Options& options, GoldenFolder* goldens)
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
    case Step::Kind::Shot: shoot(exhibit.name() + "-" + step.text, stage, options, goldens); break;
    default: throw Simulator::UsageError("an exhibit has no screen text to look for");
    }
    ULoop::instance().processEvents();
}

/// Answers how many of its pictures are not as they should be.
int show(const Exhibit& exhibit, const Options& options, GoldenFolder* goldens)
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
    int failures = 0;
    for (const Step& step : script.steps) {
        try {
            play(exhibit, step, stage, options, goldens);
        } catch (const std::runtime_error& error) {
            ++failures;
            std::cerr << script.name << ":" << step.line << ": " << error.what() << std::endl;
        }
    }
    std::fflush(stdout);
    return failures;
}

/// What no exhibit shows any more goes from the folder, or is a failure.
int tidy(const GoldenFolder& goldens, const Options& options)
{
    int failures = 0;
    for (const std::string& file : goldens.unused()) {
        if (options.updates && std::filesystem::remove(file))
            continue;
        ++failures;
        std::cerr << "gallery: no exhibit shows " << file << std::endl;
    }
    return failures;
}

bool isWanted(const Exhibit& exhibit, const std::vector<std::string>& names)
{
    return names.empty() || std::ranges::find(names, exhibit.name()) != names.end();
}

int showAll(const Options& options)
{
    std::optional<GoldenFolder> goldens;
    if (!options.golden.empty())
        goldens.emplace(options.golden, options.updates ? GoldenFolder::Mode::Update : GoldenFolder::Mode::Compare);
    const Simulator::FixedFont font(options.font);
    UWindowManager::instance().setFont(&font);
    ULoop::instance().setManualClock(true);
    std::filesystem::create_directories(options.folder);
    int shown = 0;
    int failures = 0;
    for (const Exhibit* exhibit : Exhibit::all()) {
        if (!isWanted(*exhibit, options.names))
            continue;
        failures += show(*exhibit, options, goldens ? &*goldens : nullptr);
        ++shown;
    }
    UWindowManager::instance().setFont(nullptr);
    if (shown < static_cast<int>(options.names.size()))
        throw Simulator::UsageError("there is no exhibit of one of the names");
    if (goldens && options.names.empty())
        failures += tidy(*goldens, options);
    return failures;
}

}

int main(int argc, char** argv)
{
    Options options;
    CLI::App app("Shows the widgets of the toolkit, and writes a picture of each step.");
    app.add_option("--out", options.folder, "Folder for the pictures")->capture_default_str()->type_name("FOLDER");
    CLI::Option* golden = app.add_option("--golden", options.golden, "Compare the pictures with those in a folder");
    golden->type_name("FOLDER");
    app.add_flag("--update", options.updates, "Write the pictures into that folder")->needs(golden);
    app.add_option("--scale", options.scale, "Size of a pixel in pictures")->check(CLI::Range(1, 32))->type_name("N");
    app.add_option("--font", options.font, "A bitmap font of 6x13 pixels")->type_name("FILE");
    app.add_option("names", options.names, "The exhibits to show; all without one");
    CLI11_PARSE(app, argc, argv);
    try {
        return showAll(options) == 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "gallery: " << error.what() << std::endl;
        return 1;
    }
}

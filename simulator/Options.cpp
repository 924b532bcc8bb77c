#include "Options.h"

#include "Printable.h"
#include "UsageError.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace Simulator {

namespace {

constexpr const char* Description = "The telephone on a workstation.\n\n"
                                    "Keys in the terminal: the arrows, Enter (OK), 0 to 9, * and #, Backspace (left),\n"
                                    "Delete (clear), F1 to F8; q leaves.";

struct Wishes {
    Options options;
    bool tour = false;
    bool hasControl = false;
    bool hasServe = false;
    double patienceInSeconds = 5;
    std::string clock = "manual";
    bool isWithoutDesktop = false;
    bool isDesktop = false;
};

/// What the display is told.
std::string softwareType(const std::string& name)
{
    return name == "sip" ? "Zelmark SIP" : name == "qvt" ? "Zelmark QVT" : "softwareUnknown";
}

void addModes(CLI::App& app, Wishes& wishes)
{
    CLI::Option* script
        = app.add_option("--script", wishes.options.script, "Play a script, and end")->type_name("FILE");
    CLI::Option* golden
        = app.add_option("--golden", wishes.options.golden,
                 "Compare each picture of the script, and the screen text with it, with those in a folder")
              ->type_name("FOLDER")
              ->needs(script);
    app.add_flag("--update", wishes.options.updatesGoldens, "Write what is there now into that folder")->needs(golden);
    CLI::Option* tour = app.add_flag("--tour", wishes.tour, "Play the tour: print each screen, drawn and as text");
    CLI::Option* text = app.add_flag("--text", wishes.options.text, "Print the text of the first screen, and end");
    CLI::Option* shot
        = app.add_option("--shot", wishes.options.shot, "Write the first screen as a PNG picture, and end")
              ->type_name("FILE");
    CLI::Option* control = app.add_option("--control", wishes.options.control,
        "Take commands of a program, in JSON, from standard input or from a socket");
    control->type_name("[SOCKET]")->expected(0, 1);
    CLI::Option* record = app.add_option("--record", wishes.options.record,
        "Write what is done to the telephone as a script, or as a pytest if FILE ends with .py");
    record->type_name("FILE")->excludes(script)->excludes(tour)->excludes(text)->excludes(shot);
    CLI::Option* serve = app.add_option("--serve", wishes.options.port,
        "Show the telephone as a page of a browser on this machine, at a port; 0 takes a free one");
    serve->type_name("[PORT]")->expected(0, 1)->default_str("8080")->check(CLI::Range(0, 65535));
    app.add_option("--clock", wishes.clock, "Of the telephone with --control: manual, or real, which runs by itself")
        ->check(CLI::IsMember({"manual", "real"}, CLI::ignore_case).description(""))
        ->capture_default_str()
        ->type_name("NAME")
        ->needs(control)
        ->excludes(record);
    app.add_flag("--end-with-starter", wishes.options.endsWithStarter, "Of a desktop: leave nothing behind")->group("");
    script->excludes(tour)->excludes(text)->excludes(shot)->excludes(control)->excludes(serve);
    tour->excludes(text)->excludes(shot)->excludes(control)->excludes(serve);
    control->excludes(text)->excludes(shot)->excludes(serve);
    serve->excludes(text)->excludes(shot);
    record->excludes(serve);
}

void addSettings(CLI::App& app, Wishes& wishes)
{
    app.add_option("--scale", wishes.options.scale, "Size of a pixel in pictures")
        ->check(CLI::Range(1, 32))
        ->capture_default_str()
        ->type_name("N");
    app.add_flag(
        "--report-cuts", wishes.options.reportsCuts, "At the end, list the texts that had no room on the glass");
    app.add_option("--font", wishes.options.font, "A bitmap font of 6x13 pixels")->type_name("FILE");
    app.add_option(
           "--timeout", wishes.patienceInSeconds, "How long to wait for an answer or an expected text, in seconds")
        ->check(CLI::Range(0.0, 3600.0))
        ->capture_default_str()
        ->type_name("S");
    CLI::Option* lines = app.add_option("--lines", wishes.options.variant.displayLines, "Lines of the display")
                             ->check(CLI::IsMember(VariantChoices::displayLines()).description(""))
                             ->capture_default_str()
                             ->type_name("N");
    app.add_flag("--desktop", wishes.isDesktop, "Run the phonelet as the desktop, on its glass of one line")
        ->excludes(lines);
    app.add_flag("--no-desktop", wishes.isWithoutDesktop, "Leave out the strip above the glass and its process");
    app.add_option("--software", wishes.options.variant.software, "Of the telephone: sip, qvt or other")
        ->check(CLI::IsMember(VariantChoices::software(), CLI::ignore_case).description(""))
        ->capture_default_str()
        ->type_name("NAME");
    app.add_option("--model", wishes.options.variant.model, "Of the telephone: plain, rx40 or rx70")
        ->check(CLI::IsMember(VariantChoices::models(), CLI::ignore_case).description(""))
        ->type_name("NAME");
}

std::string numberOf(double value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

/// As its own command line has it.
std::vector<std::string> desktopArguments(const Wishes& wishes)
{
    std::vector<std::string> arguments{"--software", wishes.options.variant.software, "--model",
        wishes.options.variant.model, "--timeout", numberOf(wishes.patienceInSeconds)};
    if (!wishes.options.font.empty())
        arguments.insert(arguments.end(), {"--font", wishes.options.font});
    return arguments;
}

Options::Mode modeOf(const Wishes& wishes)
{
    if (!wishes.options.script.empty())
        return Options::Mode::Script;
    if (wishes.hasControl)
        return Options::Mode::Control;
    if (wishes.hasServe)
        return Options::Mode::Serve;
    if (wishes.tour)
        return Options::Mode::Tour;
    return wishes.options.text || !wishes.options.shot.empty() ? Options::Mode::Once : Options::Mode::Terminal;
}

}

bool Options::wantsDesktop() const
{
    return hasDesktop && mode != Mode::Once && mode != Mode::Help;
}

std::string programName(int argc, const char* const* argv)
{
    const std::string name = argc > 0 && argv[0] ? std::filesystem::path(argv[0]).filename().string() : "";
    return name.empty() ? "phone" : printable(name);
}

Options parseOptions(int argc, const char* const* argv, const std::string& version)
{
    Wishes wishes;
    wishes.options.program = programName(argc, argv);
    wishes.options.command = argc > 0 && argv[0] ? argv[0] : wishes.options.program;
    CLI::App app(Description, wishes.options.program);
    wishes.options.programAndVersion
        = wishes.options.program + " " + (version.empty() ? "(on DisplayAPI " PHONE_VERSION ")" : version);
    app.set_version_flag("--version", wishes.options.programAndVersion);
    addModes(app, wishes);
    addSettings(app, wishes);
    try {
        app.parse(argc, argv);
        wishes.hasControl = app.count("--control") > 0;
        wishes.hasServe = app.count("--serve") > 0;
    } catch (const CLI::CallForHelp&) {
        wishes.options.help = app.help();
    } catch (const CLI::CallForVersion&) {
        wishes.options.help = app.version() + "\n";
    } catch (const CLI::ParseError& error) {
        throw UsageError(std::string(error.what()) + " (see --help)");
    }
    Options options = wishes.options;
    options.mode = options.help.empty() ? modeOf(wishes) : Options::Mode::Help;
    options.patience = std::chrono::milliseconds(static_cast<long>(wishes.patienceInSeconds * 1000));
    options.softwareType = softwareType(options.variant.software);
    options.application = wishes.isDesktop ? "DesktopPhonelet" : "";
    options.isClockReal = CLI::detail::to_lower(wishes.clock) == "real";
    options.hasDesktop = !wishes.isWithoutDesktop && !wishes.isDesktop;
    options.desktopArguments = desktopArguments(wishes);
    options.hardware.displayLines = options.variant.displayLines;
    options.hardware.isRX40 = options.variant.model == "rx40";
    options.hardware.isRX70 = options.variant.model == "rx70";
    return options;
}

}

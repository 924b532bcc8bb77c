#pragma once

#include <chrono>
#include <istream>
#include <string>
#include <vector>

namespace Simulator {

/// One step of a script.
struct Step {
    enum class Kind {
        Press, ///< Presses and releases `keys`, each `count` times.
        Hold,  ///< Presses the key and holds it down.
        Release,
        Expect,        ///< Waits until `text` is on the screen.
        ExpectNot,     ///< Waits until `text` is not on the screen.
        ExpectDesktop, ///< Waits until `text` is on the desktop.
        ExpectScreen,  ///< Waits until the whole screen text, in one line, is `text`.
        Advance,       ///< Moves the clock by `time`.
        Text,          ///< Prints the screen text.
        Show,          ///< Prints the desktop, if there is one, and the screen: drawn and as text.
        Shot,          ///< Writes the screen to the file `text`.
        Say,           ///< Prints `text`.
        Custom,        ///< Calls the phonelet's own step `name` with `text`.
    };

    Kind kind = Kind::Press;
    int line = 0;
    std::string source; ///< The step as it stands in the script.
    std::string name;
    std::vector<int> keys;
    int count = 1;
    std::string text;
    std::chrono::milliseconds time{};
};

/// The steps of a script, and the name for its messages.
struct Script {
    std::string name;
    std::vector<Step> steps;
};

/// Reads a script: one step a line; a line that starts with `#` is a comment. `customSteps` names the phonelet's
/// own. Throws UsageError, with the name and the line, for a step that is none.
Script parseScript(std::istream& input, const std::string& name, const std::vector<std::string>& customSteps = {});

/// Reads a script file. Throws UsageError also when it can't be read.
Script readScript(const std::string& file, const std::vector<std::string>& customSteps = {});

/// The code of a key. Throws UsageError for a name that no key has.
int parseKey(const std::string& name);

/// The codes of dial keys. Throws UsageError for what is none.
std::vector<int> parseDialKeys(const std::string& text);

/// Reads a time such as "300ms" or "5s". Throws UsageError for another text.
std::chrono::milliseconds parseTime(const std::string& text);

/// A time for messages, such as "0.5 s".
std::string inSeconds(std::chrono::milliseconds time);

/// True for a word that can name a step of the phonelet's own.
bool canNameStep(const std::string& word);

}

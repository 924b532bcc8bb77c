#pragma once

#include "ControlRequest.h"
#include "ScreenWatch.h"
#include "Variant.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <string>

namespace Simulator {

class Phone;

/// The language of the control channel: takes a command as a line of JSON, carries it out, and answers with a line.
/// Whatever brings the lines, it is the same language; docs/control.md describes it.
///
/// Threads: one line at a time, not on the GUI thread; cancel(), resume() and hasQuit() from any.
class ControlCommands {
public:
    struct Settings {
        std::chrono::milliseconds patience{5000}; ///< How long an expected text may take, unless the command says.
        int scale = 4;                            ///< Of the pictures, unless the command says.
        std::string program = {};                 ///< Name and version, for `hello`.
        Variant variant = {};                     ///< The one that is on.
        /// Told of the variant that is to be on instead. Null where there is no other. Threads: that of answer().
        std::function<void(const Variant&)> onVariant = {};
    };

    ControlCommands(Phone& phone, Settings settings);

    /// The answer, without a line feed. It throws nothing.
    std::string answer(const std::string& line);

    /// True for the name of a command, which no step of a phonelet can have.
    static bool isCommand(const std::string& name);

    /// An answer that no command gave, such as "busy".
    static std::string refusal(const std::string& code, const std::string& reason);

    /// Tells who is watching that there is a new screen or a new delivery to ask for.
    static std::string changedEvent() { return R"({"event":"changed"})"; }

    /// Lets a command give up that waits for a screen or for a command of the phonelet; and those behind it, until
    /// resume().
    void cancel();
    void resume() { mIsCancelled = false; }

    /// True behind the command `watch`, until endWatch(): its user is to be told of changes.
    bool isWatched() const { return mIsWatched; }
    void endWatch() { mIsWatched = false; }

    /// True behind the command `quit`.
    bool hasQuit() const { return mHasQuit; }

private:
    using Handler = Json (ControlCommands::*)(const ControlRequest& request);

    static const std::map<std::string, Handler>& handlers();
    Json carryOut(const ControlRequest& request);
    Json hello(const ControlRequest& request);
    Json key(const ControlRequest& request);
    Json type(const ControlRequest& request);
    Json text(const ControlRequest& request);
    Json expect(const ControlRequest& request);
    Json pixels(const ControlRequest& request);
    Json advance(const ControlRequest& request);
    Json desktop(const ControlRequest& request);
    Json watch(const ControlRequest& request);
    Json tree(const ControlRequest& request);
    Json commands(const ControlRequest& request);
    Json quit(const ControlRequest& request);
    Json variant(const ControlRequest& request);
    Json step(const std::string& name, const ControlRequest& request);

    void finish();
    void require(bool hasAnswered);
    void requireDesktop();
    Snapshot snapshot(const ControlRequest& request);
    Json picture(const ControlRequest& request, const UScreenWE1& screen) const;
    std::string names() const;

    Phone& mPhone;
    Settings mSettings;
    std::atomic<bool> mIsCancelled = false;
    std::atomic<bool> mHasQuit = false;
    std::atomic<bool> mIsWatched = false;
};

}

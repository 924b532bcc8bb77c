#include "ControlCommands.h"

#include "KeyNames.h"
#include "Phone.h"
#include "Picture.h"
#include "Printable.h"
#include "ScreenText.h"
#include "Script.h"
#include "UsageError.h"
#include "WidgetTree.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Simulator {

namespace {

constexpr int MostPresses = 1000;

Json rectOf(const URect& rect)
{
    return {rect.left(), rect.top(), rect.right(), rect.bottom()};
}

Json jsonOf(const WidgetInfo& info)
{
    Json json{{"class", info.kind}, {"rect", rectOf(info.rect)}};
    if (!info.text.empty())
        json["text"] = info.text;
    if (info.hasFocus)
        json["focus"] = true;
    if (info.rows)
        json.update({{"rows", *info.rows}, {"currentRow", *info.currentRow}});
    if (info.isCurrent)
        json["current"] = true;
    for (const WidgetInfo& child : info.children)
        json["children"].push_back(jsonOf(child));
    return json;
}

Json jsonOf(const DeliveryLog::Entry& entry)
{
    return {{"number", entry.number}, {"command", entry.delivery.text},
        {"type", entry.delivery.type == 0 ? "" : commandTypeName(entry.delivery.type)},
        {"screen", entry.delivery.screen}};
}

template <typename T>
Json jsonOf(const std::vector<T>& entries)
{
    Json json = Json::array();
    for (const T& entry : entries)
        json.push_back(jsonOf(entry));
    return json;
}

Json jsonOf(const Variant& variant)
{
    return {{"lines", variant.displayLines}, {"model", variant.model}, {"software", variant.software}};
}

Json rowsOf(const UScreenWE1& screen)
{
    Json rows = Json::array();
    for (int y = 0; y < screen.height(); ++y) {
        std::string row;
        for (int x = 0; x < UScreenWE1::Width; ++x)
            row += screen.pixel(x, y) ? '#' : '.';
        rows.push_back(row);
    }
    return rows;
}

/// What a user of the channel got wrong in the words of scripts is a bad request here.
template <typename Function>
auto checked(Function function)
{
    try {
        return function();
    } catch (const UsageError& error) {
        throw ControlError("bad-request", error.what());
    }
}

std::string written(const Json& answer)
{
    // A text of the phonelet need not be UTF-8.
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json errorAnswer(const std::string& code, const std::string& reason, const Json& details = Json::object())
{
    Json answer{{"ok", false}, {"error", code}, {"reason", printable(reason)}};
    answer.update(details);
    return answer;
}

}

ControlCommands::ControlCommands(Phone& phone, Settings settings)
    : mPhone(phone)
    , mSettings(std::move(settings))
{
}

std::string ControlCommands::refusal(const std::string& code, const std::string& reason)
{
    return written(errorAnswer(code, reason));
}

std::string ControlCommands::answer(const std::string& line)
{
    Json answer;
    try {
        answer = carryOut(ControlRequest(line));
    } catch (const ControlError& error) {
        answer = errorAnswer(error.code(), error.what(), error.details());
    } catch (const std::exception& error) {
        answer = errorAnswer("failed", error.what());
    }
    const Json id = ControlRequest::idOf(line);
    if (!id.is_null())
        answer["id"] = id;
    return written(answer);
}

const std::map<std::string, ControlCommands::Handler>& ControlCommands::handlers()
{
    static const std::map<std::string, Handler> handlers = {
        {"hello", &ControlCommands::hello},
        {"key", &ControlCommands::key},
        {"type", &ControlCommands::type},
        {"text", &ControlCommands::text},
        {"expect", &ControlCommands::expect},
        {"pixels", &ControlCommands::pixels},
        {"advance", &ControlCommands::advance},
        {"tree", &ControlCommands::tree},
        {"commands", &ControlCommands::commands},
        {"desktop", &ControlCommands::desktop},
        {"watch", &ControlCommands::watch},
        {"quit", &ControlCommands::quit},
        {"variant", &ControlCommands::variant},
    };
    return handlers;
}

bool ControlCommands::isCommand(const std::string& name)
{
    return handlers().contains(name);
}

Json ControlCommands::carryOut(const ControlRequest& request)
{
    const std::string name = request.command();
    Json answer{{"ok", true}};
    if (const auto found = handlers().find(name); found != handlers().end())
        answer.update((this->*found->second)(request));
    else if (std::ranges::find(mPhone.steps(), name, &CustomStep::name) != mPhone.steps().end())
        answer.update(step(name, request));
    else
        throw ControlError("bad-request",
            "no command is called \"" + name + "\"; the commands are " + names()
                + "; a phonelet adds its own with onStep()");
    return answer;
}

std::string ControlCommands::names() const
{
    std::string names = "hello, key, type, text, expect, pixels, advance, tree, commands, desktop, watch, quit";
    if (mSettings.onVariant)
        names += ", variant";
    for (const CustomStep& step : mPhone.steps())
        names += ", " + step.name;
    return names;
}

void ControlCommands::require(bool hasAnswered)
{
    if (!hasAnswered)
        throw ControlError(mPhone.watch().hasEnded() ? "ended" : "no-answer", mPhone.trouble());
}

void ControlCommands::requireDesktop()
{
    if (!mPhone.finishDesktop())
        throw ControlError("no-desktop", "the telephone has no desktop, or it has gone");
}

void ControlCommands::finish()
{
    require(mPhone.finishPosted());
}

Json ControlCommands::hello(const ControlRequest& request)
{
    request.allow({});
    Json steps = Json::array();
    Json functionKeys = Json::object();
    for (const CustomStep& step : mPhone.steps()) {
        steps.push_back(step.name);
        if (step.functionKey > 0)
            functionKeys["F" + std::to_string(step.functionKey)] = step.name;
    }
    finish();
    const UScreenWE1 screen = mPhone.watch().snapshot().screen;
    Json answer{{"program", mSettings.program}, {"width", UScreenWE1::Width}, {"height", screen.height()},
        {"steps", steps}, {"functionKeys", functionKeys}, {"variant", jsonOf(mSettings.variant)}};
    if (mSettings.onVariant)
        answer["variants"] = {{"lines", VariantChoices::displayLines()}, {"model", VariantChoices::models()},
            {"software", VariantChoices::software()}};
    return answer;
}

Json ControlCommands::key(const ControlRequest& request)
{
    request.allow({"key", "state", "count"});
    const int code = checked([&] { return parseKey(request.text("key")); });
    const int count = request.numberOr("count", 1, 1, MostPresses);
    const std::string state = request.textOr("state", "tap");
    if (state != "tap" && count != 1)
        throw ControlError("bad-request", R"("count" goes with the state "tap" alone)");
    if (state == "tap") {
        for (int press = 0; press < count; ++press)
            mPhone.tap(code);
    } else if (state == "press") {
        mPhone.key(code, UGlobal::KeyPressed);
    } else if (state == "hold") {
        mPhone.key(code, UGlobal::KeyHeld);
    } else if (state == "release") {
        mPhone.key(code, UGlobal::KeyReleased);
    } else {
        throw ControlError("bad-request", R"("state" must be tap, press, hold or release)");
    }
    finish();
    return Json::object();
}

Json ControlCommands::type(const ControlRequest& request)
{
    request.allow({"keys"});
    for (const int code : checked([&] { return parseDialKeys(request.text("keys")); }))
        mPhone.tap(code);
    finish();
    return Json::object();
}

Snapshot ControlCommands::snapshot(const ControlRequest& request)
{
    finish();
    if (request.flagOr("settled", true))
        mPhone.settle();
    return mPhone.watch().snapshot();
}

Json ControlCommands::text(const ControlRequest& request)
{
    request.allow({"settled"});
    return {{"text", snapshot(request).text}};
}

Json ControlCommands::expect(const ControlRequest& request)
{
    request.allow({"text", "not", "screen", "timeout", "desktop"});
    const auto limit = request.secondsOr("timeout", mSettings.patience);
    const bool isNegative = request.has("not");
    const bool isWhole = request.has("screen");
    if (int{isNegative} + int{isWhole} + int{request.has("text")} != 1)
        throw ControlError("bad-request", R"(expect takes one of "text", "not" and "screen")");
    const std::string wanted = request.text(isWhole ? "screen" : isNegative ? "not" : "text");
    const auto isAsWanted = [&](const Snapshot& snapshot) {
        if (snapshot.number == 0)
            return false;
        return isWhole ? snapshot.text == wanted : containsField(snapshot.text, wanted) != isNegative;
    };
    // What came before may still be on its way to the screen; look only at what follows from it.
    finish();
    const bool isOfDesktop = request.flagOr("desktop", false);
    if (isOfDesktop)
        requireDesktop();
    const ScreenWatch& watch = isOfDesktop ? mPhone.desktop() : mPhone.watch();
    watch.waitFor([&](const Snapshot& shown) { return mIsCancelled || isAsWanted(shown); }, limit);
    const Snapshot shown = watch.snapshot();
    if (isAsWanted(shown)) {
        if (!isWhole && !isOfDesktop)
            mPhone.noteText(wanted, !isNegative);
        return Json::object();
    }
    require(!mPhone.watch().hasEnded());
    const std::string closest = isNegative || isWhole ? "" : closestField(shown.text, wanted);
    throw ControlError("not-shown",
        (isWhole ? std::string("the screen has another text")
                 : (isNegative ? "did not expect \"" : "expected \"") + wanted + "\"")
            + " for " + inSeconds(limit) + (closest.empty() ? "" : "; closest is \"" + closest + "\""),
        {{"closest", closest}, {"text", shown.text}});
}

/// The picture of a screen, also as a file where the command wants it.
Json ControlCommands::picture(const ControlRequest& request, const UScreenWE1& screen) const
{
    const std::string file = request.textOr("file", "");
    const int scale = request.numberOr("scale", mSettings.scale, 1, 32);
    if (!file.empty())
        writePicture(drawPicture(screen, scale), file);
    return {{"width", UScreenWE1::Width}, {"height", screen.height()}, {"rows", rowsOf(screen)}};
}

Json ControlCommands::pixels(const ControlRequest& request)
{
    request.allow({"settled", "text", "file", "scale"});
    const bool isTextWanted = request.flagOr("text", false);
    const Snapshot shown = snapshot(request);
    Json answer = picture(request, shown.screen);
    if (isTextWanted)
        answer["text"] = shown.text;
    return answer;
}

Json ControlCommands::desktop(const ControlRequest& request)
{
    request.allow({"file", "scale"});
    finish();
    requireDesktop();
    const Snapshot shown = mPhone.desktop().snapshot();
    Json answer{{"text", shown.text}};
    answer.update(picture(request, shown.screen));
    return answer;
}

Json ControlCommands::watch(const ControlRequest& request)
{
    request.allow({});
    mIsWatched = true;
    return Json::object();
}

Json ControlCommands::advance(const ControlRequest& request)
{
    request.allow({"time"});
    const auto time = checked([&] { return parseTime(request.text("time")); });
    require(mPhone.advance(time));
    return Json::object();
}

Json ControlCommands::tree(const ControlRequest& request)
{
    request.allow({"at"});
    std::vector<WidgetInfo> tree;
    require(mPhone.onGui([&tree] { tree = readWidgetTree(); }));
    if (!request.has("at"))
        return {{"widgets", jsonOf(tree)}};
    const Json& at = request.member("at");
    if (!at.is_array() || at.size() != 2 || !at[0].is_number_integer() || !at[1].is_number_integer())
        throw ControlError("bad-request", R"("at" must be a pixel, such as [10, 20])");
    return {{"widgets", jsonOf(widgetsAt(tree, at[0].get<int>(), at[1].get<int>()))}};
}

Json ControlCommands::commands(const ControlRequest& request)
{
    request.allow({"since", "wait", "timeout"});
    const int since = request.numberOr("since", 0, 0, std::numeric_limits<int>::max());
    const auto limit = request.secondsOr("timeout", mSettings.patience);
    finish();
    DeliveryLog& log = mPhone.deliveries();
    if (request.has("wait")) {
        const std::string wanted = request.text("wait");
        const auto isWanted = [&](const DeliveryLog::Entry& entry) {
            return entry.delivery.text == wanted || commandTypeName(entry.delivery.type) == wanted;
        };
        const auto mayStop = [&] { return mIsCancelled || mPhone.watch().hasEnded(); };
        if (!log.waitFor(static_cast<std::uint64_t>(since), isWanted, mayStop, limit)) {
            require(!mPhone.watch().hasEnded());
            throw ControlError("not-delivered",
                "no command \"" + wanted + "\" has been delivered for " + inSeconds(limit),
                {{"commands", jsonOf(log.since(static_cast<std::uint64_t>(since)))}});
        }
    }
    return {{"commands", jsonOf(log.since(static_cast<std::uint64_t>(since)))}};
}

Json ControlCommands::quit(const ControlRequest& request)
{
    request.allow({});
    mHasQuit = true;
    return Json::object();
}

Json ControlCommands::variant(const ControlRequest& request)
{
    request.allow({"lines", "model", "software"});
    if (!mSettings.onVariant)
        throw ControlError("bad-request", "this telephone keeps its variant; the command line chooses it");
    const Variant& present = mSettings.variant;
    const Variant wanted{request.has("lines") ? request.number("lines", 0, 9) : present.displayLines,
        request.textOr("model", present.model), request.textOr("software", present.software)};
    checked([&wanted] { check(wanted); });
    if (wanted != present)
        mSettings.onVariant(wanted);
    return Json::object();
}

Json ControlCommands::step(const std::string& name, const ControlRequest& request)
{
    request.allow({"argument"});
    require(mPhone.callStep(name, request.textOr("argument", "")));
    finish();
    return Json::object();
}

void ControlCommands::cancel()
{
    mIsCancelled = true;
    mPhone.watch().wake();
    mPhone.desktop().wake();
    mPhone.deliveries().wake();
}

}

#include "DesktopTalk.h"

#include "ChildProcess.h"
#include "ScreenWatch.h"
#include "Script.h"

#include <algorithm>
#include <array>
#include <poll.h>
#include <stdexcept>
#include <utility>

namespace Simulator {

namespace {

using Command = DesktopQueue::Command;

constexpr std::chrono::milliseconds Turn{100};
constexpr std::chrono::milliseconds StartLimit{20'000}; // fifty telephones that start at once are slow
constexpr std::chrono::milliseconds ShortestEnd{1000};  // of a program that has closed its pipes, as its end does
constexpr std::size_t LongestQuote = 40;

std::string lineOf(const Command& command)
{
    Json line;
    switch (command.kind) {
    case Command::Kind::Watch: line = {{"do", "watch"}}; break;
    case Command::Kind::Step: line = {{"do", command.step}, {"argument", command.argument}}; break;
    case Command::Kind::Advance:
        line = {{"do", "advance"}, {"time", std::to_string(command.time.count()) + "ms"}};
        break;
    case Command::Kind::Look: line = {{"do", "pixels"}, {"text", true}, {"settled", false}}; break;
    }
    return line.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// The picture of an answer; what goes beyond the largest glass is left out.
UScreenWE1 screenOf(const Json& rows)
{
    UScreenWE1 screen(std::min(static_cast<int>(rows.size()), UScreenWE1::MaximumHeight));
    for (int y = 0; y < screen.height(); ++y) {
        const std::string row = rows.at(static_cast<std::size_t>(y)).get<std::string>();
        for (int x = 0; x < static_cast<int>(std::min<std::size_t>(row.size(), UScreenWE1::Width)); ++x)
            screen.setPixel(x, y, row[static_cast<std::size_t>(x)] == '#');
    }
    return screen;
}

}

DesktopTalk::DesktopTalk(ChildProcess& child, DesktopQueue& queue, Settings settings)
    : mChild(child)
    , mQueue(queue)
    , mSettings(std::move(settings))
    , mClient(child.takeOutput(), child.takeInput())
{
}

std::string DesktopTalk::run()
{
    try {
        begin({Command::Kind::Watch});
        while (mQueue.isOpen()) {
            waitForSomething();
            while (mClient.lines().hasLine())
                takeLine(mClient.lines().take());
            if (mCommand && mWaited > mLimit)
                throw std::runtime_error("has not answered for " + inSeconds(mLimit) + "; it was killed");
            if (mClient.hasEnded() || mClient.isGone() || mChild.waitForEnd(std::chrono::milliseconds(0)))
                return howItWent();
            beginNext();
        }
    } catch (const std::exception& error) {
        mChild.kill();
        return error.what();
    }
    return "";
}

void DesktopTalk::begin(const Command& command)
{
    mCommand = command;
    mWaited = {};
    mLimit = command.kind == Command::Kind::Watch ? std::max(mSettings.patience, StartLimit) : mSettings.patience;
    if (command.kind == Command::Kind::Look)
        mIsStale = false;
    mClient.send(lineOf(command));
}

void DesktopTalk::beginNext()
{
    if (mCommand)
        return;
    const std::optional<Command> next = mQueue.take();
    mIsLookAsked = next && next->kind == Command::Kind::Look;
    if (next)
        begin(*next);
    else if (mIsStale)
        begin({Command::Kind::Look});
}

void DesktopTalk::waitForSomething()
{
    std::array<pollfd, 4> sources{{
        {mQueue.wake().descriptor(), POLLIN, 0},
        {mChild.descriptor(), POLLIN, 0},
        {mClient.input(), POLLIN, 0},
        {mClient.output(), static_cast<short>(mClient.isSending() ? POLLOUT : 0), 0},
    }};
    const Clock::time_point start = Clock::now();
    poll(sources.data(), sources.size(), mCommand ? static_cast<int>(Turn.count()) : -1);
    // While the telephone itself was stopped, as Ctrl-Z does, nobody has waited.
    mWaited += std::min(Turn, std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start));
    mQueue.wake().clear();
    if (sources[2].revents != 0)
        mClient.read();
    mClient.write();
    if ((sources[3].revents & POLLERR) != 0)
        mClient.hangUp(); // nobody will read what was written
}

void DesktopTalk::takeLine(const LineBuffer::Line& line)
{
    try {
        const Json answer = Json::parse(line.text);
        if (answer.contains("event"))
            mIsStale = true;
        else
            takeAnswer(answer);
    } catch (const Json::exception&) {
        throw std::runtime_error("does not speak the language of the control channel, but says \""
            + line.text.substr(0, LongestQuote) + "\"; it was killed");
    }
}

void DesktopTalk::takeAnswer(const Json& answer)
{
    const bool isDone = answer.at("ok").get<bool>();
    if (!mCommand)
        throw std::runtime_error("answers what it was not asked; it was killed");
    const Command command = *std::exchange(mCommand, std::nullopt);
    if (!isDone)
        noteRefusal(command, answer);
    else if (command.kind == Command::Kind::Look)
        mSettings.watch.publish(screenOf(answer.at("rows")), answer.at("text").get<std::string>());
    if (mIsLookAsked)
        mQueue.noteLook();
    mIsLookAsked = false;
}

/// A step may fail; a desktop that can't show itself any more is of no use.
void DesktopTalk::noteRefusal(const Command& command, const Json& answer)
{
    const std::string error = answer.at("error").get<std::string>();
    const std::string reason = answer.at("reason").get<std::string>();
    if (command.kind != Command::Kind::Step || error == "no-answer" || error == "ended")
        throw std::runtime_error("has failed: " + reason + "; it was killed");
    if (mRefused.insert(command.step).second)
        mSettings.report("has refused \"" + command.step + "\": " + reason);
}

/// The program has closed its pipes, which is its end or should be.
std::string DesktopTalk::howItWent()
{
    if (mChild.waitForEnd(std::max(mSettings.patience, ShortestEnd)))
        return mChild.howItEnded();
    mChild.kill();
    return "has closed its pipes; it was killed";
}

}

#include "WebClient.h"

#include "KeyNames.h"

#include <utility>

namespace Simulator {

namespace {

constexpr std::size_t LongestMessage = 65'536;
constexpr std::size_t MostWaiting = 100; // commands

}

WebClient::WebClient(Phone& phone, const ControlCommands::Settings& settings, std::function<void()> onAnswer)
    : mCommands(phone, settings)
    , mWorker(mCommands, std::move(onAnswer))
{
}

void WebClient::receive(const char* data, std::size_t size, bool isLast)
{
    // What is too long is kept only as far as it takes to know that.
    if (mIncoming.size() <= LongestMessage)
        mIncoming.append(data, size);
    if (!isLast)
        return;
    std::string line = std::exchange(mIncoming, {});
    if (line.size() > LongestMessage)
        answer(ControlCommands::refusal("too-long", "a command has at most 65536 bytes"));
    else if (mWaiting.size() >= MostWaiting)
        answer(ControlCommands::refusal("busy", "too many commands are waiting"));
    else
        mWaiting.push_back(std::move(line));
}

void WebClient::proceed()
{
    if (std::optional<std::string> line = mWorker.takeAnswer())
        answer(std::move(*line));
    if (mWorker.isBusy() || mWaiting.empty())
        return;
    std::string line = std::move(mWaiting.front());
    mWaiting.pop_front();
    noteKeys(line);
    mCommands.resume();
    mWorker.begin(std::move(line));
}

void WebClient::answer(std::string line)
{
    mUnreadBytes += line.size();
    mUnread.push_back(std::move(line));
}

/// Keeps in mind which keys the page holds down.
void WebClient::noteKeys(const std::string& line)
{
    try {
        const ControlRequest request(line);
        if (request.command() != "key")
            return;
        const std::optional<int> key = keyCode(request.text("key"));
        const std::string state = request.textOr("state", "tap");
        if (key && (state == "press" || state == "hold"))
            mHeldKeys.insert(*key);
        else if (key)
            mHeldKeys.erase(*key);
    } catch (const ControlError&) {
        // It holds none; the answer says what is wrong with it.
    }
}

std::string WebClient::nextMessage(const Moment& moment)
{
    if (!mUnread.empty()) {
        std::string line = std::move(mUnread.front());
        mUnread.pop_front();
        mUnreadBytes -= line.size();
        return line;
    }
    if (std::exchange(mTold, moment) == moment)
        return {};
    return Json{{"event", "changed"}}.dump();
}

void WebClient::leave()
{
    mWaiting.clear();
    mCommands.cancel();
}

void WebClient::release(int key)
{
    mWaiting.push_back(Json{{"do", "key"}, {"key", keyName(key)}, {"state", "release"}}.dump());
}

}

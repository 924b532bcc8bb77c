#include "AnswerWait.h"

#include <Log.h>

#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <utility>

namespace DisplayAPI {

std::atomic<int> answerPatience = 5000;
std::atomic<bool> isLoopRunning = false;
std::atomic<bool> isSubscribed = false;

std::string WaitingRequest::handle() const
{
    if (!mHandle)
        return "handle";
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> readable(
        abi::__cxa_demangle(mHandle->name(), nullptr, nullptr, &status), &std::free);
    std::string name = readable ? readable.get() : mHandle->name();
    const std::string before = "DisplayAPI::";
    const std::string behind = "::Request";
    if (name.starts_with(before))
        name.erase(0, before.size());
    if (name.ends_with(behind))
        name.resize(name.size() - behind.size());
    return name;
}

void WaitingRequest::logDelay()
{
    constexpr const char* module = "DisplayAPI";
    constexpr int level = 2;
    if (std::exchange(mIsLogged, true) || !loggingOnAppUni(module, level))
        return;
    logAppUni(module, "src/AnswerWait", level, __LINE__,
        "Request %d of a %s waits for the GUI thread, %s. Does that thread wait for this one?", mType, handle().c_str(),
        isLoopRunning ? "whose loop is busy" : "which runs no loop");
}

}

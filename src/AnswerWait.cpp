#include "AnswerWait.h"

#include <Log.h>

namespace DisplayAPI {

std::atomic<int> answerPatience = 5000;
std::atomic<bool> isLoopRunning = false;
std::atomic<bool> isSubscribed = false;

void logMissingAnswer(const WaitingRequest& request)
{
    constexpr const char* module = "DisplayAPI";
    constexpr int level = 2;
    if (!loggingOnAppUni(module, level))
        return;
    logAppUni(module, "src/AnswerWait", level, __LINE__,
        "Request %d of a %s waits for the GUI thread, %s. Does that thread wait for this one?", request.type(),
        request.handle(), isLoopRunning ? "whose loop is busy" : "which runs no loop");
}

}

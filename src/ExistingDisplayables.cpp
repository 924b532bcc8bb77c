#include "ExistingDisplayables.h"

#include <DisplayAPI/Displayable.h>

#include <Semaphore.h>
#include <Threadable.h>

#include <algorithm>
#include <iterator>

namespace DisplayAPI {

namespace {

/// A screen whose getPrivateImpl() runs now; it lies on the stack of the asking thread.
struct Question {
    const Displayable* screen;
    unsigned int thread;
    bool hasLeft = false;   // the screen, meanwhile
    Wait* waiter = nullptr; // whoever deletes the screen on another thread
    Question* next = nullptr;
};

struct Registry {
    Semaphore semaphore{Semaphore::AVAILABLE, 1};
    std::vector<Displayable*> screens GUARDED_BY(semaphore);
    Question* questions GUARDED_BY(semaphore) = nullptr;

    // Screens mostly go in the reverse order of their coming, and the newest are asked for most.
    auto find(const Displayable* displayable) REQUIRES(semaphore)
    {
        return std::find(screens.rbegin(), screens.rend(), displayable);
    }
    bool has(const Displayable* displayable) REQUIRES(semaphore) { return find(displayable) != screens.rend(); }
};

// A screen may be made before main() and die behind it.
Registry& registry()
{
    static Registry& instance = *new Registry;
    return instance;
}

/// Marks the questions about a screen that leaves. True if one of another thread runs: `wait` is released behind it.
bool mustAwaitQuestion(Registry& screens, const Displayable* displayable, Wait& wait) REQUIRES(screens.semaphore)
{
    for (Question* question = screens.questions; question; question = question->next) {
        if (question->screen != displayable)
            continue;
        question->hasLeft = true;
        if (question->thread == Threadable::currentThreadId() || question->waiter)
            continue;
        question->waiter = &wait;
        return true;
    }
    return false;
}

/// The end of a question, also by an exception.
class Questioning {
public:
    explicit Questioning(Question& question)
        : mQuestion(question)
    {
    }
    ~Questioning()
    {
        Registry& screens = registry();
        {
            CriticalSection section(screens.semaphore);
            Question** link = &screens.questions;
            while (*link != &mQuestion)
                link = &(*link)->next;
            *link = mQuestion.next;
        }
        if (mQuestion.waiter)
            mQuestion.waiter->release();
    }
    Questioning(const Questioning&) = delete;
    Questioning& operator=(const Questioning&) = delete;

private:
    Question& mQuestion;
};

}

std::vector<Displayable*>& existingDisplayables = registry().screens;
Semaphore& existingDisplayablesSemaphore = registry().semaphore;

void registerDisplayable(Displayable* displayable)
{
    Registry& screens = registry();
    CriticalSection section(screens.semaphore);
    if (!screens.has(displayable))
        screens.screens.push_back(displayable);
}

void unregisterDisplayable(Displayable* displayable)
{
    Registry& screens = registry();
    Wait wait;
    for (bool mustWait = true; mustWait;) {
        {
            CriticalSection section(screens.semaphore);
            if (const auto found = screens.find(displayable); found != screens.screens.rend())
                screens.screens.erase(std::next(found).base());
            mustWait = mustAwaitQuestion(screens, displayable, wait);
        }
        if (mustWait)
            wait.wait();
    }
}

bool displayableExists(const Displayable* displayable)
{
    Registry& screens = registry();
    CriticalSection section(screens.semaphore);
    return screens.has(displayable);
}

DisplayablePrivateIfc* privateOfLiving(Displayable* displayable)
{
    Registry& screens = registry();
    Question question{displayable, Threadable::currentThreadId()};
    {
        CriticalSection section(screens.semaphore);
        if (!screens.has(displayable))
            return nullptr;
        question.next = screens.questions;
        screens.questions = &question;
    }
    DisplayablePrivateIfc* half = nullptr;
    {
        const Questioning questioning(question);
        half = displayable->getPrivateImpl();
    }
    return question.hasLeft ? nullptr : half;
}

std::string nameOfLiving(const Displayable* displayable)
{
    Registry& screens = registry();
    CriticalSection section(screens.semaphore);
    return screens.has(displayable) ? displayable->widgetName() : std::string();
}

}

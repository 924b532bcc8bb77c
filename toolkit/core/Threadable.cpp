#include "Threadable.h"

#include "Disturb.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <condition_variable>
#include <mutex>
#include <utility>

#include <pthread.h>
#include <sched.h>

namespace {

std::atomic<unsigned int> gLastThreadId = 0;
thread_local unsigned int tThreadId = 0;

unsigned int newThreadId()
{
    unsigned int id = 0;
    while (id == 0)
        id = gLastThreadId.fetch_add(1, std::memory_order_relaxed) + 1;
    return id;
}

/// Whether the calling thread is detached. Without memory for the answer it is yes: a thread that nobody joins
/// is a leak, one that is detached twice is undefined.
bool isDetached()
{
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return true;
    int state = PTHREAD_CREATE_JOINABLE;
    pthread_attr_getdetachstate(&attributes, &state);
    pthread_attr_destroy(&attributes);
    return state == PTHREAD_CREATE_DETACHED;
}

/// The attributes of a thread to be made.
class Attributes {
public:
    Attributes() { pthread_attr_init(&mAttributes); }
    ~Attributes() { pthread_attr_destroy(&mAttributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    void setStackSize(int size)
    {
        if (size > 0)
            pthread_attr_setstacksize(&mAttributes, std::max(static_cast<std::size_t>(size), minimumStackSize()));
    }

    /// Keeps the policy of the calling thread, and its priority too if the policy does not know this one.
    void setPriority(int priority)
    {
        int policy = 0;
        sched_param parameters{};
        if (pthread_getschedparam(pthread_self(), &policy, &parameters) != 0)
            return;
        if (priority < sched_get_priority_min(policy) || priority > sched_get_priority_max(policy))
            return;
        parameters.sched_priority = priority;
        pthread_attr_setschedpolicy(&mAttributes, policy);
        pthread_attr_setschedparam(&mAttributes, &parameters);
        pthread_attr_setinheritsched(&mAttributes, PTHREAD_EXPLICIT_SCHED);
    }

    void inheritPriority() { pthread_attr_setinheritsched(&mAttributes, PTHREAD_INHERIT_SCHED); }

    const pthread_attr_t* get() const { return &mAttributes; }

private:
    static std::size_t minimumStackSize() { return static_cast<std::size_t>(PTHREAD_STACK_MIN); }

    pthread_attr_t mAttributes;
};

}

/// What object and thread share: it lives as long as either.
///
/// run() may detach its thread, so nobody joins before run() has returned. The thread then settles under the
/// mutex who clears up behind it: nobody, if it is detached; a waiter, if there is one; else it detaches
/// itself, and later waiters find it finished.
struct Threadable::Body {
    enum class State {
        New,
        Started,
        Finished,
    };

    std::atomic<unsigned int> threadId = 0;

    bool begin();
    void cancel();
    void finish();
    void wait();

    struct Launch;

private:
    std::mutex mMutex;
    std::condition_variable mFinished;
    // All below are guarded by mMutex.
    State mState = State::New;
    int mWaiters = 0;
    bool mMustBeJoined = false;
    pthread_t mThread{};
};

/// Claims the only run; false if it was claimed before.
bool Threadable::Body::begin()
{
    const std::lock_guard lock(mMutex);
    if (mState != State::New)
        return false;
    mState = State::Started;
    threadId = newThreadId();
    return true;
}

/// Takes begin() back: the platform gave no thread.
void Threadable::Body::cancel()
{
    const std::lock_guard lock(mMutex);
    mState = State::New;
    threadId = 0;
    mFinished.notify_all();
}

/// The last that the thread does with its body.
void Threadable::Body::finish()
{
    disturb();
    const bool detached = isDetached();
    const std::lock_guard lock(mMutex);
    mState = State::Finished;
    mMustBeJoined = !detached && mWaiters > 0;
    mThread = pthread_self();
    if (!detached && !mMustBeJoined)
        pthread_detach(mThread);
    mFinished.notify_all();
}

void Threadable::Body::wait()
{
    disturb();
    std::unique_lock lock(mMutex);
    ++mWaiters;
    mFinished.wait(lock, [this] { return mState != State::Started; });
    --mWaiters;
    if (std::exchange(mMustBeJoined, false)) {
        lock.unlock();
        pthread_join(mThread, nullptr);
    }
}

Threadable::Threadable()
    : mBody(std::make_shared<Body>())
{
}

Threadable::~Threadable() = default;

int Threadable::getThreadPriorityForPlatform(int priority)
{
    return priority;
}

int Threadable::type()
{
    return 0;
}

unsigned int Threadable::currentThreadId()
{
    if (tThreadId == 0)
        tThreadId = newThreadId();
    return tThreadId;
}

unsigned int Threadable::threadId() const
{
    return mBody->threadId;
}

void Threadable::waitForThreadCompletion()
{
    // A copy, since run() may delete this object in the meantime.
    const std::shared_ptr<Body> body = mBody;
    if (body->threadId != currentThreadId())
        body->wait();
}

/// What a new thread needs. It belongs to the thread.
struct Threadable::Body::Launch {
    Threadable* job;
    std::shared_ptr<Body> body;
    std::string name;

    Launch(Threadable* theJob, std::shared_ptr<Body> theBody, std::string theName)
        : job(theJob)
        , body(std::move(theBody))
        , name(std::move(theName))
    {
    }
    ~Launch()
    {
        if (job)
            body->finish();
    }

    /// The start of the thread. Completion hangs on the life of the launch, so that a run() that ends its
    /// thread by pthread_exit() completes too.
    static void* run(void* argument)
    {
        const std::unique_ptr<Launch> launch(static_cast<Launch*>(argument));
        tThreadId = launch->body->threadId;
        if (!launch->name.empty())
            pthread_setname_np(pthread_self(), launch->name.c_str());
        disturb();
        launch->job->run();
        return nullptr;
    }
};

bool Threader::start(Threadable* job, const std::string& name, int priority, int stackSize)
{
    constexpr std::size_t longestName = 15;
    if (!job || !job->mBody->begin())
        return false;
    Attributes attributes;
    attributes.setStackSize(stackSize);
    attributes.setPriority(job->getThreadPriorityForPlatform(priority));

    // From here on the job may run and delete itself at any moment.
    const std::shared_ptr<Threadable::Body> body = job->mBody;
    auto launch = std::make_unique<Threadable::Body::Launch>(job, body, name.substr(0, longestName));
    const auto create = [&] {
        pthread_t thread{};
        return pthread_create(&thread, attributes.get(), &Threadable::Body::Launch::run, launch.get());
    };
    int error = create();
    if (error == EPERM) {
        // This process may not raise the priority: a thread with the caller's is better than none.
        attributes.inheritPriority();
        error = create();
    }
    if (error != 0) {
        launch->job = nullptr;
        body->cancel();
        return false;
    }
    static_cast<void>(launch.release());
    return true;
}

#include "ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>

namespace Simulator {

namespace {

constexpr int FirstFree = 3; // behind the standard ones

void check(int error, const char* what)
{
    if (error != 0)
        throw std::system_error(error, std::generic_category(), what);
}

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

/// Both ends lie behind the standard descriptors, also in a process that was started without some of these.
Pipe makePipe()
{
    int ends[2];
    check(pipe2(ends, O_CLOEXEC) == 0 ? 0 : errno, "pipe");
    Pipe pipe{Descriptor(ends[0]), Descriptor(ends[1])};
    for (Descriptor* end : {&pipe.reading, &pipe.writing}) {
        if (end->number() < FirstFree)
            *end = Descriptor(fcntl(end->number(), F_DUPFD_CLOEXEC, FirstFree));
        check(*end ? 0 : errno, "pipe");
    }
    return pipe;
}

/// What is different in the child: its descriptors, its group, and signals as at the start of a program.
class SpawnPlan {
public:
    SpawnPlan(const Descriptor& input, const Descriptor& output)
    {
        posix_spawn_file_actions_init(&mActions);
        posix_spawn_file_actions_adddup2(&mActions, input.number(), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&mActions, output.number(), STDOUT_FILENO);
        posix_spawn_file_actions_addclosefrom_np(&mActions, FirstFree);
        sigset_t signals;
        posix_spawnattr_init(&mAttributes);
        posix_spawnattr_setpgroup(&mAttributes, 0);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&mAttributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&mAttributes, &signals);
        posix_spawnattr_setflags(&mAttributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnPlan()
    {
        posix_spawnattr_destroy(&mAttributes);
        posix_spawn_file_actions_destroy(&mActions);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    pid_t start(const std::string& path, const std::vector<std::string>& arguments) const
    {
        std::vector<char*> words{const_cast<char*>(path.c_str())};
        for (const std::string& argument : arguments)
            words.push_back(const_cast<char*>(argument.c_str()));
        words.push_back(nullptr);
        pid_t process = 0;
        check(posix_spawn(&process, path.c_str(), &mActions, &mAttributes, words.data(), environ), "posix_spawn");
        return process;
    }

private:
    posix_spawn_file_actions_t mActions{};
    posix_spawnattr_t mAttributes{};
};

}

ChildProcess::ChildProcess(const std::string& path, const std::vector<std::string>& arguments)
{
    Pipe input = makePipe();
    Pipe output = makePipe();
    mProcess = SpawnPlan(input.reading, output.writing).start(path, arguments);
    mEnd = Descriptor(static_cast<int>(syscall(SYS_pidfd_open, mProcess, 0)));
    mInput = std::move(input.writing);
    mOutput = std::move(output.reading);
}

ChildProcess::~ChildProcess()
{
    kill();
}

bool ChildProcess::waitForEnd(std::chrono::milliseconds limit)
{
    pollfd end{mEnd.number(), POLLIN, 0};
    if (!mHasEnded && poll(&end, 1, static_cast<int>(limit.count())) > 0)
        reap();
    return mHasEnded;
}

void ChildProcess::kill()
{
    if (mHasEnded)
        return;
    ::kill(mProcess, SIGKILL);
    reap();
}

void ChildProcess::reap()
{
    // Until it is waited for its number is its own, and that of its group.
    siginfo_t information{};
    while (waitid(P_PID, static_cast<id_t>(mProcess), &information, WEXITED | WNOWAIT) < 0 && errno == EINTR) { }
    ::kill(-mProcess, SIGKILL);
    while (waitpid(mProcess, &mStatus, 0) < 0 && errno == EINTR) { }
    mHasEnded = true;
}

std::string ChildProcess::howItEnded() const
{
    if (!WIFSIGNALED(mStatus))
        return "has ended with exit code " + std::to_string(WEXITSTATUS(mStatus));
    const int signal = WTERMSIG(mStatus);
    const char* name = sigabbrev_np(signal);
    return "was ended by signal " + std::to_string(signal) + (name ? std::string(" (SIG") + name + ")" : "");
}

}

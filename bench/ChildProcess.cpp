#include "ChildProcess.h"

#include <array>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

void check(bool isGood, const char* what, int error = errno)
{
    if (!isGood)
        throw std::system_error(error, std::generic_category(), what);
}

}

ChildProcess::ChildProcess(const std::vector<std::string>& command)
{
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    check(pipe2(input.data(), O_CLOEXEC) == 0 && pipe2(output.data(), O_CLOEXEC) == 0, "pipe");
    mInput = input[1];
    mOutput = output[0];
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    const int error = posix_spawnp(&mId, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(input[0]);
    close(output[1]);
    check(error == 0, arguments[0], error);
}

ChildProcess::~ChildProcess()
{
    close(mInput);
    close(mOutput);
    waitpid(mId, nullptr, 0);
}

void ChildProcess::write(const std::string& line)
{
    const std::string whole = line + "\n";
    check(::write(mInput, whole.data(), whole.size()) == static_cast<ssize_t>(whole.size()), "write");
}

std::string ChildProcess::read()
{
    std::size_t end = 0;
    while ((end = mRead.find('\n')) == std::string::npos) {
        std::array<char, 65536> part{};
        const ssize_t size = ::read(mOutput, part.data(), part.size());
        check(size >= 0, "read");
        if (size == 0)
            throw std::runtime_error("a program has ended too early");
        mRead.append(part.data(), static_cast<std::size_t>(size));
    }
    const std::string line = mRead.substr(0, end);
    mRead.erase(0, end + 1);
    return line;
}

double ChildProcess::privateMemory() const
{
    std::ifstream sums("/proc/" + std::to_string(mId) + "/smaps_rollup");
    double kibibytes = 0;
    for (std::string word; sums >> word;) {
        double size = 0;
        if (word.starts_with("Private_") && sums >> size)
            kibibytes += size;
    }
    return kibibytes * 1024;
}

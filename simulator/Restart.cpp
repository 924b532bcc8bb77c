#include "Restart.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace Simulator {

namespace {

/// What atExit() was told. It is never destroyed: it is read when other global objects have gone.
std::vector<std::string>& wanted()
{
    static auto* arguments = new std::vector<std::string>;
    return *arguments;
}

void restartIfWanted()
{
    if (!wanted().empty())
        Restart::now(wanted());
}

/// Sockets and files of the old telephone would stay open in the new one, and its port taken.
void keepStandardDescriptorsOnly()
{
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", error)) {
        const int descriptor = std::atoi(entry.path().filename().c_str());
        if (descriptor > STDERR_FILENO)
            fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
}

}

std::vector<std::string> Restart::ownArguments()
{
    std::ifstream line("/proc/self/cmdline", std::ios::binary);
    std::vector<std::string> arguments;
    for (std::string argument; std::getline(line, argument, '\0');)
        arguments.push_back(argument);
    return arguments;
}

void Restart::atExit(std::vector<std::string> arguments)
{
    if (wanted().empty())
        std::atexit(restartIfWanted);
    wanted() = std::move(arguments);
}

void Restart::cancel()
{
    wanted().clear();
}

void Restart::now(const std::vector<std::string>& arguments)
{
    std::cout << std::flush;
    std::fflush(nullptr);
    keepStandardDescriptorsOnly();
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    // By its path, for whoever looks for the process by its name; that may lead nowhere, or to a newer build.
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error)
        execv(path.c_str(), pointers.data());
    execv("/proc/self/exe", pointers.data());
    std::fprintf(stderr, "the telephone can't begin anew: %s\n", std::strerror(errno));
    std::_Exit(EXIT_FAILURE);
}

}

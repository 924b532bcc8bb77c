// A directory with its call log, lines and ring tones. `line N NAME` in a script rings on line N, and `line N` ends
// that call; F1 rings on line 1.

#include "Directory.h"

#include <PhoneSimulator/PhoneSimulator.h>

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<Directory*> shown = nullptr; // while the phonelet runs

void line(const std::string& numberAndCaller)
{
    const std::string step = numberAndCaller.empty() ? "1 Bob Baker" : numberAndCaller;
    const std::size_t blank = step.find(' ');
    if (Directory* directory = shown)
        directory->ring(std::atoi(step.c_str()), blank == std::string::npos ? "" : step.substr(blank + 1));
}

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).onStep("line", line, 1).run([](DisplayAPI::Display& display) {
        Directory directory(display);
        shown = &directory;
        directory.run();
        shown = nullptr;
    });
}

#include "TerminalSession.h"

#include "UsageError.h"

#include <array>
#include <atomic>
#include <clocale>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <ncurses.h>
#include <string>
#include <strings.h>
#include <sys/ioctl.h>
#include <term.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

// Of the sanitizers, in a program that is built with one.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace Simulator {

namespace {

constexpr std::array crashSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};

// What a signal handler needs, ready before any signal can come.
std::atomic<bool> gIsActive = false;
pid_t gOwner = 0; // a child process that was forked has nothing to restore
int gTerminal = -1;
termios gSettings;
char gLeaveText[128];
struct sigaction gOldActions[crashSignals.size()];

void append(const char* capability)
{
    // Cursor visible, ordinary screen: the texts that the terminal description gives, without its delays.
    if (capability && reinterpret_cast<std::intptr_t>(capability) != -1)
        std::strncat(gLeaveText, capability, sizeof gLeaveText - std::strlen(gLeaveText) - 1);
}

extern "C" void onCrash(int signal, siginfo_t* information, void*)
{
    TerminalSession::restore();
    for (std::size_t index = 0; index < crashSignals.size(); ++index) {
        if (crashSignals[index] == signal)
            sigaction(signal, &gOldActions[index], nullptr);
    }
    // With the old handler back, what the processor has refused is refused again; another signal is sent again.
    if (information->si_code <= 0)
        raise(signal);
}

void restoreAtExit()
{
    std::fflush(stdout);
    TerminalSession::restore();
}

// newterm() would tell as well, but leaves memory behind when it fails.
void requireDescription()
{
    const char* variable = std::getenv("TERM");
    const std::string kind = std::string("the terminal \"") + (variable ? variable : "") + "\"";
    int found = 0;
    if (setupterm(nullptr, STDOUT_FILENO, &found) != OK)
        throw UsageError("no description of " + kind + "; set TERM");
    const bool canPlaceText = tigetstr("cup") != nullptr;
    del_curterm(cur_term);
    if (!canPlaceText)
        throw UsageError(kind + " can't show a full screen; try --tour");
}

/// The name of the character set that the user's language asks for; empty if it does not say.
std::string wantedCharacterSet()
{
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* value = std::getenv(variable);
        if (!value || *value == '\0')
            continue;
        const std::string name = value;
        const auto dot = name.find('.');
        return dot == std::string::npos ? "" : name.substr(dot + 1, name.find('@') - dot - 1);
    }
    return "";
}

bool isUtf8(const char* name)
{
    return strcasecmp(name, "UTF-8") == 0 || strcasecmp(name, "UTF8") == 0;
}

GlassCharacters chooseCharacters()
{
    const char* variable = std::getenv("TERM");
    const std::string kind = variable ? variable : "";
    const bool isKnown = std::setlocale(LC_CTYPE, "") != nullptr;
    const std::string set = isKnown ? nl_langinfo(CODESET) : wantedCharacterSet();
    // Who asks for no language has one of the terminals of today all the same.
    const bool saysNothing = set.empty() || set == "ANSI_X3.4-1968";
    if (!isUtf8(set.c_str()) && !saysNothing)
        return GlassCharacters::None;
    if (!isKnown || saysNothing)
        std::setlocale(LC_CTYPE, "C.UTF-8");
    const bool isOld = kind.size() > 2 && kind.starts_with("vt") && kind[2] >= '0' && kind[2] <= '9';
    if (isOld || kind.starts_with("ansi"))
        return GlassCharacters::None;
    return kind.starts_with("linux") ? GlassCharacters::Halves : GlassCharacters::Quarters;
}

}

TerminalSession::TerminalSession(std::function<void()> outputObserver)
    : mCharacters(chooseCharacters())
{
    if (tcgetattr(STDIN_FILENO, &gSettings) != 0)
        throw UsageError("standard input is no terminal");
    requireDescription();
    mOutput.emplace(std::move(outputObserver));
    gTerminal = mOutput->terminal();
    open();
    gOwner = getpid();
    gIsActive = true;
    static const int registered = std::atexit(restoreAtExit) + std::at_quick_exit(restore);
    static_cast<void>(registered);
    if (__sanitizer_set_death_callback)
        __sanitizer_set_death_callback(restore); // it ends the process without any of these, behind its report
    catchCrashes();
    raw();
    noecho();
    nonl();
    keypad(stdscr, TRUE);
    nodelay(stdscr, TRUE);
    set_escdelay(25);
    curs_set(0);
}

TerminalSession::~TerminalSession()
{
    SCREEN* screen = set_term(nullptr);
    set_term(screen);
    endwin();
    gIsActive = false;
    delscreen(screen);
    mOutput.reset();
    releaseCrashes();
}

void TerminalSession::open()
{
    mDevice.reset(fdopen(fcntl(gTerminal, F_DUPFD_CLOEXEC, 3), "w"));
    // The library would stop the process in a way of its own, inside a signal handler.
    struct sigaction stop { };
    sigaction(SIGTSTP, nullptr, &stop);
    SCREEN* screen = mDevice ? newterm(nullptr, mDevice.get(), stdin) : nullptr;
    sigaction(SIGTSTP, &stop, nullptr);
    if (!screen)
        throw UsageError("the terminal can't be used");
    set_term(screen);
    gLeaveText[0] = '\0';
    append(tigetstr("sgr0"));
    append(tigetstr("rmkx"));
    append(tigetstr("cnorm"));
    append(tigetstr("rmcup"));
}

void TerminalSession::catchCrashes()
{
    // A function that calls itself for ever leaves no stack for the handler.
    constexpr std::size_t stackSize = std::size_t{1} << 17;
    mCrashStack.resize(stackSize);
    stack_t stack{};
    stack.ss_sp = mCrashStack.data();
    stack.ss_size = mCrashStack.size();
    sigaltstack(&stack, &mOldStack);
    struct sigaction action { };
    action.sa_sigaction = onCrash;
    action.sa_flags = SA_ONSTACK | SA_SIGINFO;
    sigemptyset(&action.sa_mask);
    for (std::size_t index = 0; index < crashSignals.size(); ++index)
        sigaction(crashSignals[index], &action, &gOldActions[index]);
}

void TerminalSession::releaseCrashes()
{
    for (std::size_t index = 0; index < crashSignals.size(); ++index)
        sigaction(crashSignals[index], &gOldActions[index], nullptr);
    sigaltstack(&mOldStack, nullptr);
}

void TerminalSession::resize()
{
    winsize size{};
    if (ioctl(gTerminal, TIOCGWINSZ, &size) == 0 && size.ws_row > 0 && size.ws_col > 0)
        resizeterm(size.ws_row, size.ws_col);
}

void TerminalSession::suspend()
{
    def_prog_mode();
    endwin();
    gIsActive = false;
}

void TerminalSession::resume()
{
    gIsActive = true;
    reset_prog_mode();
    resize();
    clearok(curscr, TRUE);
}

void TerminalSession::restore()
{
    // Only calls that a signal handler may make.
    if (getpid() != gOwner)
        return;
    if (gIsActive.exchange(false)) {
        [[maybe_unused]] const ssize_t written = write(gTerminal, gLeaveText, std::strlen(gLeaveText));
        tcsetattr(STDIN_FILENO, TCSANOW, &gSettings);
    }
    OutputKeeper::giveBack();
}

}

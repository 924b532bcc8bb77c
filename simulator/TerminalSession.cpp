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
#include <langinfo.h>
#include <ncurses.h>
#include <string>
#include <sys/ioctl.h>
#include <term.h>
#include <termios.h>
#include <unistd.h>

namespace Simulator {

namespace {

constexpr std::array crashSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};

// What a signal handler needs, ready before any signal can come.
std::atomic<bool> gIsActive = false;
termios gSettings;
char gLeaveText[128];
struct sigaction gOldActions[crashSignals.size()];

void append(const char* capability)
{
    // Cursor visible, ordinary screen: the texts that the terminal description gives, without its delays.
    if (capability && reinterpret_cast<std::intptr_t>(capability) != -1)
        std::strncat(gLeaveText, capability, sizeof gLeaveText - std::strlen(gLeaveText) - 1);
}

extern "C" void onCrash(int signal)
{
    TerminalSession::restore();
    for (std::size_t index = 0; index < crashSignals.size(); ++index) {
        if (crashSignals[index] == signal)
            sigaction(signal, &gOldActions[index], nullptr);
    }
    // With the old handler back, the signal comes again.
    raise(signal);
}

void catchCrashes()
{
    struct sigaction action { };
    action.sa_handler = onCrash;
    sigemptyset(&action.sa_mask);
    for (std::size_t index = 0; index < crashSignals.size(); ++index)
        sigaction(crashSignals[index], &action, &gOldActions[index]);
}

void releaseCrashes()
{
    for (std::size_t index = 0; index < crashSignals.size(); ++index)
        sigaction(crashSignals[index], &gOldActions[index], nullptr);
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

void chooseCharacterSet()
{
    if (std::setlocale(LC_CTYPE, "") && std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0)
        return;
    // The blocks of the drawing need it, whatever the user's language is.
    std::setlocale(LC_CTYPE, "C.UTF-8");
}

}

TerminalSession::TerminalSession()
{
    chooseCharacterSet();
    if (tcgetattr(STDIN_FILENO, &gSettings) != 0)
        throw UsageError("standard input is no terminal");
    requireDescription();
    SCREEN* screen = newterm(nullptr, stdout, stdin);
    if (!screen)
        throw UsageError("the terminal can't be used");
    set_term(screen);
    gLeaveText[0] = '\0';
    append(tigetstr("sgr0"));
    append(tigetstr("rmkx"));
    append(tigetstr("cnorm"));
    append(tigetstr("rmcup"));
    gIsActive = true;
    static const int registered = std::atexit(TerminalSession::restore);
    static_cast<void>(registered);
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
    releaseCrashes();
    SCREEN* screen = set_term(nullptr);
    set_term(screen);
    endwin();
    gIsActive = false;
    delscreen(screen);
}

void TerminalSession::resize()
{
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_row > 0 && size.ws_col > 0)
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
    clear();
}

void TerminalSession::restore()
{
    if (!gIsActive.exchange(false))
        return;
    // Only calls that a signal handler may make.
    [[maybe_unused]] const ssize_t written = write(STDOUT_FILENO, gLeaveText, std::strlen(gLeaveText));
    tcsetattr(STDIN_FILENO, TCSANOW, &gSettings);
}

}

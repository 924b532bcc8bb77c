#include "TerminalView.h"

#include "BlockDrawing.h"
#include "Phone.h"
#include "ScreenText.h"
#include "SignalWatch.h"
#include "TerminalSession.h"

#include <UScreenWE1.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <cwchar>
#include <ncurses.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace Simulator {

namespace {

constexpr int GlassWidth = UScreenWE1::Width / 2 + 2;
constexpr int PaneLeft = GlassWidth + 2;
constexpr int NarrowestPane = 26;
constexpr int LowestTerminal = 19; // frame, sixteen lines and the keys
constexpr short GlassColours = 1;
constexpr short FrameColours = 2;
constexpr int ControlC = 3;
constexpr int ControlL = 12;
constexpr int ControlZ = 26;
constexpr const char* KeysHelp = "Arrows  Enter OK  0-9 * #  Backspace left  Del clear  ";
constexpr const char* LeaveHelp = "   q leaves";

void setColours()
{
    if (!has_colors())
        return;
    start_color();
    use_default_colors();
    const bool isRich = COLORS >= 256;
    init_pair(GlassColours, isRich ? 234 : COLOR_BLACK, isRich ? 187 : COLOR_WHITE);
    init_pair(FrameColours, isRich ? 244 : COLOR_WHITE, -1);
}

/// Writes UTF-8 text, at most `columns` characters of it.
void write(int line, int column, const std::string& text, int columns)
{
    std::wstring wide(text.size() + 1, L'\0');
    const char* source = text.c_str();
    std::mbstate_t state{};
    const std::size_t length = std::mbsrtowcs(wide.data(), &source, wide.size(), &state);
    if (length == static_cast<std::size_t>(-1))
        mvaddnstr(line, column, text.c_str(), columns);
    else
        mvaddnwstr(line, column, wide.c_str(), columns);
}

/// The code of the telephone's key for a key of the terminal, or 0.
int telephoneKey(int key)
{
    switch (key) {
    case KEY_LEFT:
    case KEY_BACKSPACE:
    case '\b':
    case 127: return UGlobal::KeyLeft;
    case KEY_RIGHT: return UGlobal::KeyRight;
    case KEY_UP: return UGlobal::KeyUp;
    case KEY_DOWN: return UGlobal::KeyDown;
    case KEY_ENTER:
    case '\n':
    case '\r': return UGlobal::KeyOk;
    case KEY_DC: return UGlobal::KeyClear;
    default: break;
    }
    if (key >= KEY_F(1) && key <= KEY_F(8))
        return UGlobal::KeyFunction1 + (key - KEY_F(1));
    return UGlobal::isDialKey(key) ? key : 0;
}

}

TerminalView::TerminalView(Phone& phone, SignalWatch& signals)
    : mPhone(phone)
    , mSignals(signals)
    , mInput(STDIN_FILENO)
    , mWakeDescriptor(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    mPhone.watch().setObserver([descriptor = mWakeDescriptor] {
        const std::uint64_t one = 1;
        [[maybe_unused]] const ssize_t written = ::write(descriptor, &one, sizeof one);
    });
}

TerminalView::~TerminalView()
{
    mPhone.watch().setObserver({});
    close(mWakeDescriptor);
}

int TerminalView::run()
{
    TerminalSession session;
    setColours();
    while (!mPhone.watch().hasEnded()) {
        draw();
        waitForSomething();
        const bool mustLeave = handleSignals(session) == Command::Leave || handleKeys(session) == Command::Leave;
        const bool isGone = std::exchange(mIsHungUp, false);
        if (!mustLeave && !isGone)
            continue;
        // The phonelet may be in an endless loop of its own: who wants to leave twice need not wait for it.
        if (mIsLeaving) {
            TerminalSession::restore();
            std::_Exit(130);
        }
        mIsLeaving = true;
        mPhone.quit();
    }
    return mSignal;
}

void TerminalView::waitForSomething()
{
    std::array<pollfd, 3> sources{{
        {mInput, POLLIN, 0},
        {mWakeDescriptor, POLLIN, 0},
        {mSignals.descriptor(), POLLIN, 0},
    }};
    const auto time = mRepeat.timeToTick(KeyRepeat::Clock::now());
    constexpr int toLookAgain = 500;
    const int untilNextLook = isWaitingForScreen() ? toLookAgain : -1;
    poll(sources.data(), sources.size(), time ? static_cast<int>(time->count()) : untilNextLook);
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t taken = read(mWakeDescriptor, &count, sizeof count);
    if ((sources[0].revents & (POLLHUP | POLLERR | POLLNVAL)) != 0) {
        mIsHungUp = true;
        mInput = -1; // poll() passes over it from now on
    }
}

TerminalView::Command TerminalView::handleSignals(TerminalSession& session)
{
    while (const int signal = mSignals.take()) {
        if (signal == SIGTSTP) {
            suspend(session);
            continue;
        }
        if (signal != SIGWINCH) {
            mSignal = signal;
            return Command::Leave;
        }
        session.resize();
        clear();
    }
    return Command::None;
}

void TerminalView::suspend(TerminalSession& session)
{
    session.suspend();
    mSignals.stopHere();
    session.resume();
}

TerminalView::Command TerminalView::handleKeys(TerminalSession& session)
{
    const auto now = KeyRepeat::Clock::now();
    post(mRepeat.tick(now));
    for (int key = getch(); key != ERR; key = getch()) {
        if (key == ControlC)
            mSignal = SIGINT;
        if (key == 'q' || key == 'Q' || key == ControlC)
            return Command::Leave;
        if (key == ControlZ)
            suspend(session);
        if (key == ControlL)
            clearok(curscr, TRUE); // draws everything anew, for a terminal that something else has written on
        if (const int code = telephoneKey(key))
            post(mRepeat.typed(code, KeyRepeat::Clock::now()));
    }
    return Command::None;
}

void TerminalView::post(const std::vector<KeyRepeat::Stroke>& strokes)
{
    for (const KeyRepeat::Stroke& stroke : strokes)
        mPhone.key(stroke.key, stroke.state);
}

void TerminalView::draw() const
{
    erase();
    const Snapshot snapshot = mPhone.watch().snapshot();
    if (COLS < GlassWidth || LINES < std::max(LowestTerminal, glassHeight(snapshot) + 1)) {
        drawTooSmall();
    } else {
        drawGlass(snapshot);
        attrset(A_DIM);
        write(glassHeight(snapshot), 1, statusLine(), COLS - 2);
        attrset(A_NORMAL);
        drawText(snapshot.text, glassHeight(snapshot) + 1);
    }
    refresh();
}

std::string TerminalView::statusLine() const
{
    if (mIsLeaving)
        return "Leaving ... (again leaves a phonelet that does not end)";
    if (isWaitingForScreen() && KeyRepeat::Clock::now() - mStart > mPhone.patience())
        return "No screen: " + mPhone.missingScreen();
    return KeysHelp + mPhone.functionKeys() + LeaveHelp;
}

bool TerminalView::isWaitingForScreen() const
{
    return mPhone.watch().snapshot().text.empty();
}

void TerminalView::drawTooSmall() const
{
    write(0, 0,
        "The telephone needs " + std::to_string(GlassWidth) + " columns and " + std::to_string(LowestTerminal)
            + " lines.",
        COLS);
    write(1, 0, "This terminal has " + std::to_string(COLS) + " and " + std::to_string(LINES) + ".", COLS);
    write(2, 0, "Make it larger, or press q to leave.", COLS);
}

int TerminalView::glassHeight(const Snapshot& snapshot) const
{
    return (snapshot.screen.height() + 1) / 2 + 2;
}

void TerminalView::drawGlass(const Snapshot& snapshot) const
{
    const std::vector<std::string> framed = drawFramedBlocks(snapshot.screen);
    attrset(COLOR_PAIR(FrameColours));
    for (std::size_t line = 0; line < framed.size(); ++line)
        write(static_cast<int>(line), 0, framed[line], GlassWidth);
    write(0, 2, " Telephone ", GlassWidth - 4);
    attrset(COLOR_PAIR(GlassColours));
    const std::vector<std::string> glass = drawBlocks(snapshot.screen);
    for (std::size_t line = 0; line < glass.size(); ++line)
        write(static_cast<int>(line) + 1, 1, glass[line], GlassWidth - 2);
    attrset(A_NORMAL);
}

void TerminalView::drawText(const std::string& text, int lineBelow) const
{
    const bool isBeside = COLS >= PaneLeft + NarrowestPane;
    const int left = isBeside ? PaneLeft : 1;
    int line = isBeside ? 0 : lineBelow;
    const int width = COLS - left;
    if (line >= LINES - 1)
        return;
    attrset(A_BOLD);
    write(line++, left, "Screen text", width);
    attrset(A_NORMAL);
    for (const std::string& row : fieldLines(text)) {
        if (line < LINES)
            write(line++, left, row, width);
    }
}

}

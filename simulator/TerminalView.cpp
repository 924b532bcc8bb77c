#include "TerminalView.h"

#include "Phone.h"
#include "ScreenText.h"
#include "SignalWatch.h"
#include "TerminalLayout.h"
#include "TerminalSession.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <cwchar>
#include <ncurses.h>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace Simulator {

namespace {

constexpr short GlassColours = 1;
constexpr short FrameColours = 2;
constexpr short KeyColours = 3;
constexpr short LitKeyColours = 4;
constexpr wchar_t ControlC = 3;
constexpr wchar_t ControlL = 12;
constexpr wchar_t ControlZ = 26;
constexpr wchar_t Escape = 27;
constexpr int RichColours = 256;

void setColours()
{
    if (!has_colors())
        return;
    start_color();
    use_default_colors();
    const bool isRich = COLORS >= RichColours;
    init_pair(GlassColours, isRich ? 234 : COLOR_BLACK, isRich ? 187 : COLOR_WHITE);
    init_pair(FrameColours, isRich ? 244 : COLOR_WHITE, -1);
    init_pair(KeyColours, isRich ? 253 : COLOR_WHITE, isRich ? 238 : -1);
    init_pair(LitKeyColours, isRich ? 16 : COLOR_BLACK, isRich ? 220 : COLOR_YELLOW);
}

chtype attributesOf(Style style)
{
    const auto colours
        = [](short pair, chtype without) { return has_colors() ? static_cast<chtype>(COLOR_PAIR(pair)) : without; };
    switch (style) {
    case Style::Plain: return A_NORMAL;
    case Style::Strong: return A_BOLD;
    case Style::Faint: return A_DIM;
    case Style::Frame: return colours(FrameColours, A_NORMAL);
    case Style::Glass: return colours(GlassColours, A_NORMAL);
    case Style::Key: return colours(KeyColours, A_NORMAL);
    case Style::LitKey: return colours(LitKeyColours, A_REVERSE);
    }
    return A_NORMAL;
}

/// Writes UTF-8 text where the terminal's last text has ended.
void write(const std::string& text, Style style)
{
    std::wstring wide(text.size() + 1, L'\0');
    const char* source = text.c_str();
    std::mbstate_t state{};
    const std::size_t length = std::mbsrtowcs(wide.data(), &source, wide.size(), &state);
    attrset(static_cast<int>(attributesOf(style)));
    if (length == static_cast<std::size_t>(-1))
        addstr(text.c_str());
    else
        addwstr(wide.c_str());
}

/// Puts the canvas on the terminal, the characters of one style at a time.
void show(const TextCanvas& canvas)
{
    erase();
    for (int line = 0; line < canvas.lines(); ++line) {
        for (int column = 0; column < canvas.columns();) {
            const Style style = canvas.at(line, column).style;
            move(line, column);
            std::string text;
            for (; column < canvas.columns() && canvas.at(line, column).style == style; ++column)
                text += canvas.at(line, column).text;
            write(text, style);
        }
    }
    refresh();
}

}

TerminalView::TerminalView(Phone& phone, SignalWatch& signals, TerminalSession& session, WakeSignal& wake)
    : mPhone(phone)
    , mSignals(signals)
    , mSession(session)
    , mWake(wake)
    , mPages(session.output())
    , mInput(STDIN_FILENO)
{
    setColours();
    mPhone.watch().setObserver([this] { mWake.set(); });
    mPhone.desktop().setObserver([this] { mWake.set(); });
}

TerminalView::~TerminalView()
{
    mPhone.desktop().setObserver({});
    mPhone.watch().setObserver({});
}

int TerminalView::run()
{
    while (!mPhone.watch().hasEnded()) {
        draw();
        waitForSomething();
        const bool mustLeave = handleSignals() == Command::Leave || handleKeys() == Command::Leave;
        if (std::exchange(mIsHungUp, false) || mustLeave)
            leave();
    }
    return mSignal;
}

void TerminalView::leave()
{
    // The phonelet may be in an endless loop of its own: who wants to leave twice need not wait for it.
    if (mIsLeaving) {
        TerminalSession::restore();
        std::_Exit(SignalWatch::ExitCodes + (mSignal != 0 ? mSignal : SIGINT));
    }
    mIsLeaving = true;
    mPhone.quit();
}

void TerminalView::waitForSomething()
{
    std::array<pollfd, 3> sources{{
        {mInput, POLLIN, 0},
        {mWake.descriptor(), POLLIN, 0},
        {mSignals.descriptor(), POLLIN, 0},
    }};
    const auto time = mRepeat.timeToTick(KeyRepeat::Clock::now());
    constexpr int toLookAgain = 500;
    const int untilNextLook = isWaitingForScreen() ? toLookAgain : -1;
    poll(sources.data(), sources.size(), time ? static_cast<int>(time->count()) : untilNextLook);
    mWake.clear();
    if ((sources[0].revents & (POLLHUP | POLLERR | POLLNVAL)) != 0) {
        mIsHungUp = true;
        mInput = -1; // poll() passes over it from now on
    }
}

TerminalView::Command TerminalView::handleSignals()
{
    while (const int signal = mSignals.take()) {
        switch (signal) {
        case SIGTSTP: suspend(); break;
        case SIGCONT: mSession.resume(); break; // whoever had the terminal meanwhile has changed it
        case SIGWINCH: mSession.resize(); break;
        default: mSignal = signal; return Command::Leave;
        }
    }
    return Command::None;
}

void TerminalView::suspend()
{
    mSession.suspend();
    mSignals.stopHere();
    mSession.resume();
}

TerminalView::Command TerminalView::handleKeys()
{
    post(mRepeat.tick(KeyRepeat::Clock::now()));
    while (const std::optional<TerminalKey> key = TerminalKey::read()) {
        if (handle(*key) == Command::Leave)
            return Command::Leave;
    }
    return Command::None;
}

TerminalView::Command TerminalView::handle(const TerminalKey& key)
{
    if (key.isCharacter(ControlL))
        clearok(curscr, TRUE); // draws everything anew, for a terminal that something else has written on
    if (key.isCharacter(ControlL) || key.isSpecial(KEY_RESIZE))
        return Command::None;
    mMessage.clear();
    if (key.isCharacter('q') || key.isCharacter('Q'))
        return Command::Leave;
    if (key.isCharacter(ControlC)) {
        mSignal = SIGINT;
        return Command::Leave;
    }
    if (key.isCharacter(ControlZ))
        suspend();
    else if (!handleForPage(key))
        handleForTelephone(key);
    return Command::None;
}

/// True if the key was meant for a page.
bool TerminalView::handleForPage(const TerminalKey& key)
{
    using Kind = TerminalPages::Kind;
    if (key.isCharacter('t') || key.isCharacter('T'))
        mPages.toggle(Kind::Text);
    else if (key.isCharacter('o') || key.isCharacter('O'))
        mPages.toggle(Kind::Output);
    else if (key.isCharacter('?'))
        mPages.toggle(Kind::Keys);
    else if (!mPages.isOpen())
        return false;
    else if (key.isCharacter(Escape))
        mPages.close();
    else if (key.isSpecial(KEY_PPAGE) || key.isSpecial(KEY_NPAGE))
        mPages.scrollPage(key.isSpecial(KEY_PPAGE) ? -1 : 1);
    else if (key.isSpecial(KEY_HOME))
        mPages.scrollToStart();
    else if (key.isSpecial(KEY_END))
        mPages.scrollToEnd();
    else if (isPageInFront() && (key.isSpecial(KEY_UP) || key.isSpecial(KEY_DOWN)))
        mPages.scrollBy(key.isSpecial(KEY_UP) ? -1 : 1);
    else
        return false;
    return true;
}

void TerminalView::handleForTelephone(const TerminalKey& key)
{
    const int code = key.telephoneKey();
    if (code == 0)
        mMessage = key.name() + " does nothing; ? shows the keys";
    else if (isPageInFront())
        mMessage = "The telephone is behind this page; Esc closes it";
    else
        post(mRepeat.typed(code, KeyRepeat::Clock::now()));
}

void TerminalView::post(const std::vector<KeyRepeat::Stroke>& strokes)
{
    for (const KeyRepeat::Stroke& stroke : strokes)
        mPhone.key(stroke.key, stroke.state);
}

void TerminalView::draw()
{
    TerminalState drawn = state();
    const TerminalLayout layout = layOut(drawn, COLS, LINES, mSession.characters());
    drawn.page = mPages.page(layout.page, drawn.screen);
    drawn.status = statusLine(layout, drawn.screen);
    show(drawTerminal(drawn, COLS, LINES, mSession.characters()));
}

TerminalState TerminalView::state()
{
    TerminalState state;
    state.screen = mPhone.watch().snapshot();
    state.desktop = mPhone.desktop().snapshot();
    state.functionKeys = mPhone.functionKeyLabels();
    state.pressedKey = mRepeat.pressedKey();
    return state;
}

std::string TerminalView::statusLine(const TerminalLayout& layout, const Snapshot& screen) const
{
    if (mIsLeaving)
        return "Leaving ... (again leaves a phonelet that does not end)";
    if (!mMessage.empty())
        return mMessage;
    if (isWaitingForScreen() && KeyRepeat::Clock::now() - mStart > mPhone.patience())
        return "No screen: " + mPhone.missingScreen();
    const std::uint64_t newLines = mPages.newLines();
    const std::string output = newLines > 0 ? "o output (" + std::to_string(newLines) + " new)   " : "o output   ";
    if (layout.text.isEmpty())
        return "? keys   " + (newLines > 0 ? output : "") + "│ " + valuesInOneLine(topmostBlock(screen.text));
    const std::string keys = "? keys   t text   " + output + (mPages.isOpen() ? "Esc closes   " : "") + "q leaves";
    return keys + (layout.glass.isEmpty() ? "   " + missingGlass() : "");
}

/// Why the glass is not drawn.
std::string TerminalView::missingGlass() const
{
    switch (mSession.characters()) {
    case GlassCharacters::Quarters: return "No room for the glass";
    case GlassCharacters::Halves: return "The glass needs 162 columns here";
    case GlassCharacters::None: break;
    }
    return "No glass in this terminal; try --serve";
}

bool TerminalView::isWaitingForScreen() const
{
    return mPhone.watch().snapshot().text.empty();
}

/// True while an open page covers the telephone.
bool TerminalView::isPageInFront() const
{
    TerminalState shown;
    shown.screen = mPhone.watch().snapshot();
    return mPages.isOpen() && !layOut(shown, COLS, LINES, mSession.characters()).isPageApart;
}

}

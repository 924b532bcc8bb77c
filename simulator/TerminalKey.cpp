#include "TerminalKey.h"

#include "Printable.h"

#include <Types.h>

#include <climits>
#include <cwchar>
#include <ncurses.h>

namespace Simulator {

namespace {

constexpr wint_t Escape = 27;
constexpr wint_t Delete = 127;

/// Takes the rest of a sequence, if that is what follows an Escape at once.
bool takeSequence()
{
    wint_t next = 0;
    if (get_wch(&next) == ERR)
        return false;
    if (next == 'O')
        return get_wch(&next) != ERR;
    if (next != '[') {
        unget_wch(static_cast<wchar_t>(next)); // Alt and a key, or Escape and then that key
        return false;
    }
    const auto isLast = [](wint_t character) { return character >= '@' && character <= '~'; };
    while (get_wch(&next) != ERR && !isLast(next)) { }
    return true;
}

}

std::optional<TerminalKey> TerminalKey::read()
{
    wint_t code = 0;
    switch (get_wch(&code)) {
    case ERR: return std::nullopt;
    case KEY_CODE_YES: return TerminalKey(Kind::Special, static_cast<int>(code));
    default: break;
    }
    if (code == Escape && takeSequence())
        return TerminalKey(Kind::Unknown, 0);
    return TerminalKey(Kind::Character, static_cast<int>(code));
}

int TerminalKey::telephoneKey() const
{
    if (mKind == Kind::Character) {
        switch (mCode) {
        case '\b':
        case Delete: return UGlobal::KeyLeft;
        case '\n':
        case '\r': return UGlobal::KeyOk;
        default: return UGlobal::isDialKey(mCode) ? mCode : 0;
        }
    }
    if (mKind == Kind::Unknown)
        return 0;
    switch (mCode) {
    case KEY_LEFT:
    case KEY_BACKSPACE: return UGlobal::KeyLeft;
    case KEY_RIGHT: return UGlobal::KeyRight;
    case KEY_UP: return UGlobal::KeyUp;
    case KEY_DOWN: return UGlobal::KeyDown;
    case KEY_ENTER: return UGlobal::KeyOk;
    case KEY_DC: return UGlobal::KeyClear;
    default: break;
    }
    return mCode >= KEY_F(1) && mCode <= KEY_F(8) ? UGlobal::KeyFunction1 + (mCode - KEY_F(1)) : 0;
}

std::string TerminalKey::name() const
{
    if (mKind == Kind::Unknown)
        return "This key";
    if (mKind == Kind::Special) {
        const char* known = keyname(mCode);
        const std::string name = known ? printable(known) : "";
        return name.starts_with("KEY_") ? name.substr(4) : "This key";
    }
    if (mCode == Escape)
        return "Esc";
    if (mCode == '\t')
        return "Tab";
    if (mCode == ' ')
        return "Space";
    if (mCode > 0 && mCode < ' ')
        return std::string("Ctrl-") + static_cast<char>(mCode + '@');
    char bytes[MB_LEN_MAX + 1] = {};
    std::mbstate_t state{};
    const bool isKnown = std::wcrtomb(bytes, static_cast<wchar_t>(mCode), &state) != static_cast<std::size_t>(-1);
    return isKnown ? printable(bytes) : "This key";
}

}

#pragma once

#include <optional>
#include <string>

namespace Simulator {

/// A key of the terminal, as its user has pressed it.
class TerminalKey {
public:
    enum class Kind { Character, Special, Unknown };

    /// The next key that waits; nothing if none does. Sequences that no key of the terminal's description sends are
    /// one unknown key, not the characters of which they are made.
    static std::optional<TerminalKey> read();

    bool isCharacter(wchar_t character) const
    {
        return mKind == Kind::Character && mCode == static_cast<int>(character);
    }

    /// `code` is one of the KEY_ numbers of the terminal library.
    bool isSpecial(int code) const { return mKind == Kind::Special && mCode == code; }

    /// The code of the telephone's key, or 0.
    int telephoneKey() const;

    /// How it is called in a message.
    std::string name() const;

private:
    TerminalKey(Kind kind, int code)
        : mKind(kind)
        , mCode(code)
    {
    }

    Kind mKind;
    int mCode;
};

}

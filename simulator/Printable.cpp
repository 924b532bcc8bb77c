#include "Printable.h"

#include <algorithm>

namespace Simulator {

namespace {

/// The length of the character at the beginning, or 0 if there is none that may be printed.
std::size_t lengthOfCharacter(std::string_view text)
{
    const auto byte = [&text](std::size_t place) { return static_cast<unsigned char>(text[place]); };
    if (byte(0) < 0x80)
        return byte(0) < 0x20 || byte(0) == 0x7F ? 0 : 1;
    const std::size_t length = byte(0) >= 0xF0 ? 4 : byte(0) >= 0xE0 ? 3 : 2;
    if (byte(0) < 0xC2 || byte(0) > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t place = 1; place < length; ++place) {
        if ((byte(place) & 0xC0) != 0x80)
            return 0;
    }
    // Too long a form, a surrogate, beyond the last character, or one of the control characters from U+0080 on.
    const unsigned char second = byte(1);
    const bool isWrong = (byte(0) == 0xE0 && second < 0xA0) || (byte(0) == 0xED && second > 0x9F)
        || (byte(0) == 0xF0 && second < 0x90) || (byte(0) == 0xF4 && second > 0x8F)
        || (byte(0) == 0xC2 && second < 0xA0);
    return isWrong ? 0 : length;
}

}

std::string printable(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const std::size_t length = lengthOfCharacter(text);
        result += length == 0 ? "?" : text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

}

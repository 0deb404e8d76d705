#include "support/utf8.h"

#include <algorithm>

namespace vantrix {
namespace {

/// The shape of a sequence, by its first byte.
struct Lead {
    std::size_t length = 0; // 0: no sequence begins with this byte
    char32_t bits = 0;
    char32_t least = 0; // a smaller value has a shorter form, and only that is valid
};

Lead leadOf(unsigned char byte) {
    if (byte < 0x80)
        return {1, byte, 0};
    if ((byte & 0xe0) == 0xc0)
        return {2, byte & 0x1fu, 0x80};
    if ((byte & 0xf0) == 0xe0)
        return {3, byte & 0x0fu, 0x800};
    if ((byte & 0xf8) == 0xf0)
        return {4, byte & 0x07u, 0x10000};
    return {};
}

struct Sequence {
    std::size_t length = 0; // 0: none that is valid
    char32_t value = 0;
};

/// The valid sequence that `text` begins with.
Sequence sequenceAt(std::string_view text) {
    const Lead lead = leadOf(static_cast<unsigned char>(text.front()));
    if (lead.length == 0 || lead.length > text.size())
        return {};
    char32_t value = lead.bits;
    for (const char c : text.substr(1, lead.length - 1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xc0) != 0x80)
            return {};
        value = (value << 6) | (byte & 0x3fu);
    }
    const bool isSurrogate = value >= 0xd800 && value <= 0xdfff;
    const bool isValid = value >= lead.least && value <= 0x10ffff && !isSurrogate;
    return isValid ? Sequence{lead.length, value} : Sequence();
}

bool steersTerminal(char32_t c) {
    const bool isControl = (c < 0x20 && c != '\n') || (c >= 0x7f && c < 0xa0) || c == 0x2028 || c == 0x2029;
    const bool isDirection =
        c == 0x61c || c == 0x200e || c == 0x200f || (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
    return isControl || isDirection;
}

/// As most of any text.
bool isPlain(char c) {
    return c >= ' ' && c < 0x7f;
}

} // namespace

std::string repairedUTF8(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = sequenceAt(text).length;
        if (length == 0)
            result += "\xef\xbf\xbd";
        else
            result += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

std::string withoutTerminalControls(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto plain = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
        result += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            break;
        const Sequence sequence = sequenceAt(text);
        if (sequence.length > 0 && !steersTerminal(sequence.value))
            result += text.substr(0, sequence.length);
        text.remove_prefix(sequence.length == 0 ? 1 : sequence.length);
    }
    return result;
}

} // namespace vantrix

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "support/integer.h"

namespace vantrix {

/// Takes the next line, without its line feed, off the front of `text`. Absent when none is left, or only one that was
/// cut short: `text` then still holds it.
inline std::optional<std::string_view> takeLine(std::string_view& text) {
    const auto length = text.find('\n');
    if (length == std::string_view::npos)
        return std::nullopt;
    const auto line = text.substr(0, length);
    text.remove_prefix(length + 1);
    return line;
}

/// The value of a line "KEY=value" of a uevent file, whose last line may lack its end; empty without one.
inline std::string_view ueventValue(std::string_view text, std::string_view key) {
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        if (line.size() > key.size() && line.starts_with(key) && line[key.size()] == '=')
            return line.substr(key.size() + 1);
        text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
    }
    return {};
}

/// Walks over the fields of one line, which are separated by blanks and tabs.
class Fields {
  public:
    explicit Fields(std::string_view line) : at_(line.data()), end_(line.data() + line.size()) {}

    /// The next field; empty when none is left.
    std::string_view next() {
        skipBlanks();
        const char* const begin = at_;
        while (at_ != end_ && !isBlank(*at_))
            ++at_;
        return {begin, static_cast<std::size_t>(at_ - begin)};
    }

    /// What has not been walked over yet.
    std::string_view rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }

    void skip(int count) {
        for (; count > 0; --count)
            next();
    }

    /// The next field as a decimal number. Absent when none is left, when it is not made of digits alone, and when it
    /// needs more than 64 bits.
    std::optional<std::uint64_t> number() {
        const auto field = takeDigits();
        if (at_ != end_ && !isBlank(*at_)) {
            next();
            return std::nullopt;
        }
        if (field.length <= alwaysFits)
            return field.length > 0 ? std::optional(field.value) : std::nullopt;
        return parseInteger<std::uint64_t>({at_ - field.length, static_cast<std::size_t>(field.length)});
    }

  private:
    // Control characters separate too, so that one comparison is enough: this is the hottest loop of a pass.
    static bool isBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

    struct Digits {
        std::uint64_t value = 0; // wrapped where there are more digits than fit
        std::ptrdiff_t length = 0;
    };

    Digits takeDigits() {
        skipBlanks();
        const char* const begin = at_;
        std::uint64_t value = 0;
        for (; at_ != end_; ++at_) {
            const auto digit = static_cast<unsigned>(*at_) - unsigned{'0'};
            if (digit > 9)
                break;
            value = value * 10 + digit;
        }
        return {value, at_ - begin};
    }

    void skipBlanks() {
        while (at_ != end_ && isBlank(*at_))
            ++at_;
    }

    static constexpr std::ptrdiff_t alwaysFits = 19; // decimal digits, in 64 bits

    const char* at_;
    const char* end_;
};

} // namespace vantrix

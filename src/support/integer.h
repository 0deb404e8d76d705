#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrix {

/// Takes a number, which may be negative where `Integer` can, off the front of `text`. Absent when there is none, or
/// none that fits; `text` then stays as it is.
template<typename Integer = std::int64_t>
std::optional<Integer> takeInteger(std::string_view& text, int base = 10) {
    Integer value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

/// The number that is all of `text` but for `ending`, which has to be there.
template<typename Integer = std::int64_t>
std::optional<Integer> parseInteger(std::string_view text, std::string_view ending = {}, int base = 10) {
    const auto value = takeInteger<Integer>(text, base);
    return text == ending ? value : std::nullopt;
}

/// The number of a line, with or without its line feed.
template<typename Integer = std::int64_t>
std::optional<Integer> parseIntegerLine(std::string_view line) {
    if (line.ends_with('\n'))
        line.remove_suffix(1);
    return parseInteger<Integer>(line);
}

} // namespace vantrix

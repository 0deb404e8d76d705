#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrix {

/// Takes a decimal number, which may be negative, off the front of `text`. Absent when there is none within 64 bits;
/// `text` then stays as it is.
inline std::optional<std::int64_t> takeNumber(std::string_view& text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

/// The number that a file of one value holds, with or without its line feed.
inline std::optional<std::int64_t> parseNumber(std::string_view text) {
    const auto value = takeNumber(text);
    return text.empty() || text == "\n" ? value : std::nullopt;
}

} // namespace vantrix

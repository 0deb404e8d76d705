#include "doctor/wrapped_text.h"

#include <algorithm>

namespace vantrix {

std::size_t lengthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string padded(std::string_view text, std::size_t width) {
    const std::size_t length = lengthOf(text);
    return std::string(text) + std::string(width - std::min(width, length), ' ');
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const auto word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word.empty())
            continue;
        if (!lines.empty() && lengthOf(lines.back()) + 1 + lengthOf(word) <= width)
            lines.back().append(" ").append(word);
        else
            lines.emplace_back(word);
    }
    return lines;
}

} // namespace vantrix

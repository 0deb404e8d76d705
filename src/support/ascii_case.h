#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace vantrix {

/// The small form of an ASCII letter, any other character as it is: whatever the process's locale is.
constexpr char loweredASCII(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The capital form of an ASCII letter, any other character as it is.
constexpr char raisedASCII(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline std::string loweredASCII(std::string_view text) {
    std::string lowered(text);
    std::transform(lowered.begin(), lowered.end(), lowered.begin(), [](char c) { return loweredASCII(c); });
    return lowered;
}

inline std::string raisedASCII(std::string_view text) {
    std::string raised(text);
    std::transform(raised.begin(), raised.end(), raised.begin(), [](char c) { return raisedASCII(c); });
    return raised;
}

} // namespace vantrix

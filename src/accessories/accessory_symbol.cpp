#include "accessories/accessory_symbol.h"

#include <algorithm>
#include <utility>

namespace vantrix {

std::string loweredASCII(std::string_view text) {
    std::string lowered(text);
    std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lowered;
}

std::string symbolForAccessory(std::string_view name) {
    constexpr std::pair<std::string_view, const char*> words[] = {
        {"airpods", "airpods"},         {"keyboard", "keyboard"},    {"mouse", "computermouse"},
        {"trackball", "computermouse"}, {"headphone", "headphones"}, {"headset", "headphones"},
        {"earphone", "headphones"},     {"earbud", "headphones"},
    };
    const std::string lowered = loweredASCII(name);
    for (const auto& [word, symbol] : words) {
        if (lowered.find(word) != std::string::npos)
            return symbol;
    }
    return "dot.radiowaves.left.and.right";
}

} // namespace vantrix

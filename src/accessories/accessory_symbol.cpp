#include "accessories/accessory_symbol.h"

#include <utility>

#include "support/ascii_case.h"

namespace vantrix {

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
    return unspecificSymbol;
}

} // namespace vantrix

#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// The symbol of an accessory that could be anything.
inline constexpr const char* unspecificSymbol = "dot.radiowaves.left.and.right";

/// Name of the symbol that pictures an accessory, by words in its name.
std::string symbolForAccessory(std::string_view name);

} // namespace vantrix

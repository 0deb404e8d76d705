#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// Name of the symbol that pictures an accessory, by words in its name.
std::string symbolForAccessory(std::string_view name);

} // namespace vantrix

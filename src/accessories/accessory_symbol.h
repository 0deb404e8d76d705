#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// ASCII letters in lower case, the rest as it is.
std::string loweredASCII(std::string_view text);

/// Name of the symbol that pictures an accessory, by words in its name.
std::string symbolForAccessory(std::string_view name);

} // namespace vantrix

#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// Writes all of `bytes`, also past interruptions. False on failure; errno tells why.
bool writeAll(int file, std::string_view bytes);

/// For mkstemp: a name beside `path` that no listing shows. The six letters at its end are what mkstemp replaces.
std::string hiddenPattern(std::string_view path);

} // namespace vantrix

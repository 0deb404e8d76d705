#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// `text` with every byte that is part of no valid UTF-8 sequence replaced by U+FFFD.
std::string repairedUTF8(std::string_view text);

/// `text` without the characters that steer a terminal or turn the direction of what follows; line feeds stay. Names of
/// devices and networks may hold anything.
std::string withoutTerminalControls(std::string_view text);

} // namespace vantrix

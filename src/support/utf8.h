#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// `text` with every byte that is part of no valid UTF-8 sequence replaced by U+FFFD.
std::string repairedUTF8(std::string_view text);

} // namespace vantrix

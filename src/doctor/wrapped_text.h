#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

/// Characters of a UTF-8 text.
std::size_t lengthOf(std::string_view text);

/// `text` with blanks behind it, `width` characters long or longer.
std::string padded(std::string_view text, std::size_t width);

/// The text in lines of at most `width` characters, broken at blanks; a longer word keeps its length, so that a path
/// or a command can be copied.
std::vector<std::string> wrapped(std::string_view text, std::size_t width);

} // namespace vantrix

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantrix {

/// The group whose settings the program shares, out of the list that it is signed for: the first one. Absent for an
/// empty list, and for a list that does not hold texts alone (an absent member).
std::optional<std::string> sharedGroup(const std::vector<std::optional<std::string>>& listed);

} // namespace vantrix

#include "support/application_group.h"

#include <algorithm>

namespace vantrix {

std::optional<std::string> sharedGroup(const std::vector<std::optional<std::string>>& listed) {
    const bool areTexts =
        std::all_of(listed.begin(), listed.end(), [](const auto& group) { return group.has_value(); });
    return areTexts && !listed.empty() ? listed.front() : std::nullopt;
}

} // namespace vantrix

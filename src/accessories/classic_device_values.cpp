#include "accessories/classic_device_values.h"

#include <algorithm>

#include "support/ascii_case.h"

namespace vantrix {

std::string addressWithColons(std::string_view address) {
    std::string result = raisedASCII(address);
    std::replace(result.begin(), result.end(), '-', ':');
    return result;
}

std::optional<int> publishedLevel(int percent) {
    return percent > 0 ? std::optional(percent) : std::nullopt;
}

} // namespace vantrix

#include "accessories/classic_device_values.h"

namespace vantrix {

std::string addressWithColons(std::string_view address) {
    std::string result(address);
    for (char& letter : result) {
        if (letter == '-')
            letter = ':';
        else if (letter >= 'a' && letter <= 'f')
            letter = static_cast<char>(letter - 'a' + 'A');
    }
    return result;
}

std::optional<int> publishedLevel(int percent) {
    return percent > 0 ? std::optional(percent) : std::nullopt;
}

} // namespace vantrix

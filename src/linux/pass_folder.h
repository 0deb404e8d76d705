#pragma once

#include <string>

namespace vantrix {

/// Where a pass of a capture lies: in the capture itself before the first, then in its folders "pass-001", "pass-002".
inline std::string passFolder(const std::string& capture, int pass) {
    std::string number = std::to_string(pass);
    number.insert(0, number.size() < 3 ? 3 - number.size() : 0, '0');
    return pass == 0 ? capture : capture + "/pass-" + number;
}

} // namespace vantrix

#pragma once

#include <algorithm>
#include <string_view>

namespace vantrix {

/// An entry of <sys>/class/drm that is a GPU: "card0", but not its connectors "card0-HDMI-A-1".
inline bool isGPUCard(std::string_view name) {
    return name.size() > 4 && name.starts_with("card") &&
           name.find_first_not_of("0123456789", 4) == std::string_view::npos;
}

/// An entry of <sys>/class/devfreq that is a GPU: memory controllers and buses scale their frequency too.
inline bool isGPUFrequency(std::string_view name) {
    return name.find("gpu") != std::string_view::npos || name.find("mali") != std::string_view::npos;
}

/// An entry of a PCI driver's folder that is a device, "0000:01:00.0".
inline bool isPCIAddress(std::string_view name) {
    return std::count(name.begin(), name.end(), ':') == 2;
}

} // namespace vantrix

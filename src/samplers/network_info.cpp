#include "samplers/network_info.h"

namespace vantrix {

const char* wordOf(NetworkInfo::Kind kind) {
    constexpr const char* words[] = {"wifi", "ethernet", "other", "offline"};
    return words[static_cast<int>(kind)];
}

std::optional<std::string_view> signalQuality(std::optional<int> rssi) {
    if (!rssi)
        return std::nullopt;
    if (*rssi >= -50)
        return "Excellent";
    if (*rssi >= -60)
        return "Good";
    return *rssi >= -70 ? "Fair" : "Weak";
}

} // namespace vantrix

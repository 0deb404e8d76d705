#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrix {

/// The machine's present network connection.
struct NetworkInfo {
    enum class Kind { wifi, ethernet, other, offline };

    Kind kind = Kind::offline;
    std::optional<std::string> interface;   ///< the primary interface's name
    std::optional<std::string> displayName; ///< what the system calls it
    std::optional<std::string> localIP;     ///< IPv4, numeric
    std::optional<std::string> ssid;        ///< Wi-Fi network name
    std::optional<int> rssi;                ///< received signal strength, dBm
    std::optional<int> noise;               ///< dBm
    std::optional<double> linkSpeedMbps;    ///< transmit rate, Mbit/s
    bool ssidHiddenByPrivacy = false;       ///< associated, but the system withheld the name
    std::optional<std::string> debug;       ///< why Wi-Fi details are missing

    bool operator==(const NetworkInfo&) const = default;
};

/// "wifi", "ethernet", "other" or "offline".
const char* wordOf(NetworkInfo::Kind kind);

/// An English word for a signal of `rssi` dBm; absent when its strength is unknown.
std::optional<std::string_view> signalQuality(std::optional<int> rssi);

} // namespace vantrix

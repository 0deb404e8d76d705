#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantrix {

/// The system's Wi-Fi client, CoreWLAN, which is Objective-C only. One caller at a time.
class WiFiClient {
  public:
    struct Details {
        int rssi = 0;                             ///< dBm (rssiValue); 0 when not associated
        int noise = 0;                            ///< dBm (noiseMeasurement); 0 when not associated
        double transmitRate = 0.0;                ///< Mbit/s (transmitRate); 0 when not associated
        std::optional<std::string> ssid;          ///< absent when not associated, or without location access
        std::optional<std::string> interfaceName; ///< "en0"
    };

    virtual ~WiFiClient() = default;
    /// Absent when the machine has no Wi-Fi interface of this name (interfaceWithName:).
    virtual std::optional<Details> read(std::string_view name) = 0;
    /// Replaces the client, as is needed after location access has changed.
    virtual void renew() = 0;
};

/// Null when there is none.
std::unique_ptr<WiFiClient> makeWiFiClient();

} // namespace vantrix

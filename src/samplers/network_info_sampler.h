#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "samplers/network_info.h"

namespace vantrix {

/// Describes the connection that carries the default route.
class NetworkInfoSampler {
  public:
    enum class AddressFamily { ipv4, ipv6 };
    enum class InterfaceType { ieee80211, ethernet, other };

    /// One of the system's network interfaces. A source's texts are valid until its next `refresh`.
    struct Interface {
        InterfaceType type = InterfaceType::other;
        std::optional<std::string_view> displayName; ///< for people, in their language
    };

    /// What the Wi-Fi client knows about one interface.
    struct WiFi {
        int rssi = 0;              ///< dBm; 0 when unknown
        int noise = 0;             ///< dBm; 0 when unknown
        double transmitRate = 0.0; ///< Mbit/s; 0 when unknown
        std::optional<std::string_view> ssid;
        std::optional<std::string_view> interfaceName;
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Called once at the start of each sample. False when the system cannot be asked at all.
        virtual bool refresh() = 0;
        /// The interface that carries a family's connections.
        virtual std::optional<std::string_view> primaryInterface(AddressFamily family) = 0;
        /// The first IPv4 address of the interface in the system's order, numeric.
        virtual std::optional<std::string_view> ipv4Address(std::string_view interface) = 0;
        /// Absent when the system's list has no such interface.
        virtual std::optional<Interface> describe(std::string_view interface) = 0;
        /// Absent when the Wi-Fi client has no such interface.
        virtual std::optional<WiFi> wifi(std::string_view interface) = 0;
        /// Why `wifi` last answered nothing, where the system says; else empty.
        virtual std::string_view missingWiFiReason() const { return {}; }
        /// True where the system hides network names from programs without location access.
        virtual bool hidesNetworkNames() const = 0;
        /// Starts over with a fresh Wi-Fi client, needed after the authorisation changed.
        virtual void renewWiFiClient() {}
    };

    /// `source` outlives the sampler.
    explicit NetworkInfoSampler(Source& source) : source_(source) {}

    /// The present connection, valid until the next call. `granted` and the raw `status` of location access only serve
    /// the diagnostic line. One caller at a time.
    const NetworkInfo& sample(bool granted, std::int32_t status);

    void renewWiFiClient() { source_.renewWiFiClient(); }

  private:
    std::optional<std::string_view> primaryInterface();
    void describe(std::string_view interface);
    void addWiFi(std::string_view interface, bool granted, std::int32_t status);
    void clearWiFi();
    void explainMissingClient(std::string_view interface);
    void explainHiddenName(std::string_view interface, bool granted, std::int32_t status);

    Source& source_;
    NetworkInfo info_; // reused for the memory of its texts: every sample sets each field
};

} // namespace vantrix

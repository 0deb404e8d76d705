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

    /// One of the system's network interfaces. Texts of a source hold until its next `refresh`.
    struct Interface {
        InterfaceType type = InterfaceType::other;
        std::optional<std::string_view> displayName; ///< as people know it, in their language
    };

    /// What the Wi-Fi client tells of one interface.
    struct WiFi {
        int rssi = 0;              ///< dBm; 0 when not known
        int noise = 0;             ///< dBm; 0 when not known
        double transmitRate = 0.0; ///< Mbit/s; 0 when not known
        std::optional<std::string_view> ssid;
        std::optional<std::string_view> interfaceName;
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Called once before the questions of a sample. False when the system cannot be asked at all.
        virtual bool refresh() = 0;
        /// Which interface carries the connections of a family.
        virtual std::optional<std::string_view> primaryInterface(AddressFamily family) = 0;
        /// The first IPv4 address of the interface in the system's order, numeric.
        virtual std::optional<std::string_view> ipv4Address(std::string_view interface) = 0;
        /// Absent when the system's list has no such interface.
        virtual std::optional<Interface> describe(std::string_view interface) = 0;
        /// Absent when the Wi-Fi client has no such interface.
        virtual std::optional<WiFi> wifi(std::string_view interface) = 0;
        /// Why the last answer of `wifi` is absent, where the system tells; else empty.
        virtual std::string_view missingWiFiReason() const { return {}; }
        /// True where the system keeps network names from programs that may not know the location.
        virtual bool hidesNetworkNames() const = 0;
        /// Starts over with a fresh Wi-Fi client, as a changed authorisation demands.
        virtual void renewWiFiClient() {}
    };

    /// `source` outlives the sampler.
    explicit NetworkInfoSampler(Source& source) : source_(source) {}

    /// The present connection; holds until the next call. `granted` and the raw `status` of location access only serve
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
    NetworkInfo info_; // kept for the memory of its texts alone: every sample sets each field
};

} // namespace vantrix

#pragma once

#include <memory>

#include "linux/network/background_wifi.h"
#include "linux/network/default_routes.h"
#include "samplers/network_info_sampler.h"

namespace vantrix {

/// The connection, from the default routes, <sys>/class/net and nl80211.
class LinuxNetworkInfo : public NetworkInfoSampler::Source {
  public:
    /// `fallback`, which may be null, takes over for good when `routes` does not work from the start. `wifi` is null
    /// for another machine's trees; Wi-Fi details are then not asked for.
    LinuxNetworkInfo(std::string sys, std::unique_ptr<DefaultRoutes> routes, std::unique_ptr<DefaultRoutes> fallback,
                     std::unique_ptr<WiFiReader> wifi);

    bool refresh() override;
    std::optional<std::string_view> primaryInterface(NetworkInfoSampler::AddressFamily family) override;
    std::optional<std::string_view> ipv4Address(std::string_view interface) override;
    std::optional<NetworkInfoSampler::Interface> describe(std::string_view interface) override;
    std::optional<NetworkInfoSampler::WiFi> wifi(std::string_view interface) override;
    std::string_view missingWiFiReason() const override { return reason_; }
    bool hidesNetworkNames() const override { return false; }

  private:
    const DefaultRoute* routeOver(std::string_view interface) const;
    bool isOutdated(std::string_view interface) const;
    void lookUp(std::string_view interface);

    std::string sys_;
    std::unique_ptr<DefaultRoutes> routes_;
    std::unique_ptr<DefaultRoutes> fallback_;
    std::unique_ptr<BackgroundWiFi> wifi_;
    std::string_view reason_;

    // The interface described last, which is looked up anew after each change of routes or links.
    std::string described_;
    int describedIndex_ = 0;
    std::uint64_t describedAt_ = 0;
    std::string folder_;
    std::uint64_t folderNumber_ = 0;
    std::optional<NetworkInfoSampler::InterfaceType> type_; // absent: no such link
    std::string displayName_;
};

} // namespace vantrix

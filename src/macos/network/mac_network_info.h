#pragma once

#include <array>
#include <memory>
#include <string>

#include <SystemConfiguration/SystemConfiguration.h>

#include "macos/kernel/cf_ref.h"
#include "macos/network/wifi_client.h"
#include "samplers/network_info_sampler.h"

namespace vantrix {

/// The dynamic store (State:/Network/Global/…), the system's list of interfaces, their addresses, and CoreWLAN.
class MacNetworkInfo : public NetworkInfoSampler::Source {
  public:
    bool refresh() override;
    std::optional<std::string_view> primaryInterface(NetworkInfoSampler::AddressFamily family) override;
    std::optional<std::string_view> ipv4Address(std::string_view interface) override;
    std::optional<NetworkInfoSampler::Interface> describe(std::string_view interface) override;
    std::optional<NetworkInfoSampler::WiFi> wifi(std::string_view interface) override;
    bool hidesNetworkNames() const override { return true; }
    void renewWiFiClient() override {
        if (wifi_)
            wifi_->renew();
    }

  private:
    void lookUp(std::string_view interface);

    CFRef<SCDynamicStoreRef> store_;
    std::array<std::string, 2> primary_; // by family
    std::string address_;

    // Listing the interfaces walks the registry: too slow for every pass.
    std::string described_;
    std::optional<NetworkInfoSampler::InterfaceType> type_;
    std::optional<std::string> displayName_;
    int passesLeft_ = 0; // until they are listed again

    std::unique_ptr<WiFiClient> wifi_; // made when first needed
    std::optional<WiFiClient::Details> details_;
};

/// True when the machine has a Wi-Fi interface.
bool hasWiFiInterface();

} // namespace vantrix

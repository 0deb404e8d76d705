#include "macos/network/wifi_client.h"

#include "macos/kernel/objc_text.h"

#import <CoreWLAN/CoreWLAN.h>
#import <Foundation/Foundation.h>

namespace vantrix {
namespace {

std::optional<std::string> presentText(NSString* text) {
    return text ? std::optional(textOf(text)) : std::nullopt;
}

class MacWiFiClient final : public WiFiClient {
  public:
    std::optional<Details> read(std::string_view name) override {
        @autoreleasepool {
            CWInterface* interface = [client_ interfaceWithName:nativeText(name)];
            if (!interface)
                return std::nullopt;
            Details details;
            details.rssi = static_cast<int>(interface.rssiValue);
            details.noise = static_cast<int>(interface.noiseMeasurement);
            details.transmitRate = interface.transmitRate;
            details.ssid = presentText(interface.ssid);
            details.interfaceName = presentText(interface.interfaceName);
            return details;
        }
    }

    /// The shared client keeps its first connection.
    void renew() override { client_ = [[CWWiFiClient alloc] init]; }

  private:
    CWWiFiClient* client_ = [CWWiFiClient sharedWiFiClient];
};

} // namespace

std::unique_ptr<WiFiClient> makeWiFiClient() {
    return std::make_unique<MacWiFiClient>();
}

} // namespace vantrix

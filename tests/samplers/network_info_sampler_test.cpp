#include "samplers/network_info_sampler.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using Type = NetworkInfoSampler::InterfaceType;
using WiFi = NetworkInfoSampler::WiFi;
using Kind = NetworkInfo::Kind;

struct Machine {
    std::optional<std::string_view> ipv4, ipv6; // primary interfaces
    std::optional<WiFi> wifi = WiFi{-40, -90, 100.0, "Home", "en1"};
    bool hidesNames = true;
    bool canBeAsked = true;
};

/// Ethernet as en0, Wi-Fi as en1 and something else as utun0.
struct FakeSource : NetworkInfoSampler::Source {
    Machine machine;

    bool refresh() override { return machine.canBeAsked; }
    std::optional<std::string_view> primaryInterface(NetworkInfoSampler::AddressFamily family) override {
        return family == NetworkInfoSampler::AddressFamily::ipv4 ? machine.ipv4 : machine.ipv6;
    }
    std::optional<std::string_view> ipv4Address(std::string_view) override { return "192.168.1.24"; }
    std::optional<NetworkInfoSampler::Interface> describe(std::string_view interface) override {
        if (interface == "en0")
            return NetworkInfoSampler::Interface{Type::ethernet, "Ethernet"};
        if (interface == "en1")
            return NetworkInfoSampler::Interface{Type::ieee80211, "Wi-Fi"};
        return std::nullopt;
    }
    std::optional<WiFi> wifi(std::string_view) override { return machine.wifi; }
    std::string_view missingWiFiReason() const override { return "nl80211: refused"; }
    bool hidesNetworkNames() const override { return machine.hidesNames; }
};

struct Row {
    const char* name;
    Machine machine;
    NetworkInfo expected;
};

Row onWiFi(const char* name, std::optional<WiFi> wifi, NetworkInfo expected, bool hidesNames = true) {
    expected.kind = Kind::wifi;
    expected.interface = "en1";
    expected.displayName = "Wi-Fi";
    expected.localIP = "192.168.1.24";
    return {name, {"en1", {}, wifi, hidesNames}, expected};
}

const Row rows[] = {
    {"no primary interface", {}, {}},
    {"system out of reach", {.ipv4 = "en0", .ipv6 = "en0", .canBeAsked = false}, {}},
    {"Ethernet with Wi-Fi also up", {"en0", "en1"}, {Kind::ethernet, "en0", "Ethernet", "192.168.1.24"}},
    {"a tunnel", {{}, "utun0"}, {Kind::other, "utun0", {}, "192.168.1.24"}},
    onWiFi("all details", WiFi{-52, -92, 866.5, "Home", "en1"},
           {.ssid = "Home", .rssi = -52, .noise = -92, .linkSpeedMbps = 866.5}),
    onWiFi("not associated", WiFi{0, 0, -1.0, {}, "en1"}, {}),
    onWiFi("no Wi-Fi client", {}, {.debug = "no CoreWLAN interface for en1: nl80211: refused"}),
    onWiFi("name withheld", WiFi{-52, 0, 0.0, {}, "en1"},
           {.rssi = -52, .ssidHiddenByPrivacy = true, .debug = "location status 2 (not granted) · en1"}),
    onWiFi("name missing where none is withheld", WiFi{-52, 0, 0.0, {}, "en1"}, {.rssi = -52}, false),
};

/// The record is reused, so nothing of an earlier connection may remain in a later one.
TEST(NetworkInfoSampler, DescribesThePrimaryInterfaceWhateverWasBefore) {
    FakeSource source;
    for (const Row& before : rows) {
        for (const Row& after : rows) {
            NetworkInfoSampler sampler(source);
            source.machine = before.machine;
            sampler.sample(false, 2);
            source.machine = after.machine;
            EXPECT_EQ(sampler.sample(false, 2), after.expected) << before.name << ", " << after.name;
        }
    }
}

} // namespace
} // namespace vantrix

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
    std::string_view reason = "not to be told here";
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
    std::optional<std::string_view> ipv4Address(std::string_view interface) override {
        return interface == "en6" ? std::nullopt : std::optional<std::string_view>("192.168.1.24");
    }
    std::optional<NetworkInfoSampler::Interface> describe(std::string_view interface) override {
        if (interface == "en1")
            return NetworkInfoSampler::Interface{Type::ieee80211, "Wi-Fi"};
        if (interface == "utun0")
            return NetworkInfoSampler::Interface{Type::other, std::nullopt};
        if (interface == "lost0")
            return std::nullopt;
        return NetworkInfoSampler::Interface{Type::ethernet, "Ethernet"};
    }
    std::optional<WiFi> wifi(std::string_view) override { return machine.wifi; }
    std::string_view missingWiFiReason() const override { return machine.reason; }
    bool hidesNetworkNames() const override { return machine.hidesNames; }
};

struct Row {
    const char* name;
    Machine machine;
    NetworkInfo expected;
    bool granted = false;
    int status = 0;
};

Machine onWiFi(std::optional<WiFi> wifi, std::string_view reason = {}, bool hidesNames = true) {
    return {"en1", {}, wifi, reason, hidesNames};
}

NetworkInfo wifiInfo(NetworkInfo details) {
    details.kind = Kind::wifi;
    details.interface = "en1";
    details.displayName = "Wi-Fi";
    details.localIP = "192.168.1.24";
    return details;
}

const Row rows[] = {
    {"no primary interface", {}, {}},
    {"system out of reach", {.ipv4 = "en0", .ipv6 = "en0", .canBeAsked = false}, {}},
    {"Ethernet with Wi-Fi also up", {"en0", "en1"}, {Kind::ethernet, "en0", "Ethernet", "192.168.1.24"}},
    {"IPv6 alone", {{}, "en6"}, {Kind::ethernet, "en6", "Ethernet"}},
    {"a tunnel without a name", {"utun0"}, {Kind::other, "utun0", {}, "192.168.1.24"}},
    {"not among the interfaces", {"lost0"}, {Kind::other, "lost0", {}, "192.168.1.24"}},
    {"all details", onWiFi(WiFi{-52, -92, 866.5, "Home", "en1"}),
     wifiInfo({.ssid = "Home", .rssi = -52, .noise = -92, .linkSpeedMbps = 866.5})},
    {"zeros are absent", onWiFi(WiFi{0, 0, 0.0, "Home", "en1"}), wifiInfo({.ssid = "Home"})},
    {"negative speed", onWiFi(WiFi{-52, 0, -1.0, "Home", "en1"}), wifiInfo({.ssid = "Home", .rssi = -52})},
    {"no Wi-Fi client", onWiFi({}), wifiInfo({.debug = "no CoreWLAN interface for en1"})},
    {"no Wi-Fi client, and why", onWiFi({}, "nl80211: refused"),
     wifiInfo({.debug = "no CoreWLAN interface for en1: nl80211: refused"})},
    {"not associated", onWiFi(WiFi{0, 0, 0.0, {}, "en1"}), wifiInfo({})},
    {"name withheld", onWiFi(WiFi{-52, 0, 0.0, {}, "en1"}),
     wifiInfo({.rssi = -52, .ssidHiddenByPrivacy = true, .debug = "location status 2 (not granted) · en1"}), false, 2},
    {"name withheld all the same", onWiFi(WiFi{-52, 0, 0.0, {}, {}}),
     wifiInfo({.rssi = -52, .ssidHiddenByPrivacy = true, .debug = "location status 3 (granted) · ?"}), true, 3},
    {"name missing where none is withheld", onWiFi(WiFi{-52, 0, 0.0, {}, "en1"}, {}, false), wifiInfo({.rssi = -52})},
};

/// The record is reused, so nothing of an earlier connection may remain in a later one.
TEST(NetworkInfoSampler, DescribesThePrimaryInterfaceWhateverWasBefore) {
    FakeSource source;
    for (const Row& before : rows) {
        for (const Row& after : rows) {
            NetworkInfoSampler sampler(source);
            source.machine = before.machine;
            sampler.sample(before.granted, before.status);
            source.machine = after.machine;
            EXPECT_EQ(sampler.sample(after.granted, after.status), after.expected) << before.name << ", " << after.name;
        }
    }
}

TEST(SignalQuality, ChangesAtItsBounds) {
    const std::pair<int, const char*> words[] = {{-50, "Excellent"}, {-51, "Good"}, {-60, "Good"},
                                                 {-61, "Fair"},      {-70, "Fair"}, {-71, "Weak"}};
    for (const auto& [rssi, word] : words)
        EXPECT_EQ(signalQuality(rssi), word) << rssi;
    EXPECT_FALSE(signalQuality(std::nullopt));
}

} // namespace
} // namespace vantrix

#include "samplers/network_info_sampler.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using Type = NetworkInfoSampler::InterfaceType;
using WiFi = NetworkInfoSampler::WiFi;
using Kind = NetworkInfo::Kind;

/// A machine with Ethernet as en0, Wi-Fi as en1 and something else as utun0.
struct FakeSource : NetworkInfoSampler::Source {
    bool canBeAsked = true;
    std::optional<std::string_view> ipv4, ipv6;
    std::optional<WiFi> answer;
    std::string_view reason;
    bool hidesNames = true;

    bool refresh() override { return canBeAsked; }
    std::optional<std::string_view> primaryInterface(NetworkInfoSampler::AddressFamily family) override {
        return family == NetworkInfoSampler::AddressFamily::ipv4 ? ipv4 : ipv6;
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
    std::optional<WiFi> wifi(std::string_view) override { return answer; }
    std::string_view missingWiFiReason() const override { return reason; }
    bool hidesNetworkNames() const override { return hidesNames; }
};

struct Row {
    const char* name;
    FakeSource source;
    NetworkInfo expected;
    bool granted = false;
    int status = 0;
};

FakeSource onWiFi(std::optional<WiFi> answer, std::string_view reason = {}, bool hidesNames = true) {
    FakeSource source;
    source.ipv4 = "en1";
    source.answer = answer;
    source.reason = reason;
    source.hidesNames = hidesNames;
    return source;
}

FakeSource over(std::optional<std::string_view> ipv4, std::optional<std::string_view> ipv6 = {},
                bool canBeAsked = true) {
    FakeSource source;
    source.canBeAsked = canBeAsked;
    source.ipv4 = ipv4;
    source.ipv6 = ipv6;
    source.answer = WiFi{-40, -90, 100.0, "Home", "en1"};
    source.reason = "not to be told here";
    return source;
}

NetworkInfo wifiInfo(NetworkInfo details) {
    details.kind = Kind::wifi;
    details.interface = "en1";
    details.displayName = "Wi-Fi";
    details.localIP = "192.168.1.24";
    return details;
}

const Row rows[] = {
    {"no primary interface", over({}), {}},
    {"system out of reach", over("en0", "en0", false), {}},
    {"Ethernet with Wi-Fi also up", over("en0", "en1"), {Kind::ethernet, "en0", "Ethernet", "192.168.1.24"}},
    {"IPv6 alone", over({}, "en6"), {Kind::ethernet, "en6", "Ethernet"}},
    {"a tunnel without a name", over("utun0"), {Kind::other, "utun0", {}, "192.168.1.24"}},
    {"not among the interfaces", over("lost0"), {Kind::other, "lost0", {}, "192.168.1.24"}},
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

TEST(NetworkInfoSampler, DescribesThePrimaryInterface) {
    for (const Row& row : rows) {
        FakeSource source = row.source;
        NetworkInfoSampler sampler(source);
        const NetworkInfo info = sampler.sample(row.granted, row.status);
        EXPECT_EQ(info, row.expected) << row.name << ": " << info.debug.value_or("no diagnostic line");
    }
}

/// The record is reused, so nothing of an earlier connection may remain in a later one.
TEST(NetworkInfoSampler, NothingOutlivesItsConnection) {
    FakeSource source;
    NetworkInfoSampler sampler(source);
    for (const Row& before : rows) {
        for (const Row& after : rows) {
            source = before.source;
            sampler.sample(before.granted, before.status);
            source = after.source;
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

#include "samplers/network_info_sampler.h"

namespace vantrix {
namespace {

/// Empties `text` but keeps its memory.
std::string& emptied(std::optional<std::string>& text) {
    if (!text)
        text.emplace();
    text->clear();
    return *text;
}

void assign(std::optional<std::string>& to, std::optional<std::string_view> text) {
    if (text)
        emptied(to).append(*text);
    else
        to.reset();
}

std::optional<int> unlessZero(int value) {
    return value == 0 ? std::nullopt : std::optional(value);
}

NetworkInfo::Kind kindOf(NetworkInfoSampler::InterfaceType type) {
    switch (type) {
    case NetworkInfoSampler::InterfaceType::ieee80211:
        return NetworkInfo::Kind::wifi;
    case NetworkInfoSampler::InterfaceType::ethernet:
        return NetworkInfo::Kind::ethernet;
    case NetworkInfoSampler::InterfaceType::other:
        break;
    }
    return NetworkInfo::Kind::other;
}

} // namespace

const NetworkInfo& NetworkInfoSampler::sample(bool granted, std::int32_t status) {
    const auto interface = primaryInterface();
    if (!interface) {
        info_ = NetworkInfo();
        return info_;
    }
    assign(info_.interface, interface);
    assign(info_.localIP, source_.ipv4Address(*interface));
    describe(*interface);
    if (info_.kind == NetworkInfo::Kind::wifi) {
        addWiFi(*interface, granted, status);
    } else {
        clearWiFi();
        info_.debug.reset();
    }
    return info_;
}

std::optional<std::string_view> NetworkInfoSampler::primaryInterface() {
    if (!source_.refresh())
        return std::nullopt;
    const auto interface = source_.primaryInterface(AddressFamily::ipv4);
    return interface ? interface : source_.primaryInterface(AddressFamily::ipv6);
}

void NetworkInfoSampler::describe(std::string_view interface) {
    const auto description = source_.describe(interface).value_or(Interface());
    info_.kind = kindOf(description.type);
    assign(info_.displayName, description.displayName);
}

void NetworkInfoSampler::clearWiFi() {
    info_.ssid.reset();
    info_.rssi.reset();
    info_.noise.reset();
    info_.linkSpeedMbps.reset();
    info_.ssidHiddenByPrivacy = false;
}

void NetworkInfoSampler::addWiFi(std::string_view interface, bool granted, std::int32_t status) {
    const auto wifi = source_.wifi(interface);
    if (!wifi) {
        clearWiFi();
        explainMissingClient(interface);
        return;
    }
    info_.rssi = unlessZero(wifi->rssi);
    info_.noise = unlessZero(wifi->noise);
    info_.linkSpeedMbps = wifi->transmitRate > 0.0 ? std::optional(wifi->transmitRate) : std::nullopt;
    assign(info_.ssid, wifi->ssid);
    info_.ssidHiddenByPrivacy = !info_.ssid && info_.rssi && source_.hidesNetworkNames();
    if (info_.ssidHiddenByPrivacy)
        explainHiddenName(wifi->interfaceName.value_or("?"), granted, status);
    else
        info_.debug.reset();
}

void NetworkInfoSampler::explainMissingClient(std::string_view interface) {
    const auto reason = source_.missingWiFiReason();
    std::string& text = emptied(info_.debug);
    text.append("no CoreWLAN interface for ").append(interface);
    if (!reason.empty())
        text.append(": ").append(reason);
}

void NetworkInfoSampler::explainHiddenName(std::string_view interface, bool granted, std::int32_t status) {
    std::string& text = emptied(info_.debug);
    text.append("location status ").append(std::to_string(status));
    text.append(granted ? " (granted) · " : " (not granted) · ").append(interface);
}

} // namespace vantrix

#include "macos/network/mac_network_info.h"

#include <netdb.h>
#include <sys/socket.h>

#include "macos/kernel/autorelease_pool.h"
#include "macos/kernel/cf_values.h"
#include "macos/network/interface_addresses.h"

namespace vantrix {
namespace {

using Family = NetworkInfoSampler::AddressFamily;
using Type = NetworkInfoSampler::InterfaceType;

constexpr int passesIfFound = 30;
constexpr int passesIfNotWhole = 5; // a new port may be in use before the list has it

std::optional<std::string_view> viewOf(const std::optional<std::string>& text) {
    return text ? std::optional<std::string_view>(*text) : std::nullopt;
}

Type typeOf(CFStringRef type) {
    if (type && CFEqual(type, kSCNetworkInterfaceTypeIEEE80211))
        return Type::ieee80211;
    return type && CFEqual(type, kSCNetworkInterfaceTypeEthernet) ? Type::ethernet : Type::other;
}

} // namespace

bool MacNetworkInfo::refresh() {
    if (!store_)
        store_ = CFRef(SCDynamicStoreCreate(kCFAllocatorDefault, CFSTR("Vantrix"), nullptr, nullptr));
    return static_cast<bool>(store_);
}

std::optional<std::string_view> MacNetworkInfo::primaryInterface(Family family) {
    const bool isIPv4 = family == Family::ipv4;
    const CFRef held(SCDynamicStoreCopyValue(store_.get(), isIPv4 ? CFSTR("State:/Network/Global/IPv4")
                                                                  : CFSTR("State:/Network/Global/IPv6")));
    const auto state = as<CFDictionaryRef>(held.get());
    auto name = state ? textOf(CFDictionaryGetValue(state, CFSTR("PrimaryInterface"))) : std::nullopt;
    if (!name)
        return std::nullopt;
    return primary_[isIPv4 ? 0 : 1] = std::move(*name);
}

std::optional<std::string_view> MacNetworkInfo::ipv4Address(std::string_view interface) {
    const InterfaceAddresses addresses;
    for (const ifaddrs* entry = addresses.first(); entry; entry = entry->ifa_next) {
        const sockaddr* const address = entry->ifa_addr;
        if (interface != entry->ifa_name || !address || address->sa_family != AF_INET)
            continue;
        char host[NI_MAXHOST] = {};
        if (getnameinfo(address, address->sa_len, host, sizeof host, nullptr, 0, NI_NUMERICHOST) == 0)
            return address_ = host;
    }
    return std::nullopt;
}

std::optional<NetworkInfoSampler::Interface> MacNetworkInfo::describe(std::string_view interface) {
    if (interface != described_ || --passesLeft_ <= 0)
        lookUp(interface);
    if (!type_)
        return std::nullopt;
    return NetworkInfoSampler::Interface{*type_, viewOf(displayName_)};
}

void MacNetworkInfo::lookUp(std::string_view interface) {
    const AutoreleasePool pool;
    described_ = interface;
    type_.reset();
    displayName_.reset();
    passesLeft_ = passesIfNotWhole;
    const CFRef all(SCNetworkInterfaceCopyAll());
    for (CFIndex i = 0; all && i < CFArrayGetCount(all.get()) && !type_; ++i) {
        const auto candidate = static_cast<SCNetworkInterfaceRef>(CFArrayGetValueAtIndex(all.get(), i));
        if (!candidate || textOf(SCNetworkInterfaceGetBSDName(candidate)) != interface)
            continue;
        const CFStringRef type = SCNetworkInterfaceGetInterfaceType(candidate);
        type_ = typeOf(type);
        displayName_ = textOf(SCNetworkInterfaceGetLocalizedDisplayName(candidate));
        if (type && displayName_)
            passesLeft_ = passesIfFound;
    }
}

std::optional<NetworkInfoSampler::WiFi> MacNetworkInfo::wifi(std::string_view interface) {
    if (!wifi_)
        wifi_ = makeWiFiClient();
    details_ = wifi_ ? wifi_->read(interface) : std::nullopt;
    if (!details_)
        return std::nullopt;
    return NetworkInfoSampler::WiFi{details_->rssi, details_->noise, details_->transmitRate, viewOf(details_->ssid),
                                    viewOf(details_->interfaceName)};
}

bool hasWiFiInterface() {
    const AutoreleasePool pool;
    const CFRef all(SCNetworkInterfaceCopyAll());
    for (CFIndex i = 0; all && i < CFArrayGetCount(all.get()); ++i) {
        const auto interface = static_cast<SCNetworkInterfaceRef>(CFArrayGetValueAtIndex(all.get(), i));
        if (interface && typeOf(SCNetworkInterfaceGetInterfaceType(interface)) == Type::ieee80211)
            return true;
    }
    return false;
}

} // namespace vantrix

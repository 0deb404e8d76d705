#include "linux/network/linux_network_info.h"

#include "linux/kernel/kernel_tree.h"
#include "linux/network/sysfs_interface_kind.h"
#include "support/localization.h"

namespace vantrix {
namespace {

using Family = NetworkInfoSampler::AddressFamily;

std::optional<std::string_view> unlessEmpty(std::string_view text) {
    return text.empty() ? std::nullopt : std::optional(text);
}

} // namespace

LinuxNetworkInfo::LinuxNetworkInfo(std::string sys, std::unique_ptr<DefaultRoutes> routes,
                                   std::unique_ptr<DefaultRoutes> fallback, std::unique_ptr<WiFiReader> wifi)
    : sys_(std::move(sys)), routes_(std::move(routes)), fallback_(std::move(fallback)),
      wifi_(wifi ? std::make_unique<BackgroundWiFi>(std::move(wifi)) : nullptr) {}

bool LinuxNetworkInfo::refresh() {
    if (routes_->refresh())
        return true;
    if (!fallback_ || routes_->generation() > 0)
        return false;
    routes_ = std::move(fallback_);
    describedAt_ = 0;
    return routes_->refresh();
}

std::optional<std::string_view> LinuxNetworkInfo::primaryInterface(Family family) {
    const DefaultRoute* route = routes_->primary(family);
    return route != nullptr ? std::optional<std::string_view>(route->interface) : std::nullopt;
}

const DefaultRoute* LinuxNetworkInfo::routeOver(std::string_view interface) const {
    for (const Family family : {Family::ipv4, Family::ipv6}) {
        const DefaultRoute* route = routes_->primary(family);
        if (route != nullptr && route->interface == interface)
            return route;
    }
    return nullptr;
}

std::optional<std::string_view> LinuxNetworkInfo::ipv4Address(std::string_view interface) {
    const DefaultRoute* route = routeOver(interface);
    return route != nullptr ? std::optional<std::string_view>(route->ipv4Address) : std::nullopt;
}

std::optional<NetworkInfoSampler::Interface> LinuxNetworkInfo::describe(std::string_view interface) {
    if (isOutdated(interface))
        lookUp(interface);
    if (!type_)
        return std::nullopt;
    return NetworkInfoSampler::Interface{*type_, unlessEmpty(displayName_)};
}

bool LinuxNetworkInfo::isOutdated(std::string_view interface) const {
    if (describedAt_ != routes_->generation() || described_ != interface)
        return true;
    // A link may be in the routes before its folder is there. Without its number, nobody tells when another takes its
    // name.
    return (!type_ || describedIndex_ == 0) && entryNumber(folder_) != folderNumber_;
}

void LinuxNetworkInfo::lookUp(std::string_view interface) {
    // Every scan and every container's link brings news; the last Wi-Fi reading stands as long as the link is the same.
    const DefaultRoute* route = routeOver(interface);
    const int index = route != nullptr ? route->index : 0;
    if (wifi_ && (described_ != interface || describedIndex_ != index))
        wifi_->forget();
    describedIndex_ = index;
    folder_ = sys_ + "/class/net/" + std::string(interface);
    folderNumber_ = entryNumber(folder_);
    const auto kind = readInterfaceKind(sys_, interface);
    type_ = kind ? std::optional(kind->type) : std::nullopt;
    displayName_ = kind && !kind->name.empty() ? localized(kind->name) : std::string();
    described_ = interface;
    describedAt_ = routes_->generation();
}

std::optional<NetworkInfoSampler::WiFi> LinuxNetworkInfo::wifi(std::string_view interface) {
    const DefaultRoute* route = routeOver(interface);
    reason_ = wifi_ ? "nl80211 is out of reach" : "Wi-Fi details are only asked for on the machine itself";
    if (!wifi_ || route == nullptr || route->index <= 0)
        return std::nullopt;
    const WiFiReading& reading = wifi_->read(route->index);
    reason_ = reading.problem;
    if (!reading.problem.empty())
        return std::nullopt;
    return NetworkInfoSampler::WiFi{reading.signal, reading.noise, reading.bitRate, unlessEmpty(reading.ssid),
                                    route->interface};
}

} // namespace vantrix

#include "linux/network/sysfs_interface_kind.h"

#include <net/if_arp.h>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

using Type = NetworkInfoSampler::InterfaceType;

struct Sort {
    std::string_view deviceType;
    InterfaceKind kind;
};

constexpr Sort sorts[] = {
    {"wlan", {Type::ieee80211, "Wi-Fi"}}, {"wwan", {Type::other, "Mobile broadband"}},
    {"wireguard", {Type::other, "VPN"}},  {"bluetooth", {Type::other, "Bluetooth"}},
    {"bridge", {Type::other, "Bridge"}},  {"bond", {Type::other, "Bond"}},
    {"vlan", {Type::other, "VLAN"}},      {"ppp", {Type::other, "PPP"}},
};

bool isOnUSB(const std::string& folder) {
    return linkTarget(folder + "device/subsystem").ends_with("/usb");
}

InterfaceKind kindOfPort(const std::string& folder) {
    const auto type = readStart(folder + "type", 16).value_or("");
    if (type == std::to_string(ARPHRD_PPP) + '\n')
        return {Type::other, "PPP"};
    if (pathExists(folder + "tun_flags"))
        return {Type::other, "VPN"};
    if (type != std::to_string(ARPHRD_ETHER) + '\n' || !pathExists(folder + "device"))
        return {Type::other, {}};
    return {Type::ethernet, isOnUSB(folder) ? "USB Ethernet" : "Ethernet"};
}

} // namespace

std::optional<InterfaceKind> readInterfaceKind(const std::string& sys, std::string_view name) {
    const std::string folder = sys + "/class/net/" + std::string(name) + '/';
    if (!isEntryName(name) || !pathExists(folder))
        return std::nullopt;
    if (pathExists(folder + "wireless") || pathExists(folder + "phy80211"))
        return InterfaceKind{Type::ieee80211, "Wi-Fi"};
    const auto uevent = readStart(folder + "uevent").value_or("");
    const auto deviceType = ueventValue(uevent, "DEVTYPE");
    for (const Sort& sort : sorts) {
        if (sort.deviceType == deviceType)
            return sort.kind;
    }
    return kindOfPort(folder);
}

} // namespace vantrix

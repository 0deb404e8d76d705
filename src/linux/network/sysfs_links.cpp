#include "linux/network/sysfs_links.h"

#include <net/if.h>

#include "linux/kernel/kernel_tree.h"
#include "support/integer.h"

namespace vantrix {
namespace {

std::string linkFolder(const std::string& sys, std::string_view name) {
    return sys + "/class/net/" + std::string(name) + '/';
}

} // namespace

bool isHardwareLink(const std::string& sys, std::string_view name) {
    return isEntryName(name) && pathExists(linkFolder(sys, name) + "device");
}

std::optional<std::uint32_t> parseLinkFlags(std::string_view text) {
    if (!text.starts_with("0x"))
        return std::nullopt;
    text.remove_prefix(2);
    return parseInteger<std::uint32_t>(text, "\n", 16);
}

std::uint32_t SysfsLinks::Port::readFlags() {
    const auto text = flags.read();
    auto value = text ? parseLinkFlags(*text).value_or(0) : 0;
    value &= ~std::uint32_t{IFF_RUNNING}; // never told here
    if ((value & IFF_UP) != 0 && isRunning())
        value |= IFF_RUNNING;
    return value;
}

bool SysfsLinks::Port::isRunning() {
    // "unknown" is the state of drivers that do not tell; the kernel calls those running.
    if (const auto text = operState.read())
        return *text == "up\n" || *text == "unknown\n";
    return carrier.read() == "1\n";
}

std::optional<SysfsLinks::Port> SysfsLinks::findPort(std::string_view name) const {
    if (!isHardwareLink(sys_, name))
        return std::nullopt;
    const std::string folder = linkFolder(sys_, name);
    return Port{KernelFile(folder + "flags"), KernelFile(folder + "operstate"), KernelFile(folder + "carrier")};
}

LinkState SysfsLinks::state(std::string_view name, std::size_t place) {
    if (place >= known_.size())
        known_.resize(place + 1);
    Known& known = known_[place];
    if (known.name != name) {
        known.name = name;
        known.port = findPort(name);
    }
    if (!known.port)
        return {};
    return {true, known.port->readFlags()};
}

} // namespace vantrix

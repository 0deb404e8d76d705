#include "linux/network/sysfs_links.h"

#include <net/if.h>

#include "linux/kernel/kernel_tree.h"
#include "support/integer.h"

namespace vantrix {
namespace {

std::string linkFolder(const std::string& sys, std::string_view name) {
    return sys + "/class/net/" + std::string(name) + '/';
}

int readNumber(const std::string& path) {
    return parseIntegerLine<int>(readStart(path, 16).value_or("")).value_or(0);
}

} // namespace

bool isHardwareLink(const std::string& sys, std::string_view name) {
    return isEntryName(name) && pathExists(linkFolder(sys, name) + "device");
}

LinkState readLink(const std::string& sys, std::string_view name) {
    if (!isHardwareLink(sys, name))
        return {};
    const std::string folder = linkFolder(sys, name);
    return {.isHardware = true,
            .type = readNumber(folder + "type"),
            .index = readNumber(folder + "ifindex"),
            .master = readNumber(folder + "master/ifindex"),
            .lower = readNumber(folder + "iflink")};
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

bool SysfsLinks::refresh() {
    passes_ = passes_ % passesPerLook + 1;
    return true;
}

/// Whether another link has taken the name, or the link another master.
bool SysfsLinks::isOutdated(const Known& known) const {
    const bool isLookDue = passes_ == passesPerLook;
    if ((isLookDue || known.port) && entryNumber(known.folder) != known.number)
        return true;
    return isLookDue && known.port && entryNumber(known.master) != known.masterNumber;
}

void SysfsLinks::lookUp(std::string_view name, Known& known) const {
    known.name = name;
    known.folder = isEntryName(name) ? linkFolder(sys_, name) : std::string();
    known.master = known.folder + "master/";
    known.number = entryNumber(known.folder);
    known.masterNumber = entryNumber(known.master);
    known.state = readLink(sys_, name);
    known.port.reset();
    if (known.state.isHardware)
        known.port = Port{KernelFile(known.folder + "flags"), KernelFile(known.folder + "operstate"),
                          KernelFile(known.folder + "carrier")};
}

LinkState SysfsLinks::state(std::string_view name, std::size_t place) {
    if (place >= known_.size())
        known_.resize(place + 1);
    Known& known = known_[place];
    if (known.name != name || isOutdated(known))
        lookUp(name, known);
    if (known.port)
        known.state.flags = known.port->readFlags();
    return known.state;
}

} // namespace vantrix

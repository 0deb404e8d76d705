#include "linux/network/port_role.h"

#include <algorithm>

#include <net/if_arp.h>

namespace vantrix {
namespace {

bool isHardware(int index, std::span<const LinkState> links) {
    return std::any_of(links.begin(), links.end(),
                       [&](const LinkState& link) { return link.isHardware && link.index == index; });
}

} // namespace

PortRole roleOf(const LinkState& link, std::span<const LinkState> all) {
    if (!link.isHardware)
        return PortRole::software;
    if (link.master > 0 && isHardware(link.master, all))
        return PortRole::enslaved;
    // An InfiniBand partition names its port, too, but that one does not count the partition's bytes.
    const bool isStacked = link.lower > 0 && link.lower != link.index && link.type != ARPHRD_INFINIBAND;
    return isStacked && isHardware(link.lower, all) ? PortRole::stacked : PortRole::counted;
}

} // namespace vantrix

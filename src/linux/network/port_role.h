#pragma once

#include <span>

#include "linux/network/link_states.h"

namespace vantrix {

/// Whether a link's bytes are counted, and if not, why not.
enum class PortRole {
    software, ///< no device stands behind it
    counted,
    enslaved, ///< its master is a hardware port, which counts the same bytes
    stacked,  ///< the port below it is a hardware port, which counts the same bytes
};

/// The role of one link among `all` of them. A virtual machine's accelerated port is enslaved to the synthetic one, and
/// the ports of a switch are stacked on the one that leads to it. Slaves of bonds and bridges, which software makes,
/// are counted.
PortRole roleOf(const LinkState& link, std::span<const LinkState> all);

} // namespace vantrix

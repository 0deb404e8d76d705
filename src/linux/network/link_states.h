#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vantrix {

struct LinkState {
    bool isHardware = false; ///< a port of some device, not made by software; the rest only matters for those
    std::uint32_t flags = 0; ///< IFF_…
    int type = 0;            ///< ARPHRD_…
    int index = 0;           ///< of the link; 0 when not known
    int master = 0;          ///< the link that it is enslaved to; 0 for none
    int lower = 0;           ///< the link of this network namespace that it is stacked on; 0, or itself, for none
};

/// What its counters do not tell of a network interface.
class LinkStates {
  public:
    virtual ~LinkStates() = default;
    /// Called once per pass, before the states are asked for. False when they cannot be learnt in this way here.
    virtual bool refresh() = 0;
    /// `place` is the interface's place in the list, where the search for it begins.
    virtual LinkState state(std::string_view name, std::size_t place) = 0;
};

} // namespace vantrix

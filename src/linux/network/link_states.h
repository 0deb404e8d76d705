#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vantrix {

struct LinkState {
    bool isHardware = false; ///< a port of some device, not made by software
    std::uint32_t flags = 0; ///< IFF_…; only meaningful for hardware
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

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vantrix {

struct LinkState {
    bool isHardware = false; ///< a port of some device, not made by software
    std::uint32_t flags = 0; ///< IFF_…; only meaningful for hardware
};

/// What there is to know of a network interface besides its counters.
class LinkStates {
  public:
    virtual ~LinkStates() = default;
    /// Called once before the states of a pass are asked for. False when this way of knowing does not work here.
    virtual bool refresh() = 0;
    /// `place` is the interface's place in the list, where the search for it begins.
    virtual LinkState state(std::string_view name, std::size_t place) = 0;
};

} // namespace vantrix

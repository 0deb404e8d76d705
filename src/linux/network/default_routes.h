#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "samplers/network_info_sampler.h"

namespace vantrix {

/// Where the connections of a family leave the machine.
struct DefaultRoute {
    int index = 0; ///< of the link; 0 when not known
    std::string interface;
    std::optional<std::string> ipv4Address; ///< the link's first own one, numeric
};

/// The machine's default routes.
class DefaultRoutes {
  public:
    using Family = NetworkInfoSampler::AddressFamily;

    virtual ~DefaultRoutes() = default;
    /// Called once before the routes of a pass are asked for. False when this way of knowing does not work here.
    virtual bool refresh() = 0;
    /// Changes whenever routes, or the links below them, may have changed.
    virtual std::uint64_t generation() const = 0;
    /// The one of lowest metric; null without any.
    virtual const DefaultRoute* primary(Family family) const = 0;
};

} // namespace vantrix

#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "samplers/network_info_sampler.h"

namespace vantrix {

/// The default route of one address family.
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
    /// Called once per pass, before the routes are asked for. False when they cannot be learnt in this way here.
    virtual bool refresh() = 0;
    /// Changes whenever routes, or the links below them, may have changed.
    virtual std::uint64_t generation() const = 0;
    /// The route of lowest metric; null without any.
    virtual const DefaultRoute* primary(Family family) const = 0;
};

} // namespace vantrix

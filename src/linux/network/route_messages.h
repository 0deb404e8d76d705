#pragma once

#include <cstdint>
#include <optional>

#include <netinet/in.h>

#include "linux/kernel/netlink_records.h"

namespace vantrix {

/// What an rtnetlink message tells of default routes, but for whether something is new, changed or gone.
struct RouteMessage {
    enum class Kind {
        defaultRoute, ///< of the main table
        address,      ///< IPv4
        link,         ///< whose change may take routes along without a word
    };

    Kind kind = Kind::defaultRoute;
    int family = 0;           ///< of the route: AF_INET or AF_INET6
    std::uint32_t metric = 0; ///< of the route: the lowest is taken
    int index = 0;            ///< of the link that it leads to or that has the address; 0 where it leads nowhere
    in_addr address{};        ///< the link's own
};

/// Absent for a message about something else.
std::optional<RouteMessage> parseRouteMessage(const NetlinkMessage& message);

} // namespace vantrix

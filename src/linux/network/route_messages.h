#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <netinet/in.h>

namespace vantrix {

/// One rtnetlink message, as far as it matters to the default route.
struct RouteMessage {
    enum class Kind {
        defaultRoute, ///< a default route of the main table, new, changed or gone
        address,      ///< an IPv4 address, new, changed or gone
        link,         ///< a link, whose change may take routes along without a word
        done,         ///< the list that was asked for is complete
        failed,       ///< the list could not be given
        other,        ///< nothing of interest
    };

    Kind kind = Kind::other;
    std::uint32_t sequence = 0; ///< that of the question; news have that of whoever made the change
    bool isListed = false;      ///< part of a list that was asked for, not news
    bool isInterrupted = false; ///< something changed while the list was made
    int error = 0;              ///< errno of a failure
    int family = 0;             ///< of the route: AF_INET or AF_INET6
    std::uint32_t metric = 0;   ///< of the route: the lowest is taken
    int index = 0;              ///< of the link that it leads to or that has the address; 0 where it leads nowhere
    in_addr address{};          ///< the link's own
};

/// Takes the next message off the front of `datagram`. Absent when none is left or the rest makes no sense.
std::optional<RouteMessage> takeRouteMessage(std::string_view& datagram);

} // namespace vantrix

#include "linux/network/route_messages.h"

#include <sys/socket.h>

namespace vantrix {
namespace {

constexpr unsigned leadsNowhere = RTNH_F_DEAD | RTNH_F_LINKDOWN | RTNH_F_UNRESOLVED;

/// The link of the first of several next hops that is alive; 0 when none is.
int firstLiveHop(std::string_view hops) {
    while (const auto hop = recordAt<rtnexthop>(hops)) {
        if (hop->rtnh_len < sizeof(rtnexthop) || hop->rtnh_len > hops.size())
            break;
        if ((hop->rtnh_flags & leadsNowhere) == 0)
            return hop->rtnh_ifindex;
        removeAligned(hops, hop->rtnh_len);
    }
    return 0;
}

struct RouteAttributes {
    std::uint32_t table = 0;
    std::uint32_t metric = 0;
    int link = 0;
    int hop = 0;
};

RouteAttributes readRoute(const rtmsg& route, std::string_view attributes) {
    RouteAttributes found{.table = route.rtm_table};
    while (const auto attribute = takeAttribute(attributes)) {
        if (attribute->type == RTA_TABLE)
            found.table = recordAt<std::uint32_t>(attribute->value).value_or(0);
        else if (attribute->type == RTA_PRIORITY)
            found.metric = recordAt<std::uint32_t>(attribute->value).value_or(0);
        else if (attribute->type == RTA_OIF)
            found.link = recordAt<int>(attribute->value).value_or(0);
        else if (attribute->type == RTA_MULTIPATH)
            found.hop = firstLiveHop(attribute->value);
    }
    return found;
}

std::optional<RouteMessage> parseRoute(std::string_view body) {
    const auto route = recordAt<rtmsg>(body);
    // Clones belong to the cache; a route for one type of service is no default for the rest.
    if (!route || route->rtm_dst_len != 0 || route->rtm_tos != 0 || (route->rtm_flags & RTM_F_CLONED) != 0)
        return std::nullopt;
    const auto attributes = readRoute(*route, attributesAfter<rtmsg>(body));
    if (attributes.table != RT_TABLE_MAIN)
        return std::nullopt;
    RouteMessage message{.family = route->rtm_family, .metric = attributes.metric};
    if (route->rtm_type != RTN_UNICAST)
        return message;
    if (attributes.link > 0 && (route->rtm_flags & leadsNowhere) == 0)
        message.index = attributes.link;
    else if (attributes.hop > 0)
        message.index = attributes.hop;
    return message;
}

std::optional<RouteMessage> parseAddress(std::string_view body) {
    const auto header = recordAt<ifaddrmsg>(body);
    if (!header || header->ifa_family != AF_INET)
        return std::nullopt;
    RouteMessage message{.kind = RouteMessage::Kind::address};
    auto attributes = attributesAfter<ifaddrmsg>(body);
    bool isOwn = false;
    while (const auto attribute = takeAttribute(attributes)) {
        const auto address = recordAt<in_addr>(attribute->value);
        // On a point-to-point link IFA_ADDRESS is the other end.
        if (!address || isOwn || (attribute->type != IFA_LOCAL && attribute->type != IFA_ADDRESS))
            continue;
        isOwn = attribute->type == IFA_LOCAL;
        message.address = *address;
        message.index = static_cast<int>(header->ifa_index);
    }
    return message;
}

} // namespace

std::optional<RouteMessage> parseRouteMessage(const NetlinkMessage& message) {
    switch (message.header.nlmsg_type) {
    case RTM_NEWROUTE:
    case RTM_DELROUTE:
        return parseRoute(message.body);
    case RTM_NEWADDR:
    case RTM_DELADDR:
        return parseAddress(message.body);
    case RTM_NEWLINK:
    case RTM_DELLINK:
        return RouteMessage{.kind = RouteMessage::Kind::link};
    default:
        return std::nullopt;
    }
}

} // namespace vantrix

#include "linux/network/rtnetlink_routes.h"

#include <algorithm>

#include <arpa/inet.h>
#include <net/if.h>

namespace vantrix {
void RouteList::clear() {
    ipv4_ = {};
    ipv6_ = {};
    addresses_.clear();
}

void RouteList::add(const RouteMessage& message) {
    if (message.index <= 0)
        return;
    if (message.kind == RouteMessage::Kind::address)
        addresses_.push_back({message.index, message.address});
    if (message.kind != RouteMessage::Kind::defaultRoute || (message.family != AF_INET && message.family != AF_INET6))
        return;
    Best& best = message.family == AF_INET ? ipv4_ : ipv6_;
    if (best.index == 0 || message.metric < best.metric)
        best = {message.index, message.metric};
}

int RouteList::bestLink(int family) const {
    return family == AF_INET ? ipv4_.index : ipv6_.index;
}

const in_addr* RouteList::addressOf(int index) const {
    const auto found = std::find_if(addresses_.begin(), addresses_.end(),
                                    [&](const Address& address) { return address.index == index; });
    return found == addresses_.end() ? nullptr : &found->address;
}

bool RtnetlinkRoutes::refresh() {
    refreshTable();
    return generation_ > 0; // what was known stands until the kernel can be asked again
}

const DefaultRoute* RtnetlinkRoutes::primary(Family family) const {
    const auto& route = family == Family::ipv4 ? ipv4_ : ipv6_;
    return route ? &*route : nullptr;
}

std::span<const RtnetlinkTable::List> RtnetlinkRoutes::lists() const {
    static constexpr List all[] = {{RTM_GETROUTE, AF_INET}, {RTM_GETROUTE, AF_INET6}, {RTM_GETADDR, AF_INET}};
    return all;
}

void RtnetlinkRoutes::takeListed(const NetlinkMessage& message) {
    if (const auto listed = parseRouteMessage(message))
        list_.add(*listed);
}

/// Lists that are not whole are better than none.
void RtnetlinkRoutes::endLists(bool) {
    ipv4_ = routeOver(list_.bestLink(AF_INET));
    ipv6_ = routeOver(list_.bestLink(AF_INET6));
    ++generation_;
}

bool RtnetlinkRoutes::takeNews(const NetlinkMessage& message) {
    return parseRouteMessage(message).has_value();
}

std::optional<DefaultRoute> RtnetlinkRoutes::routeOver(int index) const {
    char name[IF_NAMESIZE];
    if (index <= 0 || if_indextoname(static_cast<unsigned>(index), name) == nullptr)
        return std::nullopt;
    DefaultRoute route{index, name, std::nullopt};
    char text[INET_ADDRSTRLEN];
    const in_addr* address = list_.addressOf(index);
    if (address != nullptr && inet_ntop(AF_INET, address, text, sizeof text) != nullptr)
        route.ipv4Address = text;
    return route;
}

} // namespace vantrix

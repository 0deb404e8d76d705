#pragma once

#include <vector>

#include "linux/network/default_routes.h"
#include "linux/network/route_messages.h"
#include "linux/network/rtnetlink_subscriber.h"

namespace vantrix {

/// The best default routes and the addresses among listed rtnetlink messages.
class RouteList {
  public:
    void clear();
    void add(const RouteMessage& message);
    /// The link of the best route; 0 without any.
    int bestLink(int family) const;
    /// The first address listed for a link; null without any.
    const in_addr* addressOf(int index) const;

  private:
    struct Best {
        int index = 0;
        std::uint32_t metric = 0;
    };
    struct Address {
        int index = 0;
        in_addr address{};
    };

    Best ipv4_;
    Best ipv6_;
    std::vector<Address> addresses_;
};

/// Default routes of this network namespace. After news about default routes, addresses or links the short lists are
/// read anew, as the kernel drops routes without a word when their link goes down.
class RtnetlinkRoutes : public DefaultRoutes, private RtnetlinkTable {
  public:
    explicit RtnetlinkRoutes(std::shared_ptr<RtnetlinkSubscriber> subscriber) : RtnetlinkTable(std::move(subscriber)) {}

    bool refresh() override;
    std::uint64_t generation() const override { return generation_; }
    const DefaultRoute* primary(Family family) const override;

  private:
    std::span<const List> lists() const override;
    void beginLists() override { list_.clear(); }
    void takeListed(const NetlinkMessage& message) override;
    void endLists(bool areWhole) override;
    bool takeNews(const NetlinkMessage& message) override;
    std::optional<DefaultRoute> routeOver(int index) const;

    RouteList list_;
    std::optional<DefaultRoute> ipv4_;
    std::optional<DefaultRoute> ipv6_;
    std::uint64_t generation_ = 0;
};

} // namespace vantrix

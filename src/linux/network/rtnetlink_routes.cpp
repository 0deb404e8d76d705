#include "linux/network/rtnetlink_routes.h"

#include <algorithm>
#include <cstring>

#include <arpa/inet.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>

namespace vantrix {
namespace {

using Received = NetlinkChannel::Received;

constexpr int datagramsPerPass = 1000; // a storm of news goes on in the next pass
constexpr int attemptsPerPass = 3;     // at a list that changes while it is read

} // namespace

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

RtnetlinkRoutes::RtnetlinkRoutes()
    : socket_(NETLINK_ROUTE, RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE) {}

bool RtnetlinkRoutes::refresh() {
    if (!socket_.open() || !takeNews()) {
        startOver();
        return generation_ > 0; // what was known stands until the kernel can be asked again
    }
    for (int attempt = 0; areListsDue_ && attempt < attemptsPerPass; ++attempt) {
        areListsDue_ = false; // unless news come in between
        areListsDue_ = !readLists() || areListsDue_;
    }
    return generation_ > 0;
}

void RtnetlinkRoutes::startOver() {
    socket_.close();
    areListsDue_ = true;
}

const DefaultRoute* RtnetlinkRoutes::primary(Family family) const {
    const auto& route = family == Family::ipv4 ? ipv4_ : ipv6_;
    return route ? &*route : nullptr;
}

bool RtnetlinkRoutes::takeNews() {
    std::string_view datagram;
    for (int i = 0; i < datagramsPerPass; ++i) {
        const auto received = socket_.receive(datagram);
        if (received == Received::failed)
            return false;
        if (received == Received::nothing)
            break;
        if (received == Received::lost)
            areListsDue_ = true;
        else
            noteNews(datagram);
    }
    return true;
}

void RtnetlinkRoutes::noteNews(std::string_view datagram) {
    while (!areListsDue_) {
        const auto message = takeRouteMessage(datagram);
        if (!message)
            return;
        areListsDue_ = !message->isListed &&
                       (message->kind == RouteMessage::Kind::defaultRoute ||
                        message->kind == RouteMessage::Kind::address || message->kind == RouteMessage::Kind::link);
    }
}

bool RtnetlinkRoutes::readLists() {
    list_.clear();
    if (!readList(RTM_GETROUTE, AF_INET) || !readList(RTM_GETROUTE, AF_INET6) || !readList(RTM_GETADDR, AF_INET))
        return false;
    ipv4_ = routeOver(list_.bestLink(AF_INET));
    ipv6_ = routeOver(list_.bestLink(AF_INET6));
    ++generation_;
    return true;
}

bool RtnetlinkRoutes::readList(std::uint16_t type, unsigned char family) {
    struct {
        nlmsghdr header;
        rtmsg body; // no shorter than an ifaddrmsg, which begins with the family too
    } question{};
    question.header.nlmsg_len = sizeof question;
    question.header.nlmsg_type = type;
    question.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    question.header.nlmsg_seq = ++sequence_;
    question.body.rtm_family = family;
    if (!socket_.send({reinterpret_cast<const char*>(&question), sizeof question}))
        return false;
    std::string_view datagram;
    bool isComplete = false;
    for (int i = 0; i < datagramsPerPass && !isComplete; ++i) {
        const auto received = socket_.receive(datagram);
        if (received == Received::lost)
            areListsDue_ = true;
        else if (received == Received::datagram)
            applyList(datagram, isComplete);
        else
            break;
    }
    // What the kernel has begun to answer would be in the way of the next question.
    if (!isComplete)
        startOver();
    return isComplete;
}

void RtnetlinkRoutes::applyList(std::string_view datagram, bool& isComplete) {
    noteNews(datagram);
    while (const auto message = takeRouteMessage(datagram)) {
        const bool isRefusal = message->kind == RouteMessage::Kind::failed;
        if (message->sequence != sequence_ || (!message->isListed && !isRefusal))
            continue;
        // A kernel that does not know such a list, as one without IPv6, has nothing to put on it.
        const bool isUnknownList = isRefusal && (message->error == EOPNOTSUPP || message->error == EAFNOSUPPORT);
        if (message->kind == RouteMessage::Kind::done || isUnknownList)
            isComplete = true;
        areListsDue_ = areListsDue_ || message->isInterrupted;
        list_.add(*message);
    }
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

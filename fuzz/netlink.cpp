#include <gtest/gtest.h>

#include "fuzz/targets.h"
#include "linux/network/link_messages.h"
#include "linux/network/netlink_datagram.h"
#include "linux/network/nl80211_reader.h"
#include "linux/network/rtnetlink_links.h"
#include "linux/network/rtnetlink_routes.h"
#include "support/utf8.h"

namespace vantrix::fuzz {
namespace {

/// Every message is cut to what came, and every name fits its field.
void parse(std::string_view datagram) {
    EXPECT_LE(parseStation(datagram).value_or(WiFiStation()).signal, 0);
    EXPECT_LE(parseNoise(datagram).value_or(0), 0);
    EXPECT_LE(parseInterfaceName(datagram).value_or("").size(), 32u);
    EXPECT_LE(parseJoinedNetwork(datagram).value_or("").size(), 32u);
    parseFamilyNumber(datagram);
    RouteList list;
    while (const auto taken = takeNetlinkMessage(datagram)) {
        EXPECT_EQ(taken->body.size() + sizeof(nlmsghdr), taken->header.nlmsg_len);
        EXPECT_LT(parseLinkMessage(*taken).value_or(LinkMessage()).name.size(), 16u);
        list.add(parseRouteMessage(*taken).value_or(RouteMessage()));
    }
    EXPECT_GE(list.bestLink(AF_INET), 0);
}

/// A kernel that says what stands in the input, whatever it is asked: before each datagram one byte tells whether it
/// answers the last question, one how long it is.
struct Script : FakeNetlink {
    explicit Script(std::string_view input) : rest(input) {}

    bool send(std::string_view question) override {
        sequence = takeNetlinkMessage(question).value().header.nlmsg_seq;
        return true;
    }
    Received receive(std::string_view& datagram) override {
        if (rest.isEmpty())
            return Received::nothing;
        const auto kind = rest.byte();
        current = rest.bytes(4 * std::size_t{rest.byte()});
        if (kind % 2 != 0)
            numberQuestion(current, sequence);
        datagram = current;
        parse(datagram);
        return kind < 250 ? Received::datagram : static_cast<Received>(kind % 4);
    }

    Input rest;
    std::uint32_t sequence = 0;
};

} // namespace

void netlink(std::string_view input) {
    const auto subscriber = std::make_shared<RtnetlinkSubscriber>(std::make_unique<Script>(input));
    RtnetlinkLinks links(subscriber, "/nowhere");
    RtnetlinkRoutes routes(subscriber);
    Nl80211Reader reader(std::make_unique<Script>(input));
    WiFiReading wifi;
    for (int pass = 0; pass < 8; ++pass) {
        links.refresh();
        routes.refresh();
        links.state("eth0", 1);
        const DefaultRoute* route = routes.primary(DefaultRoutes::Family::ipv4);
        EXPECT_TRUE(!route || !route->interface.empty());
        reader.read(3, wifi);
        EXPECT_TRUE(wifi.signal <= 0 && wifi.noise <= 0 && wifi.bitRate >= 0.0);
        EXPECT_EQ(repairedUTF8(wifi.ssid), wifi.ssid);
    }
}

} // namespace vantrix::fuzz

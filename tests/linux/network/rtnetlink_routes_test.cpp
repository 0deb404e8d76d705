#include "linux/network/rtnetlink_routes.h"

#include <chrono>
#include <cstdlib>
#include <fstream>

#include <linux/rtnetlink.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "linux/network/netlink_datagram.h"

namespace vantrix {
namespace {

using Kind = RouteMessage::Kind;
using Family = DefaultRoutes::Family;

rtmsg defaultRoute() {
    rtmsg route{};
    route.rtm_family = AF_INET;
    route.rtm_table = RT_TABLE_MAIN;
    route.rtm_type = RTN_UNICAST;
    return route;
}

std::string overLink(int index, std::uint32_t metric = 100) {
    return numberAttribute(RTA_OIF, index) + numberAttribute(RTA_PRIORITY, metric);
}

std::string hop(int index, int flags) {
    rtnexthop hop{};
    hop.rtnh_len = sizeof hop + 8;
    hop.rtnh_ifindex = index;
    hop.rtnh_flags = static_cast<unsigned char>(flags);
    return bytesOf(hop) + numberAttribute(RTA_GATEWAY, 0x0100000a);
}

TEST(TakeRouteMessage, KnowsWhichRoutesLeadSomewhere) {
    struct Row {
        const char* name;
        void (*change)(rtmsg&);
        std::string attributes;
        Kind kind;
        int index;
    };
    const Row rows[] = {
        {"plain", [](rtmsg&) {}, overLink(2), Kind::defaultRoute, 2},
        {"to a net", [](rtmsg& r) { r.rtm_dst_len = 24; }, overLink(2), Kind::other, 0},
        {"of another table", [](rtmsg& r) { r.rtm_table = 51; }, overLink(2), Kind::other, 0},
        {"of a table past 255", [](rtmsg&) {}, numberAttribute(RTA_TABLE, 51820) + overLink(2), Kind::other, 0},
        {"main table as an attribute", [](rtmsg& r) { r.rtm_table = RT_TABLE_COMPAT; },
         numberAttribute(RTA_TABLE, RT_TABLE_MAIN) + overLink(2), Kind::defaultRoute, 2},
        {"blackhole", [](rtmsg& r) { r.rtm_type = RTN_BLACKHOLE; }, overLink(1), Kind::defaultRoute, 0},
        {"unreachable", [](rtmsg& r) { r.rtm_type = RTN_UNREACHABLE; }, overLink(1), Kind::defaultRoute, 0},
        {"no carrier", [](rtmsg& r) { r.rtm_flags = RTNH_F_LINKDOWN; }, overLink(2), Kind::defaultRoute, 0},
        {"dead", [](rtmsg& r) { r.rtm_flags = RTNH_F_DEAD; }, overLink(2), Kind::defaultRoute, 0},
        {"cached", [](rtmsg& r) { r.rtm_flags = RTM_F_CLONED; }, overLink(2), Kind::other, 0},
        {"several hops, the first unplugged", [](rtmsg&) {},
         attribute(RTA_MULTIPATH, hop(3, RTNH_F_LINKDOWN) + hop(4, 0)), Kind::defaultRoute, 4},
        {"several hops, all unplugged", [](rtmsg&) {},
         attribute(RTA_MULTIPATH, hop(3, RTNH_F_LINKDOWN) + hop(4, RTNH_F_DEAD)), Kind::defaultRoute, 0},
    };
    for (const Row& row : rows) {
        rtmsg route = defaultRoute();
        row.change(route);
        const std::string bytes = message(RTM_NEWROUTE, bytesOf(route) + row.attributes);
        std::string_view datagram = bytes;
        const auto taken = takeRouteMessage(datagram);
        ASSERT_TRUE(taken) << row.name;
        EXPECT_EQ(taken->kind, row.kind) << row.name;
        EXPECT_EQ(taken->index, row.index) << row.name;
    }
}

TEST(TakeRouteMessage, TakesTheOwnEndOfAPointToPointLink) {
    const std::string bytes =
        message(RTM_NEWADDR, bytesOf(ifaddrmsg{AF_INET, 32, 0, 0, 7}) + numberAttribute(IFA_LOCAL, 0x0200000a) +
                                 numberAttribute(IFA_ADDRESS, 0x0100000a));
    std::string_view datagram = bytes;
    const auto taken = takeRouteMessage(datagram);
    EXPECT_EQ(taken->index, 7);
    EXPECT_EQ(taken->address.s_addr, 0x0200000au);
}

TEST(TakeRouteMessage, EndsAtEveryCutAndWrongLength) {
    const std::string whole =
        message(RTM_NEWROUTE, bytesOf(defaultRoute()) + overLink(2) + attribute(RTA_MULTIPATH, hop(3, 1) + hop(4, 0)));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        std::string_view datagram = cut;
        EXPECT_FALSE(takeRouteMessage(datagram)) << length;
    }
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (const char value : {'\0', '\1', '\5', '\x7f', '\xff'}) {
            std::string bytes = whole;
            bytes[place] = value;
            std::string_view datagram = bytes;
            RouteList list;
            while (const auto taken = takeRouteMessage(datagram))
                list.add(*taken);
            EXPECT_GE(list.bestLink(AF_INET), 0);
        }
    }
}

/// A network of this process alone, and what it should look like.
class OwnNetwork {
  public:
    RtnetlinkRoutes routes;

    /// Runs `commands` and then waits until the default routes are those, as "eth0 10.0.0.2 / eth1".
    bool leadsTo(const std::string& commands, const std::string& expected) {
        if (std::system(("set -e; " + commands).c_str()) != 0)
            _exit(77);
        // The kernel settles carriers in the background.
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (shown() != expected) {
            if (std::chrono::steady_clock::now() > deadline) {
                std::fprintf(stderr, "%s: \"%s\", not \"%s\"\n", commands.c_str(), shown().c_str(), expected.c_str());
                return false;
            }
            sched_yield();
        }
        return true;
    }

  private:
    std::string shown() {
        if (!routes.refresh())
            return "not working";
        return shown(Family::ipv4) + " / " + shown(Family::ipv6);
    }

    std::string shown(Family family) {
        const DefaultRoute* route = routes.primary(family);
        if (route == nullptr)
            return "none";
        return route->interface + (route->ipv4Address ? ' ' + *route->ipv4Address : std::string());
    }
};

/// Exits with the number of the step that failed, 77 where the machine forbids such namespaces.
int followLiveRoutes() {
    const std::string user = "0 " + std::to_string(getuid()) + " 1";
    if (unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0 || !(std::ofstream("/proc/self/uid_map") << user << std::flush))
        return 77;
    OwnNetwork network;
    const std::pair<const char*, const char*> steps[] = {
        {"true", "none / none"},
        {"for n in 0 1; do ip link add eth$n type veth peer name peer$n; ip link set eth$n up; ip link set peer$n up;"
         " ip addr add 10.0.$n.2/24 dev eth$n; done; ip route add default via 10.0.0.1 metric 200",
         "eth0 10.0.0.2 / none"},
        {"ip route add default via 10.0.1.1 dev eth1 metric 100", "eth1 10.0.1.2 / none"},
        {"ip route add blackhole default metric 50", "eth1 10.0.1.2 / none"},
        {"ip link set peer1 down", "eth0 10.0.0.2 / none"}, // the cable of eth1 is out
        {"ip link set peer1 up", "eth1 10.0.1.2 / none"},
        {"ip link set eth1 down", "eth0 10.0.0.2 / none"}, // takes its route along without a word
        {"ip -6 addr add fd00::2/64 dev eth0 nodad; ip -6 route add default via fd00::1 dev eth0",
         "eth0 10.0.0.2 / eth0 10.0.0.2"},
        {"ip addr add 10.0.0.9/24 dev eth0; ip addr del 10.0.0.2/24 dev eth0", "none / eth0"},
        {"ip addr add 10.0.0.7/24 dev eth0", "none / eth0 10.0.0.7"},
        {"ip link set eth0 name lan0", "none / lan0 10.0.0.7"},
        {"(for i in $(seq 1500); do echo route add 10.9.$((i % 250)).0/24 via 10.0.0.1 metric $i; done;"
         " echo route add default via 10.0.0.1) | ip -b -",
         "lan0 10.0.0.7 / lan0 10.0.0.7"}, // more news than the socket holds
        {"ip link del lan0", "none / none"},
    };
    int number = 1;
    for (const auto& [commands, expected] : steps) {
        if (!network.leadsTo(commands, expected))
            return number;
        ++number;
    }
    return 0;
}

TEST(RtnetlinkRoutes, FollowsTheKernel) {
    const pid_t child = fork();
    if (child == 0)
        _exit(followLiveRoutes());
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 77)
        GTEST_SKIP() << "no network namespaces here";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST(RtnetlinkRoutes, ReadsNothingAnewWithoutNews) {
    RtnetlinkRoutes routes;
    ASSERT_TRUE(routes.refresh());
    const auto generation = routes.generation();
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(routes.refresh());
    EXPECT_LE(routes.generation(), generation + 1); // a machine in use may have had some
}

} // namespace
} // namespace vantrix

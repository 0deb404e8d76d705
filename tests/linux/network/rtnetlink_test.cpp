#include <map>

#include <gtest/gtest.h>

#include "linux/network/netlink_datagram.h"
#include "linux/network/rtnetlink_links.h"
#include "linux/network/rtnetlink_routes.h"
#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

using Family = DefaultRoutes::Family;
using Received = NetlinkChannel::Received;

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

TEST(ParseRouteMessage, KnowsWhichRoutesLeadSomewhere) {
    struct Row {
        const char* name;
        void (*change)(rtmsg&);
        std::string attributes;
        int index; ///< -1: not told of
    };
    const Row rows[] = {
        {"to a net", [](rtmsg& r) { r.rtm_dst_len = 24; }, overLink(2), -1},
        {"of a table past 255", [](rtmsg&) {}, numberAttribute(RTA_TABLE, 51820) + overLink(2), -1},
        {"main table as an attribute", [](rtmsg& r) { r.rtm_table = RT_TABLE_COMPAT; },
         numberAttribute(RTA_TABLE, RT_TABLE_MAIN) + overLink(2), 2},
        {"blackhole", [](rtmsg& r) { r.rtm_type = RTN_BLACKHOLE; }, overLink(1), 0},
        {"cached", [](rtmsg& r) { r.rtm_flags = RTM_F_CLONED; }, overLink(2), -1},
        {"several hops, the first unplugged", [](rtmsg&) {},
         attribute(RTA_MULTIPATH, hop(3, RTNH_F_LINKDOWN) + hop(4, 0)), 4},
    };
    for (const Row& row : rows) {
        rtmsg route = defaultRoute();
        row.change(route);
        const std::string bytes = message(RTM_NEWROUTE, bytesOf(route) + row.attributes);
        std::string_view datagram = bytes;
        const auto parsed = parseRouteMessage(*takeNetlinkMessage(datagram));
        EXPECT_EQ(parsed ? parsed->index : -1, row.index) << row.name;
    }
}

std::string linkMessage(int type, int index, unsigned flags, const std::string& name, int messageFlags = 0,
                        std::uint32_t sequence = 0, unsigned char family = AF_UNSPEC, const std::string& rest = "") {
    ifinfomsg link{};
    link.ifi_family = family;
    link.ifi_index = index;
    link.ifi_flags = flags;
    const std::string oddLength = attribute(IFLA_MTU, "\1\2");
    return message(type, bytesOf(link) + oddLength + (name.empty() ? "" : attribute(IFLA_IFNAME, name + '\0')) + rest,
                   messageFlags, sequence);
}

/// Of one end of a point-to-point link: its own address is the local one.
std::string addressMessage(unsigned index, int messageFlags = 0, std::uint32_t sequence = 0) {
    const std::string addresses = numberAttribute(IFA_LOCAL, 0x0200000a) + numberAttribute(IFA_ADDRESS, 0x0100000a);
    return message(RTM_NEWADDR, bytesOf(ifaddrmsg{AF_INET, 32, 0, 0, index}) + addresses, messageFlags, sequence);
}

/// A kernel with links and one default route over the loopback, which exists on any machine.
struct FakeKernel : FakeNetlink {
    std::map<int, std::string> links = {{1, "lo"}, {2, "eth0"}};
    std::string questions; ///< "L" links, "4" and "6" routes, "A" addresses
    std::map<char, int> refusals;
    int interruptions = 0;

    bool send(std::string_view question) override {
        const auto taken = takeNetlinkMessage(question);
        const int type = taken->header.nlmsg_type;
        const bool isIPv6 = recordAt<unsigned char>(taken->body) == AF_INET6;
        const char kind = type == RTM_GETLINK ? 'L' : type == RTM_GETADDR ? 'A' : isIPv6 ? '6' : '4';
        questions += kind;
        answer(kind, taken->header.nlmsg_seq, interruptions-- > 0 ? NLM_F_MULTI | NLM_F_DUMP_INTR : NLM_F_MULTI);
        return true;
    }

    void answer(char kind, std::uint32_t sequence, int flags) {
        tell("");                                                         // from somebody else
        tell(message(NLMSG_DONE, bytesOf(0), NLM_F_MULTI, sequence - 1)); // of another list
        if (refusals[kind] != 0)
            return tell(message(NLMSG_ERROR, bytesOf(nlmsgerr{-refusals[kind], {}}), 0, sequence));
        if (kind == '4')
            tell(message(RTM_NEWROUTE, bytesOf(defaultRoute()) + overLink(1), flags, sequence));
        if (kind == 'A')
            tell(addressMessage(1, flags, sequence));
        for (const auto& [index, name] : links)
            if (kind == 'L')
                tell(linkMessage(RTM_NEWLINK, index, 0x41, name, flags, sequence));
        tell(message(NLMSG_DONE, bytesOf(0), flags, sequence));
    }
};

struct RtnetlinkTest : ::testing::Test {
    TemporaryFolder folder;
    FakeKernel* kernel = new FakeKernel;
    std::shared_ptr<RtnetlinkSubscriber> subscriber =
        std::make_shared<RtnetlinkSubscriber>(std::unique_ptr<NetlinkChannel>(kernel));
    std::unique_ptr<RtnetlinkLinks> links = std::make_unique<RtnetlinkLinks>(subscriber, folder.path(""));
    RtnetlinkRoutes routes{subscriber};

    /// What is asked on a pass.
    std::string pass() {
        kernel->questions.clear();
        EXPECT_TRUE(links->refresh());
        EXPECT_TRUE(routes.refresh());
        return kernel->questions;
    }
    std::string passAfter(const std::string& news) {
        kernel->tell(news);
        return pass();
    }
    std::string passAfterLoss() {
        kernel->queue.push_back({Received::lost, ""});
        return pass();
    }
    std::uint32_t flagsOf(const char* name) { return links->state(name, 0).flags; }
};

TEST_F(RtnetlinkTest, AsksOnceAndThenFollowsTheNews) {
    folder.write("class/net/eth0/device/vendor", "1\n");
    EXPECT_EQ(pass(), "L46A");
    EXPECT_EQ(pass(), "");
    EXPECT_TRUE(links->state("eth0", 2).isHardware); // there are but two
    ASSERT_NE(routes.primary(Family::ipv4), nullptr);
    EXPECT_EQ(routes.primary(Family::ipv4)->ipv4Address, "10.0.0.2");
    EXPECT_EQ(routes.primary(Family::ipv6), nullptr);
    EXPECT_EQ(passAfter(linkMessage(RTM_NEWLINK, 2, 0x1, "") + linkMessage(RTM_NEWLINK, 3, 0x1, "")), "46A");
    EXPECT_EQ(flagsOf("eth0"), 0x1u); // news need not repeat the name
    // A port that leaves its bridge is told of like a link that goes, but in another family.
    passAfter(linkMessage(RTM_DELLINK, 2, 0, "eth0", 0, 0, AF_BRIDGE) + linkMessage(RTM_DELLINK, 99, 0, ""));
    EXPECT_EQ(flagsOf("eth0"), 0x1u);
}

TEST_F(RtnetlinkTest, FollowsWhatALinkIsEnslavedToAndStackedOn) {
    pass();
    const auto tellOfPort = [&](const std::string& rest) {
        passAfter(linkMessage(RTM_NEWLINK, 2, 0x41, "eth0", 0, 0, AF_UNSPEC, rest));
        return links->state("eth0", 0);
    };
    const auto relations = numberAttribute(IFLA_LINK, 7) + numberAttribute(IFLA_MASTER, 9);
    EXPECT_EQ(tellOfPort(relations).lower, 7);
    EXPECT_EQ(tellOfPort(relations).master, 9);
    EXPECT_EQ(tellOfPort(relations + numberAttribute(IFLA_LINK_NETNSID, 0)).lower, 0);
    EXPECT_EQ(tellOfPort("").master, 0);
}

TEST_F(RtnetlinkTest, LostNewsMeanThatAllIsAskedAnewUntilNothingInterrupts) {
    pass();
    kernel->links.erase(1);
    EXPECT_EQ(passAfterLoss(), "L46A");
    EXPECT_EQ(flagsOf("lo"), 0u);
    kernel->links.erase(2);
    kernel->interruptions = 1000;
    EXPECT_EQ(passAfterLoss(), "LLL46A46A46A"); // for both at once
    EXPECT_EQ(flagsOf("eth0"), 0x41u);
    EXPECT_EQ(routes.primary(Family::ipv4)->interface, "lo");
    kernel->interruptions = 2;
    EXPECT_EQ(pass(), "LLL46A");
    EXPECT_EQ(flagsOf("eth0"), 0u);
}

TEST_F(RtnetlinkTest, ARefusalSparesTheOtherTable) {
    kernel->refusals = {{'4', EPERM}};
    EXPECT_TRUE(links->refresh());
    EXPECT_FALSE(routes.refresh());
    kernel->refusals = {{'6', EAFNOSUPPORT}}; // a kernel without IPv6
    kernel->closings = 0;
    pass();
    EXPECT_EQ(kernel->closings, 0);
    EXPECT_NE(routes.primary(Family::ipv4), nullptr);
}

TEST_F(RtnetlinkTest, WithoutAnAnswerRoutesStandAndLinksAreLearntInAnotherWay) {
    pass();
    kernel->queue.push_back({Received::failed, ""});
    EXPECT_FALSE(links->refresh());
    links.reset(); // nobody hands it anything any more
    kernel->canOpen = false;
    EXPECT_TRUE(routes.refresh());
    EXPECT_NE(routes.primary(Family::ipv4), nullptr);
    kernel->canOpen = true;
    kernel->questions.clear();
    EXPECT_TRUE(routes.refresh());
    EXPECT_EQ(kernel->questions, "46A");
}

} // namespace
} // namespace vantrix

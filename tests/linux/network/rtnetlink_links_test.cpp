#include "linux/network/rtnetlink_links.h"

#include <chrono>

#include <linux/rtnetlink.h>
#include <sched.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <gtest/gtest.h>

#include "linux/network/sysfs_links.h"
#include "linux/temporary_folder.h"
#include "samplers/network_sampler.h"

namespace vantrix {
namespace {

template<typename Record>
void append(std::string& bytes, const Record& record) {
    bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
}

/// A datagram of one message about a link, as the kernel sends it.
std::string linkDatagram(std::uint16_t type, int index, unsigned flags, const std::string& name,
                         unsigned char family = AF_UNSPEC) {
    std::string attributes;
    append(attributes, rtattr{6, IFLA_MTU}); // one of an odd length before the name
    attributes += std::string("\x01\x02\x00\x00", 4);
    append(attributes, rtattr{static_cast<std::uint16_t>(sizeof(rtattr) + name.size() + 1), IFLA_IFNAME});
    attributes += name + '\0';
    nlmsghdr header{};
    header.nlmsg_len = static_cast<std::uint32_t>(sizeof header + sizeof(ifinfomsg) + attributes.size());
    header.nlmsg_type = type;
    ifinfomsg link{};
    link.ifi_family = family;
    link.ifi_index = index;
    link.ifi_flags = flags;
    std::string datagram;
    append(datagram, header);
    append(datagram, link);
    return datagram + attributes;
}

TEST(TakeLinkMessage, ReadsLinksAndIgnoresThoseOfBridges) {
    const std::string bytes = linkDatagram(RTM_NEWLINK, 7, 0x41, "eth0");
    std::string_view datagram = bytes;
    const auto message = takeLinkMessage(datagram);
    ASSERT_TRUE(message);
    EXPECT_EQ(message->kind, LinkMessage::Kind::link);
    EXPECT_EQ(message->index, 7);
    EXPECT_EQ(message->flags, 0x41u);
    EXPECT_EQ(message->name, "eth0");
    EXPECT_FALSE(takeLinkMessage(datagram));
    // A port that leaves its bridge is told of like a link that goes, but in another family.
    const std::string left = linkDatagram(RTM_DELLINK, 7, 0, "eth0", AF_BRIDGE);
    datagram = left;
    EXPECT_EQ(takeLinkMessage(datagram)->kind, LinkMessage::Kind::other);
}

TEST(TakeLinkMessage, StopsAtEveryCutAndWrongLength) {
    const std::string whole = linkDatagram(RTM_NEWLINK, 7, 0x41, "eth0");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        std::string_view datagram = cut;
        EXPECT_FALSE(takeLinkMessage(datagram)) << length;
    }
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (const char value : {'\0', '\1', '\x7f', '\xff'}) {
            std::string bytes = whole;
            bytes[place] = value;
            std::string_view datagram = bytes;
            while (const auto message = takeLinkMessage(datagram))
                EXPECT_LT(message->name.size(), 16u);
        }
    }
}

struct LinkTableTest : ::testing::Test {
    TemporaryFolder folder;
    LinkTable table{folder.path("")};

    LinkTableTest() { folder.write("class/net/eth0/device/vendor", "1\n"); }

    void put(int index, const char* name, std::uint32_t flags = 0x41) {
        table.put({LinkMessage::Kind::link, 0, false, index, flags, name});
    }
};

TEST_F(LinkTableTest, FollowsRenamesChangesAndRemovals) {
    put(1, "lo");
    put(2, "wan");
    EXPECT_FALSE(table.state("wan", 1).isHardware);
    put(2, "eth0", 0x1);
    EXPECT_TRUE(table.state("eth0", 1).isHardware);
    EXPECT_EQ(table.state("eth0", 9).flags, 0x1u);
    EXPECT_EQ(table.state("wan", 1).flags, 0u);
    put(2, "", 0x41); // news need not repeat the name
    EXPECT_EQ(table.state("eth0", 0).flags, 0x41u);
    put(3, "");
    table.remove(2);
    table.remove(99);
    EXPECT_FALSE(table.state("eth0", 0).isHardware);
    EXPECT_EQ(table.state("lo", 0).flags, 0x41u);
}

TEST_F(LinkTableTest, AFullListDropsWhatItLacks) {
    put(1, "lo");
    put(2, "eth0");
    table.beginList();
    put(1, "lo");
    table.endList();
    EXPECT_EQ(table.state("eth0", 1).flags, 0u);
    EXPECT_EQ(table.state("lo", 0).flags, 0x41u);
}

/// Runs in a network namespace of its own, where it may do as it likes. Exits with the number of the step that failed,
/// 77 where the machine forbids such namespaces.
int followLiveLinks(const std::string& sys) {
    const std::string user = "0 " + std::to_string(getuid()) + " 1";
    if (unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0 || !(std::ofstream("/proc/self/uid_map") << user << std::flush))
        return 77;
    RtnetlinkLinks links(sys);
    if (!links.refresh())
        return 1;
    if (links.state("lo", 0).flags & NetworkSampler::linkUp)
        return 2;
    if (std::system("ip link set lo up && ip link add eth0 type veth peer name peer0") != 0)
        return 77;
    links.refresh();
    if (!(links.state("lo", 0).flags & NetworkSampler::linkUp) || !links.state("eth0", 1).isHardware)
        return 3;
    if (std::system("ip link set eth0 up && ip link set peer0 up") != 0)
        return 77;
    // The kernel settles in the background whether a link is running.
    const auto isRunning = [&] { return links.refresh() && (links.state("eth0", 1).flags & 0x41) == 0x41; };
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!isRunning() && std::chrono::steady_clock::now() < deadline)
        sched_yield();
    if (!isRunning() || links.state("peer0", 2).isHardware)
        return 4;
    if (std::system("for i in $(seq 150); do echo link add a$i type veth peer name b$i; done | ip -b -") != 0)
        return 77;
    links.refresh(); // more news than the socket holds: the list is asked for anew
    if (links.state("b150", 300).flags == 0 || std::system("ip link del eth0") != 0)
        return 5;
    links.refresh();
    return links.state("eth0", 1).isHardware ? 6 : 0;
}

TEST(RtnetlinkLinks, FollowsTheKernel) {
    const TemporaryFolder folder;
    folder.write("class/net/eth0/device/vendor", "1\n");
    const pid_t child = fork();
    if (child == 0)
        _exit(followLiveLinks(folder.path("")));
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 77)
        GTEST_SKIP() << "no network namespaces here";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST(SysfsLinks, DerivesRunningFromTheOperationalState) {
    struct Row {
        const char* name;
        const char* flags;
        const char* operState; // empty: no such file
        const char* carrier;
        std::uint32_t expected;
    };
    const Row rows[] = {
        {"up", "0x1003\n", "up\n", "1\n", 0x1043},
        {"driver that does not tell", "0x1003\n", "unknown\n", "", 0x1043},
        {"unplugged", "0x1003\n", "down\n", "0\n", 0x1003},
        {"not associated yet", "0x1003\n", "dormant\n", "1\n", 0x1003},
        {"switched off", "0x1002\n", "up\n", "1\n", 0x1002},
        {"carrier alone", "0x1003\n", "", "1\n", 0x1043},
        {"no carrier", "0x1003\n", "", "0\n", 0x1003},
        {"garbled flags", "1003\n", "up\n", "1\n", 0},
        {"flags cut short", "0x10", "up\n", "1\n", 0},
        {"flags past 32 bits", "0x100000003\n", "up\n", "1\n", 0},
    };
    for (const Row& row : rows) {
        const TemporaryFolder folder;
        folder.write("class/net/eth0/device/vendor", "1\n");
        folder.write("class/net/eth0/flags", row.flags);
        if (*row.operState != '\0')
            folder.write("class/net/eth0/operstate", row.operState);
        folder.write("class/net/eth0/carrier", row.carrier);
        SysfsLinks links(folder.path(""));
        EXPECT_EQ(links.state("eth0", 0).flags, row.expected) << row.name;
        EXPECT_FALSE(links.state("../net/eth0", 0).isHardware);
        EXPECT_TRUE(links.state("eth0", 3).isHardware);
    }
}

} // namespace
} // namespace vantrix

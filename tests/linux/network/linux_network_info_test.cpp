#include "linux/network/linux_network_info.h"

#include <gtest/gtest.h>

#include "linux/network/proc_net_route.h"
#include "linux/network/sysfs_interface_kind.h"
#include "linux/temporary_folder.h"
#include "platform/sampling_sources.h"

namespace vantrix {
namespace {

using Type = NetworkInfoSampler::InterfaceType;

TEST(ReadInterfaceKind, TellsInterfacesApartAsPeopleDo) {
    struct Row {
        const char* name;
        std::vector<std::pair<const char*, const char*>> files;
        Type type;
        std::string_view shown;
    };
    const std::pair<const char*, const char*> ethernet{"type", "1\n"};
    const std::pair<const char*, const char*> device{"device/vendor", "0x8086\n"};
    const Row rows[] = {
        {"Wi-Fi of a driver with its phy", {ethernet, device, {"phy80211/index", "0\n"}}, Type::ieee80211, "Wi-Fi"},
        {"Wi-Fi by its uevent", {ethernet, {"uevent", "DEVTYPE=wlan\nINTERFACE=w\n"}}, Type::ieee80211, "Wi-Fi"},
        {"a port", {ethernet, device, {"uevent", "INTERFACE=x\nIFINDEX=2\n"}}, Type::ethernet, "Ethernet"},
        {"cut short", {{"type", "519\n"}, {"uevent", "INTERFACE=x\nDEVTYPE=wwan"}}, Type::other, "Mobile broadband"},
        {"a container's end of a pair", {ethernet, {"uevent", "INTERFACE=x\n"}}, Type::other, ""},
    };
    for (const Row& row : rows) {
        const TemporaryFolder folder;
        for (const auto& [file, text] : row.files)
            folder.write("class/net/x/" + std::string(file), text);
        const auto kind = readInterfaceKind(folder.path(""), "x");
        ASSERT_TRUE(kind) << row.name;
        EXPECT_EQ(kind->type, row.type) << row.name;
        EXPECT_EQ(kind->name, row.shown) << row.name;
        EXPECT_FALSE(readInterfaceKind(folder.path(""), "y"));
        EXPECT_FALSE(readInterfaceKind(folder.path(""), "../net/x"));
    }
}

const std::string heading = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";

std::string route(const char* name, const char* destination, const char* flags, const char* metric) {
    return std::string(name) + '\t' + destination + "\t010200C0\t" + flags + "\t0\t0\t" + metric + "\t" + destination +
           "\t0\t0\t0    \n";
}

TEST(ParseDefaultRoute, TakesTheLowestMetricThatLeadsSomewhere) {
    EXPECT_EQ(parseDefaultRoute(heading + route("eth1", "000200C0", "0001", "0") +
                                route("wlan0", "00000000", "0003", "600") + route("eth0", "00000000", "0003", "100") +
                                route("*", "00000000", "0201", "50")),
              "eth0");
    EXPECT_EQ(parseDefaultRoute(heading + route("eth0", "00000000", "0002", "0")), "");
    EXPECT_EQ(parseDefaultRoute(heading + "eth0\t00000000\t0102"), "");
    const std::string none(32, '0');
    const std::string line6 = none + " 00 " + none + " 00 fe800000000000000000000000000001 ";
    EXPECT_EQ(parseDefaultIPv6Route(line6 + "00000400 00000001 00000000 00000003 eth0\n" + line6 +
                                    "00000258 00000001 00000000 00000003 wlan0\n" + line6 +
                                    "00000000 00000001 00000000 00200200 lo\n"),
              "wlan0");
}

struct LinuxNetworkInfoTest : ::testing::Test {
    TemporaryFolder folder;

    void setRoute(const char* name) {
        folder.write("proc/net/route", heading + route(name, "00000000", "0003", "100"));
    }
    void addPort(const std::string& name) {
        folder.write("sys/class/net/" + name + "/device/vendor", "1\n");
        folder.write("sys/class/net/" + name + "/type", "1\n");
    }
};

TEST_F(LinuxNetworkInfoTest, FollowsTheTreesOfAnotherMachine) {
    setRoute("wlan0");
    folder.write("sys/class/net/wlan0/phy80211/index", "0\n");
    addPort("eth0");
    const auto sources = makeSamplingSources({folder.path("proc"), folder.path("sys")});
    NetworkInfoSampler sampler(*sources.networkInfo);
    NetworkInfo expected{NetworkInfo::Kind::wifi, "wlan0", "Wi-Fi"};
    expected.debug = "no CoreWLAN interface for wlan0: Wi-Fi details are only asked for on the machine itself";
    EXPECT_EQ(sampler.sample(true, 3), expected);
    setRoute("eth0");
    EXPECT_EQ(sampler.sample(true, 3), (NetworkInfo{NetworkInfo::Kind::ethernet, "eth0", "Ethernet"}));
    setRoute("usb0");
    EXPECT_EQ(sampler.sample(true, 3), (NetworkInfo{NetworkInfo::Kind::other, "usb0"})); // its folder is late
    addPort("usb0");
    EXPECT_EQ(sampler.sample(true, 3), (NetworkInfo{NetworkInfo::Kind::ethernet, "usb0", "Ethernet"}));
    std::filesystem::rename(folder.path("sys/class/net/usb0"), folder.path("sys/class/net/lan0"));
    std::filesystem::rename(folder.path("sys/class/net/wlan0"), folder.path("sys/class/net/usb0")); // takes the name
    EXPECT_EQ(sampler.sample(true, 3).displayName, "Wi-Fi");
    folder.remove("proc/net/route");
    const auto gone = makeSamplingSources({folder.path("proc"), folder.path("sys")});
    EXPECT_EQ(NetworkInfoSampler(*gone.networkInfo).sample(true, 3), NetworkInfo());
}

/// Routes that cannot be asked; `news` counts how often they were told of before.
struct FailingRoutes : DefaultRoutes {
    std::uint64_t news;

    explicit FailingRoutes(std::uint64_t count) : news(count) {}
    bool refresh() override { return false; }
    std::uint64_t generation() const override { return news; }
    const DefaultRoute* primary(Family) const override { return nullptr; }
};

TEST_F(LinuxNetworkInfoTest, FallsBackForGoodOnlyWhereTheRoutesNeverWorked) {
    setRoute("eth0");
    for (const std::uint64_t generation : {0, 1}) {
        LinuxNetworkInfo source(folder.path("sys"), std::make_unique<FailingRoutes>(generation),
                                std::make_unique<ProcNetRoutes>(folder.path("proc/net")), nullptr);
        EXPECT_EQ(NetworkInfoSampler(source).sample(true, 3).interface.has_value(), generation == 0);
    }
}

} // namespace
} // namespace vantrix

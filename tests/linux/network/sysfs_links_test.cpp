#include "linux/network/sysfs_links.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

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
        {"switched off", "0x1002\n", "up\n", "1\n", 0x1002},
        {"no carrier", "0x1003\n", "", "0\n", 0x1003},
        {"garbled flags", "1003\n", "up\n", "1\n", 0},
        {"flags past 32 bits", "0x100000003\n", "up\n", "1\n", 0},
    };
    for (const Row& row : rows) {
        const TemporaryFolder folder;
        std::filesystem::create_directories(folder.path("class/net/eth0/device"));
        for (const auto& [file, text] :
             {std::pair("flags", row.flags), {"operstate", row.operState}, {"carrier", row.carrier}})
            if (*text != '\0')
                folder.write("class/net/eth0/" + std::string(file), text);
        SysfsLinks links(folder.path(""));
        EXPECT_EQ(links.state("eth0", 0).flags, row.expected) << row.name;
        EXPECT_FALSE(links.state("../net/eth0", 0).isHardware);
        EXPECT_TRUE(links.state("eth0", 3).isHardware);
    }
}

/// A Wi-Fi stick is unplugged and an adapter gets its name; a virtual function is enslaved a moment after it came.
TEST(SysfsLinks, FollowsLinksThatChangeUnderTheirNames) {
    const TemporaryFolder folder;
    for (const char* name : {"eth0", "lan0", "vf0"}) {
        folder.write("class/net/" + std::string(name) + "/ifindex", name[0] == 'e' ? "2\n" : "3\n");
        folder.write("class/net/" + std::string(name) + "/flags", "0x1002\n");
        std::filesystem::create_directories(folder.path("class/net/" + std::string(name) + "/device"));
    }
    folder.write("class/net/lan0/flags", "0x1003\n");
    folder.write("class/net/br0/flags", "0x1003\n");
    SysfsLinks links(folder.path(""));
    const auto stateAfter = [&](int passes, const char* name, std::size_t place) {
        LinkState state;
        for (; passes > 0; --passes) {
            links.refresh();
            state = links.state(name, place);
        }
        return state;
    };
    const auto rename = [&](const char* from, const char* to) {
        std::filesystem::rename(folder.path("class/net/") + from, folder.path("class/net/") + to);
    };
    EXPECT_EQ(stateAfter(1, "eth0", 0).index, 2);
    EXPECT_FALSE(stateAfter(1, "br0", 1).isHardware);
    EXPECT_EQ(stateAfter(1, "vf0", 2).master, 0);
    rename("eth0", "old0");
    rename("lan0", "eth0");
    EXPECT_EQ(stateAfter(1, "eth0", 0).index, 3);
    EXPECT_EQ(stateAfter(1, "eth0", 0).flags, 0x1003u);
    rename("br0", "br1");
    rename("old0", "br0");
    EXPECT_TRUE(stateAfter(SysfsLinks::passesPerLook, "br0", 1).isHardware);
    std::filesystem::create_symlink("../br0", folder.path("class/net/vf0/master"));
    EXPECT_EQ(stateAfter(SysfsLinks::passesPerLook, "vf0", 2).master, 2);
}

} // namespace
} // namespace vantrix

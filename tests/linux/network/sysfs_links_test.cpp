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

} // namespace
} // namespace vantrix

#include "linux/processor/linux_system_information.h"

#include <gtest/gtest.h>

#include "linux/processor/cpu_topology.h"
#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

TEST(ParseCPUList, AcceptsWhatSysfsWritesAndNothingElse) {
    EXPECT_EQ(parseCPUList("0\n"), std::vector{0});
    EXPECT_EQ(parseCPUList("0-2,5,7-8\n"), (std::vector{0, 1, 2, 5, 7, 8}));
    EXPECT_EQ(parseCPUList("\n"), std::vector<int>());
    for (const char* text :
         {"", "0-3", "3-1\n", "0,0\n", "0-99999999\n", "-1\n", "1-\n", "0 1\n", "0\n1\n", "99999999999999999999\n"})
        EXPECT_EQ(parseCPUList(text), std::nullopt) << text;
}

struct LinuxSystemInformationTest : ::testing::Test {
    TemporaryFolder folder;
    LinuxSystemInformation information{folder.path("proc"), folder.path("sys")};

    std::optional<std::string> brandOf(const std::string& cpuInfo) {
        folder.write("proc/cpuinfo", cpuInfo);
        return information.text("machdep.cpu.brand_string");
    }
};

TEST_F(LinuxSystemInformationTest, CoresOfOneCapacityAreOfOneKind) {
    folder.write("sys/devices/system/cpu/online", "0-1\n");
    folder.write("sys/devices/system/cpu/cpu0/cpu_capacity", "1024\n");
    EXPECT_EQ(information.integer("hw.perflevel0.logicalcpu"), std::nullopt);
    folder.write("sys/devices/system/cpu/cpu1/cpu_capacity", "1024\n");
    EXPECT_EQ(information.integer("hw.perflevel1.logicalcpu"), std::nullopt);
    folder.write("sys/devices/system/cpu/cpu1/cpu_capacity", "512\n");
    EXPECT_EQ(information.integer("hw.perflevel0.logicalcpu"), 1);
    EXPECT_EQ(information.integer("hw.perflevel1.logicalcpu"), 1);
}

TEST_F(LinuxSystemInformationTest, BrandIsTidied) {
    EXPECT_EQ(brandOf("flags: x\nmodel name\t:  A \t B  \nmodel name\t: C\n"), "A B");
    EXPECT_EQ(brandOf("model name: Caf\xe9 1\n"), "Caf\xef\xbf\xbd 1");
    EXPECT_EQ(brandOf("model name:   \n"), std::nullopt);
    EXPECT_EQ(brandOf(std::string(100'000, '\0')), std::nullopt);
    folder.write("sys/firmware/devicetree/base/model", std::string("Board\0rest", 10));
    EXPECT_EQ(brandOf("Hardware : x\n"), "Board");
}

} // namespace
} // namespace vantrix

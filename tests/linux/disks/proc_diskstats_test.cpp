#include "linux/disks/proc_diskstats.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

struct DiskStatsSourceTest : ::testing::Test {
    TemporaryFolder folder;
    DiskStatsSource source{folder.path("proc"), folder.path("sys")};
    std::vector<DiskSampler::Counters> disks;

    DiskStatsSourceTest() {
        folder.write("sys/block/sda/device/model", "A\n");
        folder.write("sys/block/sdb/device/model", "B\n");
    }

    bool readAfter(const std::string& text) {
        folder.write("proc/diskstats", text);
        return source.read(disks);
    }
};

TEST_F(DiskStatsSourceTest, FollowsDisksThatComeAndGo) {
    ASSERT_TRUE(readAfter(" 8 0 sda 1 2 3 4 5 6 7 8\n 8 1 sda1 1 2 3 4 5 6 7 8\n"));
    ASSERT_EQ(disks.size(), 1u);
    EXPECT_EQ(disks[0].bytesRead, 3u * 512);
    EXPECT_EQ(disks[0].bytesWritten, 7u * 512);
    ASSERT_TRUE(readAfter(" 8 0 sda 1 2 3 4 5 6 7 8\n 8 1 sdb 1 2 3 4 5 6 7 8\n"));
    EXPECT_EQ(disks.size(), 2u);
    ASSERT_TRUE(readAfter(" 8 1 sdb 1 2 9 4 5 6 7 8\n"));
    ASSERT_EQ(disks.size(), 1u);
    EXPECT_EQ(disks[0].bytesRead, 9u * 512);
}

TEST_F(DiskStatsSourceTest, BytesPast64BitsAreAbsent) {
    // 2^55 - 1 sectors fit once, not twice; 2^55 not even once.
    ASSERT_TRUE(readAfter(" 8 0 sda 1 2 36028797018963967 4 5 6 36028797018963968 8\n"
                          " 8 1 sdb 1 2 36028797018963967 4 5 6 5 8\n"));
    ASSERT_EQ(disks.size(), 2u);
    EXPECT_EQ(disks[0].bytesRead, 36028797018963967u * 512);
    EXPECT_EQ(disks[0].bytesWritten, std::nullopt);
    EXPECT_EQ(disks[1].bytesRead, std::nullopt);
    EXPECT_EQ(disks[1].bytesWritten, 5u * 512);
}

TEST_F(DiskStatsSourceTest, LinesCutShort) {
    EXPECT_FALSE(readAfter(" 8 0 sda 1 2 3 4 5 6 7"));
    ASSERT_TRUE(readAfter(" 8 0 sda 1 2 3 4\n"));
    EXPECT_EQ(disks[0].bytesRead, 3u * 512);
    EXPECT_EQ(disks[0].bytesWritten, std::nullopt);
}

TEST_F(DiskStatsSourceTest, NamesNeverLeadOutOfTheTree) {
    folder.write("sys/device/model", "X\n");
    for (const char* name : {"..", ".", "../block/sda", "sda/../sda", ""})
        EXPECT_FALSE(isPhysicalDisk(folder.path("sys"), name)) << name;
    EXPECT_TRUE(isPhysicalDisk(folder.path("sys"), "sda"));
}

} // namespace
} // namespace vantrix

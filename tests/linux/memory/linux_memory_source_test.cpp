#include "linux/memory/linux_memory_source.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

TEST(ParseMemInfo, TakesAnyOrderAndLeavesOutNonsense) {
    const auto info = parseMemInfo("MemFree: 6 kB\nShmem: 7777777777777777777 kB\nOdd\n:\n"
                                   "Zswap: 5 kB\nMemTotalX: 9 kB\nMemTotal: 100 kB\n"
                                   "ALineWithAVeryLongName: 3 kB\nInactive(anon): 4 kB\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->memTotal, 100u);
    EXPECT_EQ(info->zswap, 5u);
    EXPECT_EQ(info->memFree, 6u);
    EXPECT_EQ(info->inactiveAnon, 4u);
    EXPECT_EQ(info->shmem, std::nullopt);
}

TEST(MemoryPressure, ComesFromAvailableMemoryStallsAndSwap) {
    struct Row {
        std::uint64_t available; // of 1000
        std::optional<PressureStall> stall;
        std::int64_t level;
        std::uint64_t swapFree = 0; // of 1000
        std::uint64_t zfsCache = 0;
    };
    const PressureStall none;
    const Row rows[] = {
        {49, none, 4},         {50, none, 2},          {119, none, 2},          {120, none, 1},
        {49, none, 2, 100},    {49, none, 4, 99},      {49, {{20, 0}}, 4, 100}, {49, {{19.9, 0}}, 2, 100},
        {249, {{20, 20}}, 4},  {249, {{20, 0}}, 2},    {249, {{19.9, 0}}, 1},   {250, {{90, 90}}, 1},
        {119, {{90, 20}}, 4},  {119, {{90, 19.9}}, 2}, {49, {}, 4, 1000},       {50, {}, 2, 1000},
        {20, none, 1, 0, 100}, {20, none, 2, 0, 99},   {20, none, 4, 0, 29},
    };
    for (const Row& row : rows) {
        const MemInfo info{.memTotal = 1000,
                           .memFree = row.available,
                           .memAvailable = row.available,
                           .swapTotal = 1000,
                           .swapFree = row.swapFree};
        const auto statistics = memoryStatistics(info, row.stall, {0, row.zfsCache * 1024});
        EXPECT_EQ(statistics.pressureLevel, row.level)
            << row.available << ' ' << row.stall.value_or(none).some << ' ' << row.swapFree << ' ' << row.zfsCache;
    }
}

/// A container may see its own total beside the machine's counters.
TEST(MemoryStatistics, NoPartIsMoreThanTheWhole) {
    const auto statistics = memoryStatistics({.memTotal = 1000, .memFree = 600, .anonPages = 5000}, {}, {4096, 4096});
    EXPECT_EQ(statistics.internalPageCount, 400u);
    EXPECT_EQ(statistics.compressorPageCount + statistics.wireCount, 0u);
}

TEST(ZFSCache, IsLookedForNowAndThenAndKeptOpen) {
    const TemporaryFolder folder;
    const std::string file = "spl/kstat/zfs/arcstats";
    ZFSCache cache(folder.path(""));
    EXPECT_EQ(cache.reclaimable(), 0u);
    folder.write(file + "/cannot be read", "");
    for (int pass = 0; pass < 60; ++pass)
        EXPECT_EQ(cache.reclaimable(), 0u);
    folder.remove(file);
    folder.write(file, "c_min 4 100\nmeta_size 4 9\nsize 4 700\n");
    for (int pass = 1; pass < 6; ++pass)
        EXPECT_EQ(cache.reclaimable(), pass == 5 ? 600u : 0u); // sooner after a failure
    folder.write(file, "c_min 4 100\nsize 4 99\n");
    EXPECT_EQ(cache.reclaimable(), 0u);
    folder.write(file, "c_min 4 100\nsize 4 102\n");
    folder.remove(file);
    EXPECT_EQ(cache.reclaimable(), 2u);
}

TEST(LinuxMemorySource, LooksForCompressedDisksWhenSwapChanges) {
    const TemporaryFolder folder;
    LinuxMemorySource source(folder.path("proc"), folder.path("sys"));
    const auto compressedAfter = [&](const std::string& swapTotal) {
        folder.write("proc/meminfo", "MemTotal: 1000000 kB\nMemFree: 0 kB\nSwapTotal: " + swapTotal + " kB\n");
        return source.read()->compressorPageCount;
    };
    EXPECT_EQ(compressedAfter("0"), 0u);
    folder.write("sys/block/zram0/initstate", "1\n");
    folder.write("sys/block/zram0/mm_stat", " 9 9 4096 0\n");
    EXPECT_EQ(compressedAfter("0"), 0u);
    EXPECT_EQ(compressedAfter("500"), 4u);
    folder.write("sys/block/zram0/mm_stat", " 9 9 8192 0\n");
    EXPECT_EQ(compressedAfter("500"), 8u);
    folder.write("sys/block/zram0/mm_stat", " 9 9 18446744073709551615 0\n");
    EXPECT_EQ(compressedAfter("500"), 0u);
}

} // namespace
} // namespace vantrix

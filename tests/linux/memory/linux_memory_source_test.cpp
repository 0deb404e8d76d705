#include "linux/memory/linux_memory_source.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

TEST(ParseMemInfo, RefusesATextWithoutABelievableTotal) {
    const char* const texts[] = {
        "",
        "MemFree: 1 kB\n",
        "MemTotal: 0 kB\n",
        "MemTotal: 1125899906842625 kB\n", // past 2^50
        "MemTotal: 100 kB\nMemFree: 1",
    };
    for (const char* text : texts)
        EXPECT_FALSE(parseMemInfo(text)) << text;
}

TEST(ParseMemInfo, TakesAnyOrderAndLeavesOutNonsense) {
    const auto info = parseMemInfo("Hugetlb: 6 kB\nPercpu: 7777777777777777777 kB\nOdd\n:\n"
                                   "Zswap: 5 kB\nMemTotalX: 9 kB\nMemTotal: 100 kB\n"
                                   "ALineWithAVeryLongName: 3 kB\nInactive(anon): 4 kB\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->memTotal, 100u);
    EXPECT_EQ(info->zswap, 5u);
    EXPECT_EQ(info->hugetlb, 6u);
    EXPECT_EQ(info->inactiveAnon, 4u);
    EXPECT_EQ(info->percpu, std::nullopt);
}

TEST(ParsePressure, NeedsALineSomeThatMakesSense) {
    const auto stall = parsePressure("some avg10=1.50 avg60=9.00\nfull avg10=0.25 avg60=9.00\n");
    ASSERT_TRUE(stall);
    EXPECT_DOUBLE_EQ(stall->some, 1.5);
    EXPECT_DOUBLE_EQ(stall->full, 0.25);
    for (const char* text : {"", "full avg10=1.00\n", "some avg10=\n", "some avg10=nan\n", "some avg10=-1\n",
                             "some avg10=1e9\n", "some avg60=1\n", "some avg10=1.5x\n", "some avg10=1.50"})
        EXPECT_FALSE(parsePressure(text)) << text;
}

TEST(MemoryPressure, ComesFromAvailableMemoryAndStalls) {
    struct Row {
        std::uint64_t available; // of 1000
        double some;
        double full;
        std::int64_t level;
    };
    const Row rows[] = {
        {49, 0, 0, 4},   {50, 0, 0, 2},     {119, 0, 0, 2},   {120, 0, 0, 1},  {249, 0, 20, 4},
        {249, 20, 0, 2}, {249, 19.9, 0, 1}, {250, 90, 90, 1}, {119, 0, 20, 4}, {249, 0, 19.9, 1},
    };
    for (const Row& row : rows) {
        MemInfo info;
        info.memTotal = 1000;
        info.memAvailable = row.available;
        EXPECT_EQ(memoryStatistics(info, PressureStall{row.some, row.full}, 0).pressureLevel, row.level)
            << row.available << ' ' << row.some << ' ' << row.full;
    }
}

TEST(LinuxMemorySource, LooksForCompressedDisksWhenSwapChanges) {
    const TemporaryFolder folder;
    LinuxMemorySource source(folder.path("proc"), folder.path("sys"));
    const auto compressedAfter = [&](const std::string& swapTotal) {
        folder.write("proc/meminfo", "MemTotal: 1000000 kB\nSwapTotal: " + swapTotal + " kB\n");
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

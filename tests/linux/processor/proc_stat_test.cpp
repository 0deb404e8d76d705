#include "linux/processor/proc_stat.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

using Ticks = CPUSampler::Ticks; // user, system, idle, nice

TEST(ParseProcStat, RefusesNonsense) {
    const std::string texts[] = {
        "",
        "intr 1\n",
        "cpu0 1 2 3 4\ncpu1 1 2 3", // cut short
        "cpu0 1 2 3\n",             // no idle time
        "cpu0 1 2 -3 4\n",
        "cpu0 18446744073709551616 2 3 4\n", // 2^64
        std::string("cpu0 1 \0 3 4\n", 14),
    };
    std::vector<CoreTicks> cores;
    for (const std::string& text : texts)
        EXPECT_FALSE(parseProcStat(text, cores)) << text;
}

TEST(SteadyCounter, HoldsThroughSmallStepsBackAndGoesOnAfterAReset) {
    SteadyCounter counter;
    EXPECT_EQ(counter.advance(5'000'000'000), 705'032'704u); // truncated to 32 bits
    EXPECT_EQ(counter.advance(4'999'999'998), 705'032'704u);
    EXPECT_EQ(counter.advance(5'000'000'003), 705'032'707u);
    EXPECT_EQ(counter.advance(100), 705'032'707u);
    EXPECT_EQ(counter.advance(110), 705'032'717u);
}

TEST(ProcStatSource, NoCoreStepsBack) {
    const struct {
        const char* name;
        std::vector<std::string> texts; // one after another
        std::vector<Ticks> cores;       // after the last
    } rows[] = {
        {"guests are users already", {"cpu0 1 2 4 8 16 32 64 128 256 512\n"}, {{1, 228, 24, 2}}},
        {"less waiting", {"cpu0 10 0 0 100 7\n", "cpu0 11 0 0 101 4\n"}, {{11, 0, 107, 0}}},
        {"another core in the place",
         {"cpu0 10 0 0 100\ncpu1 20 0 0 200\n", "cpu0 11 0 0 100\ncpu2 9000 0 0 9000\n",
          "cpu0 11 0 0 100\ncpu2 9005 0 0 9001\n"},
         {{11, 0, 100, 0}, {25, 0, 201, 0}}},
        {"another count", {"cpu0 10 0 0 100\ncpu1 20 0 0 200\n", "cpu1 21 0 0 200\n"}, {{21, 0, 200, 0}}},
        {"nothing in between", {"cpu1 21 0 0 200\n", "", "cpu1 22 0 0 200\n"}, {{22, 0, 200, 0}}},
    };
    for (const auto& row : rows) {
        const TemporaryFolder folder;
        ProcStatSource source(folder.path(""));
        std::vector<Ticks> cores;
        for (const std::string& text : row.texts) {
            folder.write("stat", text);
            EXPECT_EQ(source.read(cores), !text.empty()) << row.name;
        }
        EXPECT_EQ(cores, row.cores) << row.name;
    }
}

} // namespace
} // namespace vantrix

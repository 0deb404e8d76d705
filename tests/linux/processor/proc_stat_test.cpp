#include "linux/processor/proc_stat.h"

#include <gmock/gmock.h>

#include "linux/temporary_folder.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using Ticks = CPUSampler::Ticks; // user, system, idle, nice

TEST(ParseProcStat, AddsUpWhatTheSamplerTellsApart) {
    std::vector<CoreTicks> cores;
    ASSERT_TRUE(parseProcStat("cpu  1 2 3 4\ncpu0 1 2 4 8 16 32 64 128 256 512\nintr 9\n", cores));
    ASSERT_EQ(cores.size(), 1u);
    EXPECT_EQ(cores[0].user, 1u);
    EXPECT_EQ(cores[0].nice, 2u);
    EXPECT_EQ(cores[0].system, 4u + 32 + 64 + 128);
    EXPECT_EQ(cores[0].idle, 8u + 16);
}

TEST(ParseProcStat, RefusesNonsense) {
    const std::string texts[] = {
        "",
        "cpu  1 2 3 4\n",
        "intr 1\n",
        "cpu0 1 2 3",               // cut short
        "cpu0 1 2 3 4\ncpu1 1 2 3", // cut short in the last core
        "cpu0 1 2 3\n",             // no idle time
        "cpu0 1 2 x 4\n",
        "cpu0 1 2 -3 4\n",
        "cpu0 18446744073709551616 2 3 4\n", // 2^64
        "cpux 1 2 3 4\n",
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

struct ProcStatSourceTest : ::testing::Test {
    TemporaryFolder folder;
    ProcStatSource source{folder.path("")};
    std::vector<Ticks> cores;

    bool readAfter(const std::string& text) {
        folder.write("stat", text);
        return source.read(cores);
    }
};

TEST_F(ProcStatSourceTest, IdleTimeNeverStepsBack) {
    ASSERT_TRUE(readAfter("cpu0 10 0 0 100 7\n"));
    ASSERT_TRUE(readAfter("cpu0 11 0 0 101 4\n"));
    EXPECT_THAT(cores, ElementsAre(Ticks{11, 0, 107, 0}));
}

TEST_F(ProcStatSourceTest, AnotherCoreInTheSamePlaceGoesOnWhereTheLastWas) {
    ASSERT_TRUE(readAfter("cpu0 10 0 0 100\ncpu1 20 0 0 200\n"));
    ASSERT_TRUE(readAfter("cpu0 11 0 0 100\ncpu2 9000 0 0 9000\n"));
    EXPECT_THAT(cores, ElementsAre(Ticks{11, 0, 100, 0}, Ticks{20, 0, 200, 0}));
    ASSERT_TRUE(readAfter("cpu0 11 0 0 100\ncpu2 9005 0 0 9001\n"));
    EXPECT_EQ(cores[1], (Ticks{25, 0, 201, 0}));
}

TEST_F(ProcStatSourceTest, AnotherCountStartsAfresh) {
    ASSERT_TRUE(readAfter("cpu0 10 0 0 100\ncpu1 20 0 0 200\n"));
    ASSERT_TRUE(readAfter("cpu1 21 0 0 200\n"));
    EXPECT_THAT(cores, ElementsAre(Ticks{21, 0, 200, 0}));
    EXPECT_FALSE(readAfter(""));
    ASSERT_TRUE(readAfter("cpu1 22 0 0 200\n"));
    EXPECT_EQ(cores[0].user, 22u);
}

} // namespace
} // namespace vantrix

#include "samplers/memory_sampler.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

struct FakeSource : MemorySampler::Source {
    std::optional<MemorySampler::Statistics> next;
    std::optional<MemorySampler::Statistics> read() override { return next; }
};

struct MemorySamplerTest : ::testing::Test {
    FakeSource source;
    MemorySampler sampler{source};
};

using MemorySamplerDeathTest = MemorySamplerTest;

MemorySampler::Statistics counts(std::uint64_t wire, std::uint64_t purgeable, std::uint64_t compressor,
                                 std::uint64_t internal) {
    MemorySampler::Statistics statistics;
    statistics.wireCount = wire;
    statistics.purgeableCount = purgeable;
    statistics.compressorPageCount = compressor;
    statistics.internalPageCount = internal;
    statistics.pageSize = 4096;
    statistics.physicalMemory = 1 << 20;
    return statistics;
}

TEST_F(MemorySamplerTest, CountsBecomeBytes) {
    source.next = counts(3, 2, 5, 12);
    source.next->swapUsed = 77;
    EXPECT_EQ(sampler.sample(), (MemorySample{1 << 20, 40960, 12288, 20480, 77, MemorySample::Pressure::normal}));
}

TEST_F(MemorySamplerTest, PurgeableMayExceedInternalForAMoment) {
    source.next = counts(0, 9, 0, 8);
    EXPECT_EQ(sampler.sample()->app, 0u);
}

TEST_F(MemorySamplerTest, UnreadableStatisticsAreAbsent) {
    EXPECT_EQ(sampler.sample(), std::nullopt);
}

TEST_F(MemorySamplerTest, SwapThatCannotBeReadIsZero) {
    source.next = counts(0, 0, 0, 0);
    EXPECT_EQ(sampler.sample()->swapUsed, 0u);
}

TEST_F(MemorySamplerTest, PressureFollowsTheKernelsScale) {
    using Pressure = MemorySample::Pressure;
    const std::pair<std::optional<std::int64_t>, Pressure> rows[] = {
        {std::nullopt, Pressure::normal}, {-1, Pressure::normal}, {0, Pressure::normal},   {1, Pressure::normal},
        {2, Pressure::warning},           {3, Pressure::warning}, {4, Pressure::critical}, {8, Pressure::critical},
    };
    for (const auto& [level, pressure] : rows) {
        source.next = counts(0, 0, 0, 0);
        source.next->pressureLevel = level;
        EXPECT_EQ(sampler.sample()->pressure, pressure) << level.value_or(-99);
    }
}

TEST_F(MemorySamplerDeathTest, OverflowIsAFault) {
    constexpr std::uint64_t many = std::uint64_t{1} << 53;
    source.next = counts(0, 0, 0, many);
    EXPECT_DEATH(sampler.sample(), "application memory overflows");
    source.next = counts(many, 0, 0, 0);
    EXPECT_DEATH(sampler.sample(), "wired memory overflows");
    source.next = counts(0, 0, many, 0);
    EXPECT_DEATH(sampler.sample(), "compressed memory overflows");
}

TEST(MemoryUsedFraction, IsClampedAndNeedsATotal) {
    EXPECT_DOUBLE_EQ(usedFraction({100, 10, 20, 30, 0, {}}), 0.6);
    EXPECT_DOUBLE_EQ(usedFraction({100, 90, 20, 30, 0, {}}), 1.0);
    EXPECT_DOUBLE_EQ(usedFraction({0, 10, 20, 30, 0, {}}), 0.0);
}

TEST(MemoryUsedFractionDeathTest, SumPast64BitsIsAFault) {
    EXPECT_DEATH(usedFraction({100, ~std::uint64_t{0}, 1, 0, 0, {}}),
                 "sum of app, wired and compressed memory overflows");
}

} // namespace
} // namespace vantrix

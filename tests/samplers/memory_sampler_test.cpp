#include "samplers/memory_sampler.h"

#include <gtest/gtest.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using Statistics = MemorySampler::Statistics;
using Pressure = MemorySample::Pressure;

std::optional<MemorySample> sampleOf(const std::optional<Statistics>& statistics) {
    fakes::FakeMemory source;
    source.statistics = statistics;
    return MemorySampler(source).sample();
}

TEST(MemorySampler, TurnsCountsOfPagesIntoBytes) {
    Statistics statistics{3, 2, 5, 12, 4096, 1 << 20, 77, std::nullopt};
    EXPECT_EQ(sampleOf(statistics), (MemorySample{1 << 20, 40960, 12288, 20480, 77, Pressure::normal}));
    statistics.swapUsed.reset();
    EXPECT_EQ(sampleOf(statistics)->swapUsed, 0u);
    statistics.purgeableCount = 13; // for a moment
    EXPECT_EQ(sampleOf(statistics)->app, 0u);
    EXPECT_EQ(sampleOf(std::nullopt), std::nullopt);
}

TEST(MemorySampler, PressureFollowsTheKernelsScale) {
    const std::pair<std::int64_t, Pressure> rows[] = {
        {1, Pressure::normal}, {2, Pressure::warning}, {3, Pressure::warning}, {4, Pressure::critical}};
    for (const auto& [level, pressure] : rows)
        EXPECT_EQ(sampleOf(Statistics{.pressureLevel = level})->pressure, pressure) << level;
}

TEST(MemoryUsedFraction, IsClampedAndNeedsATotal) {
    EXPECT_EQ(usedFraction(MemorySample{100, 90, 20, 30, 0, {}}), 1.0);
    EXPECT_EQ(usedFraction(MemorySample{0, 10, 20, 30, 0, {}}), 0.0);
}

} // namespace
} // namespace vantrix

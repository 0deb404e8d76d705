#include "samplers/disk_sampler.h"

#include <gtest/gtest.h>

#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using Disks = std::vector<DiskSampler::Counters>;
using Volume = DiskSampler::Volume;

struct FakeCounters : DiskSampler::CounterSource {
    std::optional<Disks> next;

    bool read(std::vector<DiskSampler::Counters>& disks) override {
        disks = next.value_or(Disks{{1, 1}}); // what a failed read leaves must not matter
        return next.has_value();
    }
};

struct FakeVolume : DiskSampler::VolumeSource {
    std::optional<Volume> next = Volume{1000, 400};
    std::optional<Volume> read() override { return next; }
};

struct DiskSamplerTest : ::testing::Test {
    FakeCounters counters;
    FakeVolume volume;
    FakeClock clock;
    DiskSampler sampler{counters, volume, clock};

    /// The sample `seconds` after the one before.
    DiskSample sampleOf(std::optional<Disks> disks, double seconds = 2.0) {
        clock.now += seconds;
        counters.next = std::move(disks);
        return sampler.sample();
    }
};

using DiskSamplerDeathTest = DiskSamplerTest;

DiskSample withRates(double read, double write) {
    return {1000, 400, read, write};
}

constexpr DiskSample withoutRates{1000, 400, std::nullopt, std::nullopt};

TEST_F(DiskSamplerTest, RatesBeginWithTheSecondPassAndCoverAllDisks) {
    EXPECT_EQ(sampleOf(Disks{{100, 10}, {200, 20}}), withoutRates);
    EXPECT_EQ(sampleOf(Disks{{110, 14}, {250, 20}}), withRates(30.0, 2.0));
}

TEST_F(DiskSamplerTest, MissingCounterIsZero) {
    sampleOf(Disks{{0, std::nullopt}});
    EXPECT_EQ(sampleOf(Disks{{8, std::nullopt}}), withRates(4.0, 0.0));
}

TEST_F(DiskSamplerTest, CountersThatFallMeanNothingMoved) {
    sampleOf(Disks{{500, 500}});
    EXPECT_EQ(sampleOf(Disks{{100, 600}}), withRates(0.0, 50.0));
    EXPECT_EQ(sampleOf(Disks{{120, 600}}), withRates(10.0, 0.0)); // the lower value is the baseline
}

TEST_F(DiskSamplerTest, FailedReadKeepsTheBaseline) {
    sampleOf(Disks{{0, 0}});
    EXPECT_EQ(sampleOf(std::nullopt), withoutRates);
    EXPECT_EQ(sampleOf(Disks{}), withoutRates);
    EXPECT_EQ(sampleOf(Disks{{60, 6}}), withRates(10.0, 1.0));
}

TEST_F(DiskSamplerTest, NoTimeElapsedRenewsTheBaseline) {
    sampleOf(Disks{{0, 0}});
    EXPECT_EQ(sampleOf(Disks{{50, 50}}, 0.0), withoutRates);
    EXPECT_EQ(sampleOf(Disks{{54, 50}}), withRates(2.0, 0.0));
}

TEST_F(DiskSamplerTest, SpaceIsZeroWhereItCannotBeTold) {
    const std::pair<std::optional<Volume>, std::pair<std::uint64_t, std::uint64_t>> rows[] = {
        {std::nullopt, {0, 0}},
        {Volume{std::nullopt, 5}, {0, 5}},
        {Volume{7, std::nullopt}, {7, 0}},
        {Volume{7, -3}, {7, 0}},
    };
    for (const auto& [given, expected] : rows) {
        volume.next = given;
        const auto sample = sampler.sample();
        EXPECT_EQ(std::pair(sample.total, sample.available), expected);
    }
}

TEST_F(DiskSamplerDeathTest, NegativeCapacityAndOverflowAreFaults) {
    constexpr auto most = ~std::uint64_t{0};
    EXPECT_DEATH(sampleOf(Disks{{most, 0}, {1, 0}}), "sum of bytes read from all disks overflows");
    EXPECT_DEATH(sampleOf(Disks{{0, most}, {0, 1}}), "sum of bytes written to all disks overflows");
    volume.next = Volume{-1, 0};
    EXPECT_DEATH(sampler.sample(), "total capacity of the volume is negative");
}

TEST(DiskUsedFraction, IsClampedAndNeedsATotal) {
    EXPECT_DOUBLE_EQ(usedFraction({1000, 400, {}, {}}), 0.6);
    EXPECT_DOUBLE_EQ(usedFraction({1000, 1400, {}, {}}), 0.0);
    EXPECT_DOUBLE_EQ(usedFraction({0, 400, {}, {}}), 0.0);
}

} // namespace
} // namespace vantrix

#include "samplers/disk_sampler.h"

#include <gtest/gtest.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using Disks = std::vector<DiskSampler::Counters>;

struct DiskSamplerTest : ::testing::Test {
    fakes::FakeDisks counters;
    fakes::FakeVolume volume;
    FakeClock clock;
    DiskSampler sampler{counters, volume, clock};
};

using DiskSamplerDeathTest = DiskSamplerTest;

TEST_F(DiskSamplerTest, RatesAreMeasuredFromOneGoodReadingToTheNext) {
    const struct {
        const char* name;
        double seconds; // since the step before
        std::optional<Disks> disks;
        std::optional<double> read;
        std::optional<double> written;
    } steps[] = {
        {"the first", 2.0, Disks{{100, 10}, {200, 20}}, {}, {}},
        {"over all disks", 2.0, Disks{{110, 14}, {250, 20}}, 30.0, 2.0},
        {"one went, and a counter", 2.0, Disks{{368, std::nullopt}}, 4.0, 0.0},
        {"reset", 2.0, Disks{{100, 100}}, 0.0, 50.0},
        {"from the lower value", 2.0, Disks{{120, 100}}, 10.0, 0.0},
        {"cannot be read", 2.0, std::nullopt, {}, {}},
        {"no disk", 2.0, Disks{}, {}, {}},
        {"over the whole gap", 2.0, Disks{{180, 106}}, 10.0, 1.0},
        {"no time elapsed", 0.0, Disks{{200, 106}}, {}, {}},
        {"a clock set back", -1.0, Disks{{220, 106}}, {}, {}},
        {"since then", 2.0, Disks{{224, 106}}, 2.0, 0.0},
    };
    for (const auto& step : steps) {
        clock.now += step.seconds;
        counters.disks = step.disks;
        EXPECT_EQ(sampler.sample(), (DiskSample{1000, 400, step.read, step.written})) << step.name;
    }
}

TEST_F(DiskSamplerTest, SpaceIsZeroWhereItCannotBeTold) {
    volume.volume = DiskSampler::Volume{7, -3};
    EXPECT_EQ(sampler.sample(), (DiskSample{7, 0, {}, {}}));
    volume.volume.reset();
    EXPECT_EQ(sampler.sample().total, 0u);
    EXPECT_EQ(usedFraction(DiskSample{1000, 1400, {}, {}}), 0.0) << "more is free than there is";
}

TEST_F(DiskSamplerDeathTest, NegativeCapacityIsAFault) {
    volume.volume = DiskSampler::Volume{-1, 0};
    EXPECT_DEATH(sampler.sample(), "total capacity of the volume is negative");
}

} // namespace
} // namespace vantrix

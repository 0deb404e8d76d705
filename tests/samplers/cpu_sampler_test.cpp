#include "samplers/cpu_sampler.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using Cores = std::vector<CPUSampler::Ticks>; // user, system, idle, nice

struct FakeSource : CPUSampler::Source {
    std::optional<Cores> next;

    bool read(std::vector<CPUSampler::Ticks>& cores) override {
        cores = next.value_or(Cores(7)); // what a failed read leaves must not matter
        return next.has_value();
    }
};

struct CPUSamplerTest : ::testing::Test {
    FakeSource source;
    CPUSampler sampler{source};

    CPUSample sampleOf(const Cores& cores) {
        source.next = cores;
        return *sampler.sample();
    }
};

TEST_F(CPUSamplerTest, FirstCallIsAnIdleBaseline) {
    EXPECT_EQ(sampleOf({{1, 2, 3, 4}, {5, 6, 7, 8}}), (CPUSample{0.0, 0.0, 0.0, {0.0, 0.0}}));
    EXPECT_TRUE(sampler.isBaseline());
    sampleOf({{2, 2, 3, 4}, {5, 6, 7, 8}});
    EXPECT_FALSE(sampler.isBaseline());
}

TEST_F(CPUSamplerTest, TotalsAreWeightedByTicks) {
    sampleOf({{0, 0, 0, 0}, {0, 0, 0, 0}});
    const auto sample = sampleOf({{20, 10, 270, 0}, {100, 0, 0, 0}});
    EXPECT_THAT(sample.perCore, ElementsAre(0.1, 1.0));
    EXPECT_DOUBLE_EQ(sample.total, 130.0 / 400.0); // the plain mean would be 0.55
    EXPECT_DOUBLE_EQ(sample.user, 120.0 / 400.0);
    EXPECT_DOUBLE_EQ(sample.system, 10.0 / 400.0);
}

TEST_F(CPUSamplerTest, NiceTimeIsBusyUserTime) {
    sampleOf({{0, 0, 0, 5}});
    EXPECT_EQ(sampleOf({{0, 0, 0, 15}}), (CPUSample{1.0, 1.0, 0.0, {1.0}}));
}

TEST_F(CPUSamplerTest, CountersWrap) {
    sampleOf({{4294967290u, 0, 100, 0}});
    EXPECT_EQ(sampleOf({{5, 0, 111, 0}}), (CPUSample{0.5, 0.5, 0.0, {0.5}})); // 11 of 22
}

TEST_F(CPUSamplerTest, NoTicksElapsedIsNoLoad) {
    sampleOf({{1, 2, 3, 4}});
    EXPECT_EQ(sampleOf({{1, 2, 3, 4}}), (CPUSample{0.0, 0.0, 0.0, {0.0}}));
}

TEST_F(CPUSamplerTest, AnotherCoreCountStartsOver) {
    sampleOf({{0, 0, 0, 0}});
    EXPECT_EQ(sampleOf({{9, 0, 1, 0}, {9, 0, 1, 0}}), (CPUSample{0.0, 0.0, 0.0, {0.0, 0.0}}));
    EXPECT_TRUE(sampler.isBaseline());
    EXPECT_DOUBLE_EQ(sampleOf({{9, 0, 2, 0}, {10, 0, 1, 0}}).total, 0.5);
}

TEST_F(CPUSamplerTest, FailedReadKeepsTheBaseline) {
    source.next.reset();
    EXPECT_EQ(sampler.sample(), nullptr);
    sampleOf({{0, 0, 0, 0}});
    source.next.reset();
    EXPECT_EQ(sampler.sample(), nullptr);
    EXPECT_DOUBLE_EQ(sampleOf({{30, 0, 10, 0}}).total, 0.75);
    EXPECT_FALSE(sampler.isBaseline());
}

} // namespace
} // namespace vantrix

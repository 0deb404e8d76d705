#include "samplers/cpu_sampler.h"

#include <gtest/gtest.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using Cores = std::vector<CPUSampler::Ticks>; // user, system, idle, nice

struct CPUSamplerTest : ::testing::Test {
    fakes::FakeCPU source;
    CPUSampler sampler{source};

    CPUSample sampleOf(const Cores& cores) {
        source.cores = cores;
        return *sampler.sample();
    }
};

TEST_F(CPUSamplerTest, MeasuresTheTicksBetweenTwoReads) {
    const struct {
        const char* name;
        Cores before;
        Cores after;
        CPUSample sample; // total, user, system, per core
    } rows[] = {
        {"weighted by ticks", Cores(2), {{20, 10, 270, 0}, {100, 0, 0, 0}}, {0.325, 0.3, 0.025, {0.1, 1.0}}},
        {"nice time is busy", {{0, 0, 0, 5}}, {{0, 0, 0, 15}}, {1.0, 1.0, 0.0, {1.0}}},
        {"wrapping", {{4294967290u, 0, 100, 0}}, {{5, 0, 111, 0}}, {0.5, 0.5, 0.0, {0.5}}}, // 11 of 22
        {"no ticks elapsed", {{1, 2, 3, 4}}, {{1, 2, 3, 4}}, {0.0, 0.0, 0.0, {0.0}}},
        {"a core more", Cores(1), {{9, 0, 1, 0}, {9, 0, 1, 0}}, {0.0, 0.0, 0.0, {0.0, 0.0}}},
    };
    for (const auto& row : rows) {
        CPUSampler fresh(source);
        source.cores = row.before;
        EXPECT_EQ(*fresh.sample(), (CPUSample{.perCore = std::vector<double>(row.before.size())})) << row.name;
        EXPECT_TRUE(fresh.isBaseline()) << row.name;
        source.cores = row.after;
        EXPECT_EQ(*fresh.sample(), row.sample) << row.name;
        EXPECT_EQ(fresh.isBaseline(), row.before.size() != row.after.size()) << row.name;
    }
}

TEST_F(CPUSamplerTest, AnotherCoreCountIsABaselineAndAFailedReadKeepsIt) {
    sampleOf(Cores(1));
    sampleOf(Cores(2));
    source.cores.reset();
    EXPECT_EQ(sampler.sample(), nullptr);
    EXPECT_EQ(sampleOf({{30, 0, 10, 0}, {0, 0, 40, 0}}).total, 0.375);
    EXPECT_FALSE(sampler.isBaseline());
}

} // namespace
} // namespace vantrix

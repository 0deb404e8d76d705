#include "samplers/cpu_sampler.h"

#include <gtest/gtest.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using Cores = std::vector<CPUSampler::Ticks>; // user, system, idle, nice

TEST(CPUSampler, MeasuresTheTicksFromOneGoodReadingToTheNext) {
    const struct {
        const char* name;
        std::optional<Cores> cores;
        std::optional<CPUSample> sample; // total, user, system, per core
        bool isBaseline = false;
    } steps[] = {
        {"the first", Cores(2), CPUSample{.perCore = {0.0, 0.0}}, true},
        {"weighted by ticks", {{{20, 10, 270, 0}, {100, 0, 0, 0}}}, {{0.325, 0.3, 0.025, {0.1, 1.0}}}},
        {"a core less", {{{4294967290u, 0, 100, 0}}}, CPUSample{.perCore = {0.0}}, true},
        {"wrapping", {{{5, 0, 111, 0}}}, {{0.5, 0.5, 0.0, {0.5}}}}, // 11 of 22
        {"no ticks elapsed", {{{5, 0, 111, 0}}}, CPUSample{.perCore = {0.0}}},
        {"cannot be read", std::nullopt, std::nullopt},
        {"nice time is busy", {{{5, 0, 121, 30}}}, {{0.75, 0.75, 0.0, {0.75}}}},
    };
    fakes::FakeCPU source;
    CPUSampler sampler(source);
    for (const auto& step : steps) {
        source.cores = step.cores;
        const CPUSample* const sample = sampler.sample();
        EXPECT_EQ(sample ? std::optional(*sample) : std::nullopt, step.sample) << step.name;
        EXPECT_EQ(sampler.isBaseline(), step.isBaseline) << step.name;
    }
}

} // namespace
} // namespace vantrix

#include "samplers/network_sampler.h"

#include <gtest/gtest.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using Links = std::vector<NetworkSampler::Link>;

NetworkSampler::Link port(const char* name, std::uint32_t received, std::uint32_t sent) {
    return {name, NetworkSampler::linkUp | NetworkSampler::linkRunning, NetworkSampler::Counters{received, sent}};
}

TEST(NetworkSampler, RatesAreMeasuredFromOneGoodReadingToTheNext) {
    constexpr NetworkSample silence;
    const struct {
        const char* name;
        double seconds; // since the step before
        std::optional<Links> links;
        std::optional<NetworkSample> sample;
    } steps[] = {
        {"cannot be read", 2.0, std::nullopt, std::nullopt},
        {"the first", 2.0, Links{port("en0", 100, 10), port("en1", 0, 0)}, silence},
        {"over all ports", 2.0, Links{port("en1", 5, 0), port("en0", 200, 11)}, {{52.5, 0.5}}},
        {"a port more", 2.0, Links{port("en0", 202, 11), port("en5", 4000, 4000)}, {{1.0, 0.0}}},
        {"a port less", 2.0, Links{port("en5", 4294967000u, 4294967295u)}, {{2147481500.0, 2147481647.5}}},
        {"wrapping", 1.0, Links{port("en5", 704, 0)}, {{1000.0, 1.0}}},
        {"listed twice", 2.0, Links{port("en5", 900, 0), port("en5", 712, 6)}, {{4.0, 3.0}}},
        {"no time elapsed", 0.0, Links{port("en5", 762, 6)}, silence},
        {"a clock set back", -1.0, Links{port("en5", 772, 6)}, silence},
        {"since then", 2.0, Links{port("en5", 776, 6)}, {{2.0, 0.0}}},
        {"cannot be read any more", 2.0, std::nullopt, std::nullopt},
        {"nothing listed", 2.0, Links{}, std::nullopt},
        {"over the whole gap", 2.0, Links{port("en5", 836, 18)}, {{10.0, 2.0}}},
    };
    fakes::FakeNetwork source;
    FakeClock clock;
    NetworkSampler sampler(source, clock);
    for (const auto& step : steps) {
        clock.now += step.seconds;
        source.links = step.links;
        EXPECT_EQ(sampler.sample(), step.sample) << step.name;
    }
}

} // namespace
} // namespace vantrix

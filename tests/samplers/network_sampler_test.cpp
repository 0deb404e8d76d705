#include "samplers/network_sampler.h"

#include <gtest/gtest.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using Links = std::vector<NetworkSampler::Link>;

NetworkSampler::Link port(const char* name, std::uint64_t received, std::uint64_t sent, int index = 0) {
    return {name, NetworkSampler::linkUp | NetworkSampler::linkRunning, NetworkSampler::Counters{received, sent},
            index};
}

constexpr NetworkSample silence;

struct Step {
    const char* name;
    double seconds; // since the step before
    std::optional<Links> links;
    std::optional<NetworkSample> sample;
};

void expectSteps(NetworkSampler::CounterWidth width, std::initializer_list<Step> steps) {
    fakes::FakeNetwork source;
    source.width = width;
    FakeClock clock;
    NetworkSampler sampler(source, clock);
    for (const Step& step : steps) {
        clock.now += step.seconds;
        source.links = step.links;
        EXPECT_EQ(sampler.sample(), step.sample) << step.name;
    }
}

TEST(NetworkSampler, RatesAreMeasuredFromOneGoodReadingToTheNext) {
    const std::initializer_list<Step> steps = {
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
    expectSteps(NetworkSampler::CounterWidth::bits32, steps);
}

TEST(NetworkSampler, CountersOf64BitsAreTakenInFullAndNeverWrap) {
    constexpr std::uint64_t fast = 6'250'000'000; // bytes in 5 s at 10 Gbit/s
    const std::initializer_list<Step> steps = {
        {"the first", 2.0, Links{port("en0", 1'000'000'000, 50)}, silence},
        {"over 4 GiB in one pass", 5.0, Links{port("en0", 1'000'000'000 + fast, 100)}, {{1.25e9, 10.0}}},
        {"a port more", 2.0, Links{port("en0", 8'000'000'000, 100), port("en1", 10, 900)}, {{3.75e8, 0.0}}},
        {"one starts over", 2.0, Links{port("en0", 0, 200), port("en1", 14, 900)}, {{2.0, 0.0}}},
        {"and goes on from there", 2.0, Links{port("en0", 6, 204), port("en1", 14, 900)}, {{3.0, 2.0}}},
        {"one vanishes", 2.0, Links{port("en1", 20, 900)}, {{3.0, 0.0}}},
        {"and returns", 2.0, Links{port("en0", 9000, 9000), port("en1", 22, 900)}, {{1.0, 0.0}}},
        {"another takes its name", 2.0, Links{port("en0", fast, 9000, 7), port("en1", 24, 900)}, {{1.0, 0.0}}},
    };
    expectSteps(NetworkSampler::CounterWidth::bits64, steps);
}

TEST(NetworkSampler, APortThatIsChosenCountsAloneAndIsAbsentWhenItIsGone) {
    fakes::FakeNetwork source;
    FakeClock clock;
    NetworkSampler sampler(source, clock);
    const auto sampled = [&](std::uint64_t en0, std::optional<std::uint64_t> eth0) {
        source.links = {port("en0", en0, 0), {"lo", 0x41, NetworkSampler::Counters{}}};
        if (eth0) {
            source.links->push_back(port("eneth0", *eth0, 0));
            source.links->back().isNamedAnew = true;
        }
        clock.now += 2.0;
        return *sampler.sample();
    };
    sampled(0, 0);
    EXPECT_EQ(sampler.ports(), (std::vector<std::string>{"en0", "eth0"})) << "as the system calls them";
    EXPECT_EQ(sampled(200, 20), (NetworkSample{110.0, 0.0}));
    sampler.choose("eth0");
    EXPECT_EQ(sampled(400, 40), (NetworkSample{10.0, 0.0})) << "at once";
    EXPECT_EQ(sampled(600, std::nullopt), (NetworkSample{0.0, 0.0, false}));
    EXPECT_EQ(sampled(800, 60), silence);
    EXPECT_EQ(sampled(1000, 80), (NetworkSample{10.0, 0.0}));
    sampler.choose("eneth0");
    EXPECT_FALSE(sampled(1200, 100).isThere) << "no name of the system's";
    sampler.choose("");
    EXPECT_EQ(sampled(1400, 120), (NetworkSample{110.0, 0.0}));
}

} // namespace
} // namespace vantrix

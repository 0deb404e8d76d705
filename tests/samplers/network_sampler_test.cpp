#include "samplers/network_sampler.h"

#include <gtest/gtest.h>

#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using Link = NetworkSampler::Link;
using Links = std::vector<Link>;

constexpr auto active = NetworkSampler::linkUp | NetworkSampler::linkRunning;

Link port(const char* name, std::uint32_t received, std::uint32_t sent) {
    return {name, active, NetworkSampler::Counters{received, sent}};
}

struct FakeSource : NetworkSampler::Source {
    std::optional<Links> next;

    bool read(std::vector<Link>& links) override {
        links = next.value_or(Links{port("en9", 1, 1)}); // what a failed read leaves must not matter
        return next.has_value();
    }
};

struct NetworkSamplerTest : ::testing::Test {
    FakeSource source;
    FakeClock clock;
    NetworkSampler sampler{source, clock};

    /// The sample `seconds` after the one before.
    std::optional<NetworkSample> sampleOf(std::optional<Links> links, double seconds = 2.0) {
        clock.now += seconds;
        source.next = std::move(links);
        return sampler.sample();
    }
};

constexpr NetworkSample silence{0.0, 0.0};

TEST_F(NetworkSamplerTest, RatesAreBytesPerSecondOverAllPorts) {
    EXPECT_EQ(sampleOf(Links{port("en0", 100, 10), port("en1", 0, 0)}), silence);
    EXPECT_EQ(sampleOf(Links{port("en1", 5, 0), port("en0", 200, 11)}), (NetworkSample{52.5, 0.5}));
}

TEST_F(NetworkSamplerTest, CountersWrap) {
    sampleOf(Links{port("en0", 4294967000u, 4294967295u)});
    EXPECT_EQ(sampleOf(Links{port("en0", 704, 0)}, 1.0), (NetworkSample{1000.0, 1.0}));
}

TEST_F(NetworkSamplerTest, OnlyActivePortsCount) {
    const auto links = [](std::uint32_t bytes) {
        Link down = port("en1", bytes, bytes);
        down.flags = NetworkSampler::linkUp;
        Link unplugged = port("en2", bytes, bytes);
        unplugged.flags = NetworkSampler::linkRunning;
        Link address{"en3", active, std::nullopt};
        return Links{port("lo", bytes, bytes),
                     port("utun0", bytes, bytes),
                     port("bridge0", bytes, bytes),
                     port("wen0", bytes, bytes),
                     down,
                     unplugged,
                     address,
                     port("en0", bytes, 0)};
    };
    sampleOf(links(0));
    EXPECT_EQ(sampleOf(links(10)), (NetworkSample{5.0, 0.0}));
}

TEST_F(NetworkSamplerTest, NewPortCountsFromItsSecondCall) {
    sampleOf(Links{port("en0", 0, 0)});
    EXPECT_EQ(sampleOf(Links{port("en0", 2, 0), port("en5", 4000, 4000)}), (NetworkSample{1.0, 0.0}));
    EXPECT_EQ(sampleOf(Links{port("en5", 4010, 4000)}), (NetworkSample{5.0, 0.0}));
}

TEST_F(NetworkSamplerTest, NameListedTwiceTakesTheLaterEntry) {
    sampleOf(Links{port("en0", 0, 0)});
    EXPECT_EQ(sampleOf(Links{port("en0", 500, 0), port("en0", 8, 6)}), (NetworkSample{4.0, 3.0}));
}

TEST_F(NetworkSamplerTest, NoTimeElapsedRenewsTheBaseline) {
    sampleOf(Links{port("en0", 0, 0)});
    EXPECT_EQ(sampleOf(Links{port("en0", 50, 50)}, 0.0), silence);
    EXPECT_EQ(sampleOf(Links{port("en0", 60, 50)}, -1.0), silence);
    EXPECT_EQ(sampleOf(Links{port("en0", 64, 50)}), (NetworkSample{2.0, 0.0}));
}

TEST_F(NetworkSamplerTest, UnreadableOrEmptyListKeepsTheBaseline) {
    EXPECT_EQ(sampleOf(std::nullopt), std::nullopt);
    sampleOf(Links{port("en0", 0, 0)});
    EXPECT_EQ(sampleOf(std::nullopt), std::nullopt);
    EXPECT_EQ(sampleOf(Links{}), std::nullopt);
    EXPECT_EQ(sampleOf(Links{port("en0", 60, 12)}), (NetworkSample{10.0, 2.0}));
}

} // namespace
} // namespace vantrix

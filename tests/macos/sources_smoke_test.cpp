// The sources on the Mac that runs the tests, which may be a virtual one: only what each of them has is asked for.

#include <algorithm>

#include <gtest/gtest.h>

#include "platform/sampling_sources.h"

namespace vantrix {
namespace {

TEST(Sources, EveryMacHasAProcessorMemoryLinksAndAVolume) {
    const SamplingSources sources = makeSamplingSources({});
    EXPECT_GT(sources.clock->uptime(), 0.0);
    EXPECT_NE(sources.information->text("machdep.cpu.brand_string").value_or(""), "");

    std::vector<CPUSampler::Ticks> cores;
    ASSERT_TRUE(sources.cpu->read(cores));
    EXPECT_EQ(cores.size(), static_cast<std::size_t>(sources.information->processorCount()));
    EXPECT_GT(cores.at(0).idle, 0u);

    const auto memory = sources.memory->read();
    ASSERT_TRUE(memory.has_value());
    EXPECT_GT(memory->wireCount, 0u);
    EXPECT_GE(memory->physicalMemory, std::uint64_t{1} << 30);
    EXPECT_TRUE(memory->swapUsed.has_value());
    EXPECT_TRUE(memory->pressureLevel.has_value());

    std::vector<NetworkSampler::Link> links;
    ASSERT_TRUE(sources.network->read(links));
    EXPECT_TRUE(std::any_of(links.begin(), links.end(),
                            [](const NetworkSampler::Link& link) { return link.name == "lo0" && link.counters; }));

    const auto volume = sources.volume->read();
    ASSERT_TRUE(volume.has_value());
    EXPECT_LE(volume->available, volume->total);
}

} // namespace
} // namespace vantrix

#include "sensors/io_report_sampler.h"

#include <gtest/gtest.h>

#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using Channels = std::vector<IOReportSampler::Channel>;

struct FakeEnergy : IOReportSampler::Source {
    bool canTake = true;
    std::optional<Channels> difference = Channels{};

    bool takeSnapshot() override { return canTake; }
    bool readDifference(Channels& channels) override {
        channels = difference.value_or(Channels{{"Energy Model", "GPU Energy", "mJ", 1}});
        return difference.has_value();
    }
};

struct IOReportSamplerTest : ::testing::Test {
    FakeEnergy source;
    FakeClock clock;
    IOReportSampler sampler{source, clock};

    std::optional<ComponentPower> readAfter(double seconds) {
        clock.now += seconds;
        return sampler.read();
    }

    std::optional<ComponentPower> powerOf(const Channels& channels) {
        source.difference = channels;
        sampler.read();
        return readAfter(2.0);
    }
};

TEST_F(IOReportSamplerTest, TheFirstReadHasNothingToMeasureFrom) {
    source.difference = {{"Energy Model", "GPU Energy", "mJ", 3000}};
    EXPECT_EQ(sampler.read(), std::nullopt);
    EXPECT_EQ(readAfter(2.0), (ComponentPower{{}, 1.5, {}, {}}));
}

TEST_F(IOReportSamplerTest, ReadsInQuickSuccessionStartOver) {
    source.difference = {{"Energy Model", "GPU Energy", "mJ", 3000}};
    sampler.read();
    EXPECT_EQ(readAfter(0.05), std::nullopt);
    EXPECT_EQ(readAfter(-1.0), std::nullopt);
    EXPECT_EQ(readAfter(1.0)->gpu, 3.0); // not over the 1.05 s since the first
}

TEST_F(IOReportSamplerTest, AFailedSnapshotKeepsTheBaselineAFailedDifferenceDoesNot) {
    source.difference = {{"Energy Model", "GPU Energy", "mJ", 3000}};
    sampler.read();
    source.canTake = false;
    EXPECT_EQ(readAfter(1.0), std::nullopt);
    source.canTake = true;
    EXPECT_EQ(readAfter(1.0)->gpu, 1.5);
    source.difference.reset();
    EXPECT_EQ(readAfter(1.0), std::nullopt);
    source.difference = {{"Energy Model", "GPU Energy", "mJ", 3000}};
    EXPECT_EQ(readAfter(1.0)->gpu, 3.0);
}

TEST_F(IOReportSamplerTest, ChannelsCountForOneComponentAtMost) {
    const struct {
        const char* name;
        ComponentPower power;
    } rows[] = {
        {"GPU Energy", {{}, 1.0, {}, {}}},
        {"GPU Energy0", {}},
        {"CPU Energy", {1.0, {}, {}, {}}},
        {"PACC0_CPU Energy", {1.0, {}, {}, {}}},
        {"CPU Energy 1", {}},
        {"ANE0", {{}, {}, 1.0, {}}},
        {"ANE CPU Energy", {1.0, {}, {}, {}}},
        {"LANE", {}},
        {"DRAM0", {{}, {}, {}, 1.0}},
        {"gpu energy", {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(powerOf({{"Energy Model", row.name, "mJ", 2000}}).value_or(ComponentPower()), row.power) << row.name;
    EXPECT_EQ(powerOf({{"Energy Model", "GPU Energy0", "mJ", 2000}}), std::nullopt);
}

TEST_F(IOReportSamplerTest, ChannelsOfOneComponentAddUp) {
    EXPECT_EQ(powerOf({{"Energy Model", "ECPU Energy", "mJ", 2000},
                       {"Energy Model", "DRAM", "uJ", 500'000},
                       {"Energy Model", "PCPU Energy", "nJ", 4'000'000'000}}),
              (ComponentPower{3.0, {}, {}, 0.25}));
}

TEST_F(IOReportSamplerTest, LeavesOutWhatMakesNoSense) {
    const std::pair<const char*, IOReportSampler::Channel> rows[] = {
        {"another group", {"Energy model", "GPU Energy", "mJ", 2000}},
        {"no name", {"Energy Model", std::nullopt, "mJ", 2000}},
        {"no unit", {"Energy Model", "GPU Energy", std::nullopt, 2000}},
        {"another unit", {"Energy Model", "GPU Energy", "J", 2000}},
        {"negative", {"Energy Model", "GPU Energy", "mJ", -1}},
        {"500 W", {"Energy Model", "GPU Energy", "mJ", 1'000'000}},
    };
    for (const auto& [name, channel] : rows)
        EXPECT_EQ(powerOf({channel}), std::nullopt) << name;
    EXPECT_EQ(powerOf({{"Energy Model", "GPU Energy", "mJ", 0}}), (ComponentPower{{}, 0.0, {}, {}}));
    EXPECT_EQ(powerOf({{"Energy Model", "GPU Energy", "mJ", 999'000}})->gpu, 499.5);
}

} // namespace
} // namespace vantrix

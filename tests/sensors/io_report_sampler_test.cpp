#include "sensors/io_report_sampler.h"

#include <gtest/gtest.h>

#include "samplers/fake_clock.h"
#include "sensors/sensors_sampler.h"

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

TEST_F(IOReportSamplerTest, MeasuresFromOneGoodSnapshotToTheNext) {
    const Channels energy{{"Energy Model", "GPU Energy", "mJ", 3000}};
    const struct {
        const char* name;
        double seconds; // since the step before
        bool canTake;
        std::optional<Channels> difference;
        std::optional<double> watts;
    } steps[] = {
        {"the first", 2.0, true, energy, {}},           {"the second", 2.0, true, energy, 1.5},
        {"too soon", 0.05, true, energy, {}},           {"a clock set back", -1.0, true, energy, {}},
        {"since then", 1.0, true, energy, 3.0},         {"no snapshot", 1.0, false, energy, {}},
        {"over the whole gap", 1.0, true, energy, 1.5}, {"no difference", 1.0, true, std::nullopt, {}},
        {"not over the gap", 1.0, true, energy, 3.0},
    };
    SensorsSampler sensors(nullptr, nullptr, &source, clock);
    std::optional<ComponentPower> last;
    for (const auto& step : steps) {
        source.canTake = step.canTake;
        source.difference = step.difference;
        const auto power = readAfter(step.seconds);
        EXPECT_EQ(power ? power->gpu : std::nullopt, step.watts) << step.name;
        last = power ? power : last;
        EXPECT_EQ(sensors.sample().components, last) << step.name << ": the last good one is repeated";
    }
}

TEST_F(IOReportSamplerTest, ChannelsCountForOneComponentAtMost) {
    const std::pair<const char*, ComponentPower> rows[] = {
        {"GPU Energy", {{}, 1.0, {}, {}}},
        {"GPU Energy0", {}},
        {"PACC0_CPU Energy", {1.0, {}, {}, {}}},
        {"CPU Energy 1", {}},
        {"ANE0", {{}, {}, 1.0, {}}},
        {"ANE CPU Energy", {1.0, {}, {}, {}}},
        {"DRAM0", {{}, {}, {}, 1.0}},
    };
    for (const auto& [name, power] : rows)
        EXPECT_EQ(powerOf({{"Energy Model", name, "mJ", 2000}}).value_or(ComponentPower()), power) << name;
}

TEST_F(IOReportSamplerTest, LeavesOutWhatMakesNoSense) {
    for (const auto& [unit, value] : {std::pair{"J", 2000}, {"mJ", -1}, {"mJ", 1'000'000}})
        EXPECT_EQ(powerOf({{"Energy Model", "GPU Energy", unit, value}}), std::nullopt) << value;
    EXPECT_EQ(powerOf({{"Energy Model", "GPU Energy", "mJ", 0}}), (ComponentPower{{}, 0.0, {}, {}}));
    EXPECT_EQ(powerOf({{"Energy Model", "GPU Energy", "mJ", 999'000}})->gpu, 499.5);
}

} // namespace
} // namespace vantrix

#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"
#include "sensors/sensors_sampler.h"

namespace vantrix {
namespace {

/// What the sensors of a recorded machine must read as; of the list of all, the hottest.
struct SensorMachine {
    const char* name;
    std::size_t sensors;
    SensorsSample sample;
};

const SensorMachine machines[] = {
    // A second pack that rests, empty places of the board's chip at 0 °C, a board that names a place after the CPU.
    {"laptop-many-sensors",
     35,
     {.cpu = (60.0 + 8 * 52.0 + 8 * 48.0) / 17,
      .cpuHottest = 60.0,
      .gpu = 44.0,
      .ssd = 36.0,
      .battery = 31.0,
      .all = {{"thinkpad processor", 61.0}},
      .fans = {{0, 2400.0, {}, {}}, {1, 0.0, {}, {}}},
      .systemPower = 9.5}},
    // Only three of eight connectors bear a fan; the graphics card's speed and limits are not asked.
    {"desktop-resting-disk-sleeping-gpu",
     6,
     {.cpu = 54.0,
      .cpuHottest = 55.0,
      .ssd = 29.0,
      .all = {{"nct6775 processor TIN", 127.5}},
      .fans = {{0, 702.0, 300.0, {}}, {1, 706.0, {}, {}}, {2, 707.0, {}, {}}},
      .systemPower = 88.0}},
    {"board-with-thermal-zones-alone",
     4,
     {.cpu = 45.0, .cpuHottest = 46.0, .gpu = 41.0, .soc = 43.0, .all = {{"CPU cpu1-thermal", 46.0}}}},
    {"container", 0, {}}, // no sensors at all
};

class SensorMachinesTest : public ::testing::TestWithParam<SensorMachine> {};

TEST_P(SensorMachinesTest, Sample) {
    const fakes::FixtureMachine machine(GetParam().name);
    const auto sources = makeSamplingSources(machine.roots());
    SensorsSampler sampler(sources.sensorKeys.get(), sources.temperatures.get(), sources.energy.get(), *sources.clock);
    auto sample = sampler.sample();
    EXPECT_EQ(sample.all.size(), GetParam().sensors);
    sample.all.resize(std::min<std::size_t>(sample.all.size(), 1));
    const SensorsSample& expected = GetParam().sample;
    EXPECT_DOUBLE_EQ(sample.cpu.value_or(0.0), expected.cpu.value_or(0.0));
    sample.cpu = expected.cpu;
    EXPECT_EQ(sample.all, expected.all);
    EXPECT_EQ(sample.fans, expected.fans);
    EXPECT_EQ(sample, expected);
}

std::string testName(const ::testing::TestParamInfo<SensorMachine>& info) {
    std::string name = info.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Recorded, SensorMachinesTest, ::testing::ValuesIn(machines), testName);

} // namespace
} // namespace vantrix

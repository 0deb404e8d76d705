#include "sensors/sensors_sampler.h"

#include <cmath>
#include <limits>
#include <map>

#include <gmock/gmock.h>

#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Services = std::vector<HIDTemperatureSampler::Service>;
using Reading = TemperatureReading;

struct FakeKeys : SensorKeys {
    std::map<std::string, double, std::less<>> values;

    std::optional<double> value(std::string_view key) override {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
};

struct FakeTemperatures : HIDTemperatureSampler::Source {
    std::optional<Services> next;

    bool read(Services& services) override {
        services = next.value_or(Services{{"left over", 50.0}}); // what a failed read leaves must not matter
        return next.has_value();
    }
};

struct SensorsSamplerTest : ::testing::Test {
    FakeKeys keys;
    FakeTemperatures temperatures;
    FakeClock clock;
    SensorsSampler sampler{&keys, &temperatures, nullptr, clock};

    const SensorsSample& sampleOf(std::optional<Services> services) {
        temperatures.next = std::move(services);
        return sampler.sample();
    }
};

TEST_F(SensorsSamplerTest, ASensorCountsInEveryGroupItsNameSays) {
    const std::pair<const char*, const char*> rows[] = {
        {"pACC MTR", "c"}, {"eACC MTR", "c"}, {"cpu", ""},          {"GPU SOC", "gs"},    {"CPU in SoC", "cs"},
        {"Soc", ""},       {"NAND CH0", "n"}, {"the bATTERy", "b"}, {"gas gauge x", "b"}, {"batter", ""},
    };
    for (const auto& [name, expected] : rows) {
        const auto& sample = sampleOf({{{name, 30.0}}});
        std::string groups;
        groups += sample.cpu ? "c" : "";
        groups += sample.gpu ? "g" : "";
        groups += sample.soc ? "s" : "";
        groups += sample.ssd ? "n" : "";
        groups += sample.battery ? "b" : "";
        EXPECT_EQ(groups, expected) << name;
    }
}

TEST_F(SensorsSamplerTest, ListsSensorsHottestFirst) {
    const auto& sample = sampleOf({{{"b", 30.0}, {"c", 40.0}, {"a", 30.0}, {"d", 30.0}}});
    EXPECT_THAT(sample.all, ElementsAre(Reading{"c", 40.0}, Reading{"b", 30.0}, Reading{"a", 30.0}, Reading{"d", 30.0}))
        << "equal ones in their order";
    EXPECT_THAT(sampleOf({{{"a", 31.0}}}).all, ElementsAre(Reading{"a", 31.0})) << "the others are gone";
    EXPECT_THAT(sampleOf(std::nullopt).all, IsEmpty());
}

TEST_F(SensorsSamplerTest, KeepsPlausibleTemperaturesAlone) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {0.0, -0.0, -5.0, 150.0, 1e9, infinity, -infinity, std::nan("")})
        EXPECT_THAT(sampleOf({{{"tdie", value}}}).all, IsEmpty()) << value;
    EXPECT_EQ(sampleOf({{{"tdie", 149.9}, {"tdie", 0.1}}}).all.size(), 2u);
}

TEST_F(SensorsSamplerTest, KeysStandInWhereNoSensorIsListed) {
    keys.values = {{"TC0P", 0.0}, {"TC0D", 45.5}, {"TC0E", 99.0}, {"TG0D", 50.0}, {"TH0a", 33.0}, {"TB0T", 31.0}};
    EXPECT_EQ(sampleOf(Services()),
              (SensorsSample{.cpu = 45.5, .cpuHottest = 45.5, .gpu = 50.0, .ssd = 33.0, .battery = 31.0}));
    EXPECT_EQ(sampleOf({{{"other", 20.0}}}).cpu, std::nullopt) << "one sensor of any kind is enough";
}

TEST_F(SensorsSamplerTest, AtMostFourPlausibleFans) {
    keys.values = {{"FNum", 6.0},    {"F0Ac", 25000.0}, {"F1Ac", 1200.0}, {"F1Mn", 900.0},
                   {"F1Mx", 6000.0}, {"F3Ac", 0.0},     {"F4Ac", 1000.0}};
    EXPECT_THAT(sampleOf(Services()).fans,
                ElementsAre(FanReading{1, 1200.0, 900.0, 6000.0}, FanReading{3, 0.0, {}, {}}));
    for (const auto& [number, fans] : {std::pair{0.9, 0u}, {2.0, 1u}, {1e300, 2u}, {-1.0, 0u}}) {
        keys.values["FNum"] = number;
        EXPECT_EQ(sampleOf(Services()).fans.size(), fans) << number;
    }
}

TEST_F(SensorsSamplerTest, PowersAreAbsentOutsideTheirRange) {
    keys.values = {{"PSTR", 0.05}, {"PDTR", 600.0}};
    EXPECT_EQ(sampleOf(Services()), SensorsSample());
    keys.values = {{"PSTR", 0.06}, {"PDTR", 599.9}};
    EXPECT_EQ(sampleOf(Services()), (SensorsSample{.systemPower = 0.06, .adapterPower = 599.9}));
}

} // namespace
} // namespace vantrix

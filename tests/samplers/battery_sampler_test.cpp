#include "samplers/battery_sampler.h"

#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using Int = std::int64_t;

struct FakeBattery : BatterySampler::Source {
    std::optional<std::vector<Properties>> sources;
    std::optional<Properties> battery;

    std::optional<std::span<const Properties>> powerSources() override {
        return sources ? std::optional(std::span<const Properties>(*sources)) : std::nullopt;
    }
    const Properties* smartBattery() override { return battery ? &*battery : nullptr; }
};

/// The sample of one internal battery whose description has `more` besides its type.
BatterySample sampleOf(const std::optional<Properties>& battery,
                       std::initializer_list<std::pair<std::string_view, Properties::Value>> more) {
    FakeBattery source;
    source.battery = battery;
    source.sources = {{{"Type", "UPS"}, {"Current Capacity", Int{1}}}, more};
    source.sources->back().set("Type", "InternalBattery");
    return BatterySampler(source).sample().value();
}

TEST(BatterySampler, IsAbsentWithoutAnInternalBattery) {
    FakeBattery source;
    EXPECT_EQ(BatterySampler(source).sample(), std::nullopt);
    source.sources = {{{"Type", "UPS"}, {"Current Capacity", Int{50}}}, {}};
    EXPECT_EQ(BatterySampler(source).sample(), std::nullopt);
}

TEST(BatterySampler, DescribesThePowerSource) {
    constexpr auto now = "Current Capacity";
    constexpr auto max = "Max Capacity";
    EXPECT_EQ(sampleOf({}, {{now, Int{50}}, {max, Int{0}}}).percent, 100);
    EXPECT_EQ(sampleOf({}, {{now, Int{-5}}, {max, Int{10}}}).percent, 0);
    EXPECT_EQ(sampleOf({}, {{now, Int{1}}, {max, Int{200}}}).percent, 1); // half is rounded up
    EXPECT_EQ(sampleOf({}, {{"Time to Empty", Int{-1}}}), BatterySample()) << "still estimated";
    EXPECT_EQ(sampleOf({}, {{"Is Charging", true}, {"Time to Empty", Int{30}}}), (BatterySample{.isCharging = true}));
}

TEST(BatterySampler, ReadsTheRegisters) {
    constexpr auto design = "DesignCapacity";
    constexpr auto raw = "AppleRawMaxCapacity";
    constexpr Int millivolts = 12000;
    const struct {
        const char* name;
        Properties battery;
        BatterySample sample;
    } rows[] = {
        {"health above the design", {{design, Int{5000}}, {raw, Int{5200}}}, {.healthPercent = 100}},
        {"a percentage is no capacity", {{design, Int{5000}}, {"MaxCapacity", Int{100}}}, {}},
        {"a quarter is not believed", {{design, Int{5003}}, {raw, Int{1250}}}, {}},
        {"more than a quarter is", {{design, Int{5000}}, {raw, Int{1251}}}, {.healthPercent = 25}},
        {"no design", {{design, Int{0}}, {raw, Int{1}}}, {}},
        {"unsigned register",
         {{"Voltage", millivolts}, {"Amperage", static_cast<Int>(18446744073709550116ULL)}},
         {.watts = 18.0}},
        {"first current wins", {{"Voltage", millivolts}, {"Amperage", Int{0}}, {"InstantAmperage", Int{1000}}}, {}},
        {"trickle", {{"Voltage", millivolts}, {"Amperage", Int{3}}}, {}},
        {"too much", {{"Voltage", millivolts}, {"Amperage", Int{34000}}}, {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(sampleOf(row.battery, {}), row.sample) << row.name;
}

TEST(BatterySamplerDeathTest, CurrentWithoutMagnitudeIsAFault) {
    const Properties battery{{"Voltage", Int{1}}, {"Amperage", std::numeric_limits<Int>::min()}};
    EXPECT_DEATH(sampleOf(battery, {}), "current of the battery overflows");
}

} // namespace
} // namespace vantrix

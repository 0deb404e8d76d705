#include "sensors/hid_temperature_sampler.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Services = std::vector<HIDTemperatureSampler::Service>;

struct FakeServices : HIDTemperatureSampler::Source {
    std::optional<Services> next;

    bool read(Services& services) override {
        services = next.value_or(Services{{"left over", 50.0}}); // what a failed read leaves must not matter
        return next.has_value();
    }
};

struct HIDTemperatureSamplerTest : ::testing::Test {
    FakeServices source;
    HIDTemperatureSampler sampler{source};

    const std::vector<TemperatureReading>& readingsOf(const Services& services) {
        source.next = services;
        return sampler.read();
    }
};

TEST_F(HIDTemperatureSamplerTest, NamelessSensorsAreNamedByTheirPlaceInTheList) {
    EXPECT_THAT(readingsOf({{"tdie", 50.0}, {}, {"tdie", 40.0}, {std::nullopt, 30.0}, {"", 20.0}}),
                ElementsAre(TemperatureReading{"tdie", 50.0}, TemperatureReading{"tdie", 40.0},
                            TemperatureReading{"Sensor 3", 30.0}, TemperatureReading{"", 20.0}));
}

TEST_F(HIDTemperatureSamplerTest, KeepsPlausibleValuesAlone) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {0.0, -0.0, -5.0, 150.0, 1e9, infinity, -infinity, std::nan("")})
        EXPECT_THAT(readingsOf({{"tdie", value}}), IsEmpty()) << value;
    EXPECT_EQ(readingsOf({{"tdie", 149.9}, {"tdie", 0.1}}).size(), 2u);
    EXPECT_THAT(readingsOf({{"tdie", std::nullopt}}), IsEmpty());
}

TEST_F(HIDTemperatureSamplerTest, AFailedReadIsAnEmptyList) {
    EXPECT_EQ(readingsOf({{"tdie", 50.0}}).size(), 1u);
    source.next.reset();
    EXPECT_THAT(sampler.read(), IsEmpty());
    EXPECT_THAT(readingsOf({}), IsEmpty());
}

} // namespace
} // namespace vantrix

#include "accessories/classic_device_values.h"

#include <gtest/gtest.h>

#include "accessories/accessory_levels.h"

namespace vantrix {
namespace {

TEST(ClassicDeviceValues, WritesAddressesAsOtherSourcesDo) {
    EXPECT_EQ(addressWithColons("0c-4d-e9-ff-0a-b1"), "0C:4D:E9:FF:0A:B1");
    EXPECT_EQ(addressWithColons("0C:4D:E9:FF:0A:B1"), "0C:4D:E9:FF:0A:B1");
    EXPECT_EQ(addressWithColons(""), "");
}

TEST(ClassicDeviceValues, EarbudsAreNotEmptyForPublishingNoSingleLevel) {
    const AccessoryLevels levels{.single = publishedLevel(0),
                                 .combined = publishedLevel(0),
                                 .left = publishedLevel(80),
                                 .right = publishedLevel(75),
                                 .box = publishedLevel(0)};
    EXPECT_EQ(levels.main(), 75);
    EXPECT_EQ(levels.box, std::nullopt);
}

TEST(ClassicDeviceValues, NothingPublishedIsNoLevel) {
    EXPECT_EQ(publishedLevel(-1), std::nullopt);
    EXPECT_EQ(publishedLevel(1), 1);
}

} // namespace
} // namespace vantrix

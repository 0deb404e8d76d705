#include "accessories/accessories_sampler.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CombineAccessories, LiveReadingReplacesTheScannedInItsPlace) {
    const AccessoryBattery mouse{"Mouse", 40, false, "mouse"};
    const AccessoryBattery keyboard{"Keyboard", 50, false, "keyboard"};
    const AccessoryBattery pen{"Pen", 60, false, "pen"};
    const AccessoryBattery chargedMouse{"Mouse", 90, true, "mouse"};
    EXPECT_THAT(combineAccessories({mouse, keyboard}, {pen, chargedMouse}), ElementsAre(chargedMouse, keyboard, pen));
    EXPECT_THAT(combineAccessories({mouse, chargedMouse}, {}), ElementsAre(chargedMouse));
    EXPECT_THAT(combineAccessories({}, {pen}), ElementsAre(pen));
    EXPECT_THAT(combineAccessories({}, {}), IsEmpty());
}

} // namespace
} // namespace vantrix

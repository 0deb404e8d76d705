#include "accessories/accessories_sampler.h"

#include <gmock/gmock.h>

#include "accessories/accessory_levels.h"
#include "accessories/bluetooth_uuid.h"
#include "accessories/classic_device_values.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

TEST(CombineAccessories, AddressTellsDevicesApart) {
    const AccessoryBattery scanned{"hid-1", 40, false, "", "aa-bb-cc-dd-ee-0f"};
    const AccessoryBattery live{"My Mouse", 45, false, "", "AA:BB:CC:DD:EE:0F"};
    const AccessoryBattery liveCase{"My Mouse case", 10, false, "earbuds.case", "AA:BB:CC:DD:EE:0F"};
    const AccessoryBattery twin{"My Mouse", 90, false, "", "AA:BB:CC:DD:EE:10"};
    const AccessoryBattery nameless{"My Mouse", 30, true, ""};
    EXPECT_THAT(combineAccessories({scanned}, {live, liveCase}), ElementsAre(live, liveCase));
    EXPECT_THAT(combineAccessories({twin, scanned}, {live}), ElementsAre(twin, live));
    EXPECT_THAT(combineAccessories({nameless}, {live}), ElementsAre(live));
}

TEST(AccessoryLevels, MainIsTheSingleThenTheCombinedThenTheLeast) {
    const std::pair<AccessoryLevels, std::optional<int>> rows[] = {
        {{1, 2, 3, 4, 5}, 1},    {{{}, 2, 3, 4, 5}, 2},     {{{}, {}, 4, 3, 5}, 3},
        {{{}, {}, {}, 4, 5}, 4}, {{{}, {}, {}, {}, 5}, {}},
    };
    for (const auto& [levels, main] : rows)
        EXPECT_EQ(levels.main(), main);
}

TEST(ClassicDeviceValues, AreTheAddressAndTheLevelsThatAreMeant) {
    EXPECT_EQ(addressWithColons("0c-4d-e9-ff-0a-b1"), "0C:4D:E9:FF:0A:B1");
    EXPECT_EQ(publishedLevel(0), std::nullopt) << "a part that told nothing";
    EXPECT_EQ(publishedLevel(1), 1);
}

TEST(BluetoothUUID, WritesItsShortestForm) {
    EXPECT_EQ(BluetoothUUID("0000180F-0000-1000-8000-00805f9b34fb").shortest(), "180f");
    for (const char* text : {"180f",
                             "1000180f-0000-1000-8000-00805f9b34fb",  // of 32 bits
                             "0000180f-0000-1000-8000-00805f9b34fc"}) // a maker's own
        EXPECT_EQ(BluetoothUUID(text).shortest(), text);
}

} // namespace
} // namespace vantrix

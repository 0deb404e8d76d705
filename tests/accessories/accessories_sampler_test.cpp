#include "accessories/accessories_sampler.h"

#include <gmock/gmock.h>

#include "accessories/accessory_levels.h"
#include "accessories/accessory_symbol.h"
#include "accessories/bluetooth_uuid.h"
#include "accessories/classic_device_values.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

TEST(CombineAccessories, LiveReadingReplacesTheScannedInItsPlace) {
    const AccessoryBattery mouse{"Mouse", 40, false, "mouse"};
    const AccessoryBattery keyboard{"Keyboard", 50, false, "keyboard"};
    const AccessoryBattery pen{"Pen", 60, false, "pen"};
    const AccessoryBattery chargedMouse{"Mouse", 90, true, "mouse"};
    EXPECT_THAT(combineAccessories({mouse, keyboard}, {pen, chargedMouse}), ElementsAre(chargedMouse, keyboard, pen));
    EXPECT_THAT(combineAccessories({mouse, chargedMouse}, {}), ElementsAre(chargedMouse));
}

TEST(CombineAccessories, AddressTellsDevicesApart) {
    const AccessoryBattery scanned{"hid-1", 40, false, "", "aa-bb-cc-dd-ee-0f"};
    const AccessoryBattery live{"My Mouse", 45, false, "", "AA:BB:CC:DD:EE:0F"};
    const AccessoryBattery liveCase{"My Mouse case", 10, false, "earbuds.case", "AA:BB:CC:DD:EE:0F"};
    const AccessoryBattery twin{"My Mouse", 90, false, "", "AA:BB:CC:DD:EE:10"};
    const AccessoryBattery nameless{"My Mouse", 30, true, ""};
    EXPECT_THAT(combineAccessories({scanned}, {live}), ElementsAre(live));
    EXPECT_THAT(combineAccessories({scanned}, {live, liveCase}), ElementsAre(live, liveCase));
    EXPECT_THAT(combineAccessories({twin, scanned}, {live}), ElementsAre(twin, live));
    EXPECT_THAT(combineAccessories({nameless}, {live}), ElementsAre(live));
}

TEST(AccessorySymbol, FollowsWordsOfTheName) {
    const std::pair<const char*, const char*> rows[] = {
        {"Someone's AirPods Max Headphones", "airpods"},
        {"MAGIC KEYBOARD", "keyboard"},
        {"", "dot.radiowaves.left.and.right"},
    };
    for (const auto& [name, symbol] : rows)
        EXPECT_EQ(symbolForAccessory(name), symbol) << name;
}

TEST(AccessoryLevels, MainIsTheSingleThenTheCombinedThenTheLeast) {
    const std::pair<AccessoryLevels, std::optional<int>> rows[] = {
        {{1, 2, 3, 4, 5}, 1},    {{{}, 2, 3, 4, 5}, 2},   {{{}, {}, 4, 3, 5}, 3},
        {{{}, {}, {}, 4, 5}, 4}, {{{}, {}, 3, {}, 5}, 3}, {{{}, {}, {}, {}, 5}, {}},
    };
    for (const auto& [levels, main] : rows)
        EXPECT_EQ(levels.main(), main);
    std::vector<AccessoryBattery> list;
    appendAccessory(list, {"Buds", 0, false, "airpods"}, {.left = 255, .box = -1});
    EXPECT_THAT(list, ElementsAre(AccessoryBattery{"Buds", 100, false, "airpods"},
                                  AccessoryBattery{"Buds case", 0, false, "earbuds.case"}));
    EXPECT_TRUE(isCase(list[1]) && !isCase(list[0]));
}

TEST(ClassicDeviceValues, AreTheAddressAndTheLevelsThatAreMeant) {
    EXPECT_EQ(addressWithColons("0c-4d-e9-ff-0a-b1"), "0C:4D:E9:FF:0A:B1");
    EXPECT_EQ(publishedLevel(0), std::nullopt) << "a part that told nothing";
    EXPECT_EQ(publishedLevel(1), 1);
}

TEST(BluetoothUUID, WritesItsShortestForm) {
    const std::pair<const char*, const char*> rows[] = {
        {"180F", "180f"},
        {"0000180F-0000-1000-8000-00805f9b34fb", "180f"},
        {"9FA480E0-4967-4542-9390-D343DC5D04AE", "9fa480e0-4967-4542-9390-d343dc5d04ae"},
        {"1000180f-0000-1000-8000-00805f9b34fb", "1000180f-0000-1000-8000-00805f9b34fb"}, // of 32 bits
        {"0000180f-0000-1000-8000-00805f9b34fc", "0000180f-0000-1000-8000-00805f9b34fc"}, // a maker's own
    };
    for (const auto& [text, shortest] : rows)
        EXPECT_EQ(BluetoothUUID(text).shortest(), shortest);
}

} // namespace
} // namespace vantrix

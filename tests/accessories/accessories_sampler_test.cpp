#include "accessories/accessories_sampler.h"

#include <gmock/gmock.h>

#include "accessories/accessory_levels.h"
#include "accessories/accessory_symbol.h"

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
        {"Wireless Mouse", "computermouse"},
        {"Loud HeadPhones 2", "headphones"},
        {"Pen", "dot.radiowaves.left.and.right"},
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

TEST(AccessoriesDiagnostics, NamesEveryDevice) {
    EXPECT_EQ(accessoriesDiagnostics("scan", {}, {}), "scan: 0");
    EXPECT_EQ(accessoriesDiagnostics("scan", {{"A", 5, false, ""}, {"B", 60, true, ""}}, {"C"}),
              "scan: 2: A 5%, B 60%, C [no value]");
}

} // namespace
} // namespace vantrix

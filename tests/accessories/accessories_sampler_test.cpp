#include "accessories/accessories_sampler.h"

#include <gmock/gmock.h>

#include "accessories/accessory_levels.h"
#include "accessories/bluetooth_uuid.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

using Readings = std::vector<AccessoryReading>;

constexpr const char* any = "dot.radiowaves.left.and.right";

AccessoryReading pad(int percent, const std::string& address, const std::string& identifier = {}) {
    return {{"Pad", percent, false, any}, address, identifier};
}

TEST(CombineAccessories, ListsEachThingOnce) {
    const std::string a = "aa-bb-cc-dd-ee-0a";
    const std::string b = "AA:BB:CC:DD:EE:0B";
    const AccessoryReading mouse{{"Mouse", 45, false, any}, "AA:BB:CC:DD:EE:0A"};
    const AccessoryReading itsCase{{"Mouse case", 9, false, "earbuds.case"}, mouse.address, {}, true, true};
    const AccessoryReading nameless{{"Bluetooth device", 7, false, any}, a, "1", false};
    const struct {
        const char* what;
        Readings scanned;
        Readings live;
        const char* combined;
    } rows[] = {
        {"one address, and its case", {pad(40, a)}, {mouse, itsCase}, "2: Mouse 45%, Mouse case 9%"},
        {"another address", {pad(40, b)}, {mouse}, "2: Pad 40%, Mouse 45%"},
        {"the order of the scan", {pad(90, b), pad(40, a)}, {mouse}, "2: Pad 90%, Mouse 45%"},
        {"two drivers of one device", {pad(40, a), mouse}, {}, "1: Mouse 45%"},
        {"two live ones", {}, {pad(80, "", "1"), pad(20, "", "2")}, "2: Pad 80%, Pad 20%"},
        {"two that nothing tells apart", {pad(80, "")}, {pad(20, ""), pad(79, "")}, "2: Pad 79%, Pad 20%"},
        {"two of each", {pad(81, a), pad(21, b)}, {pad(20, "", "1"), pad(80, "", "2")}, "2: Pad 80%, Pad 20%"},
        {"one live of two", {pad(80, a), pad(20, b)}, {pad(22, "", "1")}, "2: Pad 80%, Pad 22%"},
        {"one scanned of two", {pad(80, a)}, {pad(20, "", "1"), pad(79, "", "2")}, "2: Pad 79%, Pad 20%"},
        {"an address before a name", {pad(80, a)}, {pad(80, "", "1"), pad(20, a)}, "2: Pad 20%, Pad 80%"},
        {"two scanned ones", {pad(80, "", "pad_0"), pad(20, "", "pad_1")}, {}, "2: Pad 80%, Pad 20%"},
        {"a known other one", {pad(80, "", "receiver")}, {pad(20, a, "1")}, "2: Pad 80%, Pad 20%"},
        {"no name of its own", {pad(40, a)}, {nameless}, "1: Pad 7%"},
        {"a name at last", {nameless}, {mouse}, "1: Mouse 45%"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(accessoriesDiagnostics(row.what, combineAccessories(row.scanned, row.live), {}),
                  std::string(row.what) + ": " + row.combined);
}

TEST(CombineAccessories, KeepsWhatALiveReadingDoesNotKnow) {
    const std::string address = "AA:BB:CC:DD:EE:0A";
    const AccessoryReading live{{"Buds", 45, false, "headphones"}, address};
    for (const auto& [symbol, kept] : {std::pair("airpods", "airpods"), std::pair(any, "headphones")})
        EXPECT_THAT(batteriesOf(combineAccessories({{{"Buds", 40, true, symbol}, address}}, {live})),
                    ElementsAre(AccessoryBattery{"Buds", 45, true, kept}));
}

TEST(AccessoryLevels, MainIsTheSingleThenTheCombinedThenTheLeast) {
    const std::pair<AccessoryLevels, std::optional<int>> rows[] = {
        {{1, 2, 3, 4, 5}, 1},    {{{}, 2, 3, 4, 5}, 2},     {{{}, {}, 4, 3, 5}, 3},
        {{{}, {}, {}, 4, 5}, 4}, {{{}, {}, {}, {}, 5}, {}},
    };
    for (const auto& [levels, main] : rows)
        EXPECT_EQ(levels.main(), main);
}

TEST(AccessoryLevels, ThatAreMeantAreAboveZero) {
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

#include "linux/power_supply/linux_battery_source.h"

#include <gtest/gtest.h>

#include "linux/read_in_place.h"
#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

struct LinuxBatterySourceTest : ::testing::Test {
    ReadInPlace inPlace;
    TemporaryFolder folder;
    LinuxBatterySource source{
        folder.path("sys"), std::make_shared<FakeClock>(), std::make_shared<DeviceThreads>(), {1, 0}};

    const std::string supplies = "sys/class/power_supply/";

    void addPack(const char* entry, const std::string& capacity) {
        folder.writeLines(
            supplies + entry,
            {{"type", "Battery"}, {"uevent", "POWER_SUPPLY_STATUS=Unknown\nPOWER_SUPPLY_CAPACITY=" + capacity}});
    }

    std::optional<BatterySample> sample() { return BatterySampler(source).sample(); }
};

TEST_F(LinuxBatterySourceTest, FollowsPacksAndPorts) {
    const std::string port = supplies + "ucsi-source-psy-1";
    folder.writeLines(port, {{"type", "USB"}, {"online", "1"}, {"scope", "System"}});
    EXPECT_EQ(sample(), std::nullopt); // an adapter is no battery
    addPack("BAT0", "50");
    addPack("BAT1", "70");
    EXPECT_EQ(sample(), (BatterySample{60, false, true}));
    folder.remove(supplies + "BAT1");
    EXPECT_EQ(sample(), (BatterySample{50, false, true}));
    folder.write(port + "/scope", "Device\n"); // the port gives power now
    EXPECT_EQ(sample(), (BatterySample{50, false, false}));
    folder.remove(supplies + "BAT0");
    EXPECT_EQ(sample(), std::nullopt);
}

/// One property that fails spoils the whole of uevent with some drivers.
TEST_F(LinuxBatterySourceTest, ReadsSingleFilesWhereTheWholeFails) {
    folder.write(supplies + "BAT0/type", "Battery\n");
    EXPECT_EQ(sample(), std::nullopt);
    folder.writeLines(supplies + "BAT0", {{"capacity", "64"}, {"status", "Charging"}, {"power_now", "15000000"}});
    EXPECT_EQ(sample(), (BatterySample{64, true, true, {}, {}, {}, {}, 15.0}));
}

} // namespace
} // namespace vantrix

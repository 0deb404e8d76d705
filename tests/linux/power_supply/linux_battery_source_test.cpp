#include "linux/power_supply/linux_battery_source.h"

#include <gtest/gtest.h>

#include "linux/temporary_folder.h"
#include "samplers/fake_clock.h"

namespace vantrix {
namespace {

struct LinuxBatterySourceTest : ::testing::Test {
    TemporaryFolder folder;
    LinuxBatterySource source{folder.path("sys"), std::make_shared<FakeClock>(), 1};

    const std::string supplies = "sys/class/power_supply/";

    /// A pack; `values` are "STATUS=Full CAPACITY=50 …", where "Not_charging" stands for "Not charging".
    void setPack(const std::string& entry, const std::string& values) {
        std::string text = "DEVTYPE=power_supply";
        std::istringstream pairs(values);
        for (std::string pair; pairs >> pair;)
            text += "\nPOWER_SUPPLY_" + pair;
        if (const auto blank = text.find("Not_charging"); blank != std::string::npos)
            text[blank + 3] = ' ';
        folder.writeLines(supplies + entry, {{"type", "Battery"}, {"uevent", text}});
    }
    std::optional<BatterySample> sample() { return BatterySampler(source).sample(); }
};

TEST_F(LinuxBatterySourceTest, UnderstandsEveryKindOfDriver) {
    const struct {
        const char* name;
        std::vector<std::string> packs;
        const char* adapter; // "online", empty for none
        BatterySample sample;
    } rows[] = {
        {"energy, discharging",
         {"STATUS=Discharging CAPACITY=49 ENERGY_NOW=25000000 ENERGY_FULL=45000000 ENERGY_FULL_DESIGN=50000000 "
          "POWER_NOW=10000000 CYCLE_COUNT=211 TEMP=315 TIME_TO_EMPTY_NOW=60 TIME_TO_EMPTY_AVG=60"},
         "0",
         {49, false, false, 150, 211, 90, 31.5, 10.0}},
        {"charge and negative current, charging",
         {"STATUS=Charging CHARGE_NOW=2000000 CHARGE_FULL=4000000 CHARGE_FULL_DESIGN=5000000 VOLTAGE_NOW=12000000 "
          "VOLTAGE_MIN_DESIGN=11000000 CURRENT_NOW=-1000000 CYCLE_COUNT=0"},
         "1",
         {50, true, true, 110, {}, 80, {}, 12.0}},
        {"charge without a voltage",
         {"STATUS=Discharging CHARGE_NOW=2000000 CHARGE_FULL=4000000 CHARGE_FULL_DESIGN=5000000 CURRENT_NOW=1000000"},
         "0",
         {50, false, false, 120, {}, 80}},
        {"full and design beside a percentage, a mean time",
         {"STATUS=Charging CAPACITY=40 CHARGE_FULL=4500000 CHARGE_FULL_DESIGN=5000000 TIME_TO_FULL_AVG=1800"},
         "1",
         {40, true, true, 30, {}, 90}},
        {"both times",
         {"STATUS=Discharging CAPACITY=9 TIME_TO_EMPTY_NOW=600 TIME_TO_EMPTY_AVG=1200"},
         "0",
         {9, {}, {}, 10}},
        {"energy and charge with no voltage between them",
         {"STATUS=Discharging CAPACITY=40 ENERGY_NOW=8 ENERGY_FULL=20 ENERGY_FULL_DESIGN=25 POWER_NOW=10000000",
          "STATUS=Full CAPACITY=60 CHARGE_NOW=3 CHARGE_FULL=5 CHARGE_FULL_DESIGN=6 CURRENT_NOW=0"},
         "0",
         {50, false, false, {}, {}, {}, {}, 10.0}},
        {"capacity alone", {"STATUS=Unknown CAPACITY=77"}, "", {77}},
        {"held at a limit", {"STATUS=Not_charging CAPACITY=80 POWER_NOW=0"}, "1", {80, false, true}},
        {"full, with nothing to tell of the mains", {"STATUS=Full CAPACITY=100"}, "", {100, false, true}},
        {"full, unplugged", {"STATUS=Full CAPACITY=100"}, "0", {100}},
        {"charging over a port that says nothing", {"STATUS=Charging CAPACITY=5"}, "0", {5, true, true}},
        {"no power yet", {"STATUS=Discharging ENERGY_NOW=1 ENERGY_FULL=2 POWER_NOW=0"}, "0", {50}},
        {"empty bay", {"STATUS=Full CAPACITY=60", "PRESENT=0 CAPACITY=0"}, "1", {60, false, true}},
        {"nonsense",
         {"STATUS=Full CAPACITY=60 TEMP=9999 POWER_NOW=99999999999999 ENERGY_NOW=x ENERGY_FULL=-5 CYCLE_COUNT=-1"},
         "1",
         {60, false, true}},
    };
    for (const auto& row : rows) {
        folder.remove("sys");
        EXPECT_EQ(sample(), std::nullopt);
        for (std::size_t i = 0; i < row.packs.size(); ++i)
            setPack("BAT" + std::to_string(i), row.packs[i]);
        if (*row.adapter)
            folder.writeLines(supplies + "AC", {{"type", "Mains"}, {"online", row.adapter}});
        EXPECT_EQ(sample(), row.sample) << row.name;
    }
}

TEST_F(LinuxBatterySourceTest, FollowsPacksAndPorts) {
    const std::string port = supplies + "ucsi-source-psy-1";
    folder.writeLines(port, {{"type", "USB"}, {"online", "1"}, {"scope", "System"}});
    EXPECT_EQ(sample(), std::nullopt); // an adapter is no battery
    setPack("BAT0", "STATUS=Unknown CAPACITY=50");
    setPack("BAT1", "STATUS=Unknown CAPACITY=70");
    EXPECT_EQ(sample(), (BatterySample{60, false, true}));
    folder.remove(supplies + "BAT1");
    EXPECT_EQ(sample(), (BatterySample{50, false, true}));
    folder.write(port + "/scope", "Device\n"); // the port gives power now
    EXPECT_EQ(sample(), (BatterySample{50, false, false}));
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

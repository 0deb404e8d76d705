#include "menubar/menu_bar_item.h"

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"
#include "monitor/readings.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using enum MenuBarSeverity;

class MenuBarItemTest : public ::testing::Test {
  protected:
    MenuBarItem item(MenuBarModule module) { return menuBarItem(module, readings, defaults).value(); }

    fakes::FakeDefaults defaults;
    Readings readings;
};

TEST_F(MenuBarItemTest, SeverityCountsReachingAThresholdAndTakesThemInAnyOrder) {
    struct Case {
        double fraction, warning, critical;
        MenuBarSeverity expected;
    };
    const Case cases[] = {
        {0.90, 0.75, 0.9, critical},  {0.7499, 0.75, 0.9, normal}, {0.75, 0.75, 0.9, warning},
        {0.8999, 0.75, 0.9, warning}, {0.8, 0.9, 0.7, critical},   {0.6, 0.9, 0.7, normal},
    };
    for (const Case& c : cases) {
        defaults.set(preference_key::warningThreshold, c.warning);
        defaults.set(preference_key::criticalThreshold, c.critical);
        EXPECT_EQ(severityOf(c.fraction, defaults), c.expected) << c.fraction << ' ' << c.warning << ' ' << c.critical;
    }
}

TEST_F(MenuBarItemTest, MemoryFollowsThePressureNotTheThresholds) {
    readings.memory = {100, 60, 30, 9, 0, MemorySample::Pressure::normal};
    EXPECT_EQ(item(MenuBarModule::memory).lines.front(), "99%");
    EXPECT_EQ(item(MenuBarModule::memory).severity, normal);
    readings.memory.pressure = MemorySample::Pressure::warning;
    EXPECT_EQ(item(MenuBarModule::memory).severity, warning);
    readings.memory.pressure = MemorySample::Pressure::critical;
    EXPECT_EQ(item(MenuBarModule::memory).severity, critical);
}

TEST_F(MenuBarItemTest, NetworkScalesItsHistoryByItsPeakButNotBelowTheFloor) {
    readings.network = {1'500'000, 999};
    readings.downloadHistory = {25'000, 50'000};
    MenuBarItem network = item(MenuBarModule::network);
    EXPECT_THAT(network.lines, ElementsAre("↓1.5M", "↑0K"));
    EXPECT_THAT(network.history, ElementsAre(0.25, 0.5));
    EXPECT_EQ(network.fraction, 0.0);
    EXPECT_EQ(network.severity, normal);
    readings.downloadHistory = {100'000, 400'000};
    EXPECT_THAT(item(MenuBarModule::network).history, ElementsAre(0.25, 1.0));
    readings.downloadHistory.clear();
    EXPECT_THAT(item(MenuBarModule::network).history, IsEmpty());
}

TEST_F(MenuBarItemTest, DiskWarnsBelowItsOwnThreshold) {
    struct Case {
        std::uint64_t available;
        MenuBarSeverity expected;
        const char* text;
    };
    // 0.92 − 0.07 is a little more than 0.85 in double precision, so exactly 85 % does not warn yet.
    const Case cases[] = {{140, warning, "86%"}, {150, normal, "85%"}, {80, critical, "92%"}, {2000, normal, "0%"}};
    for (const Case& c : cases) {
        readings.disk = {1000, c.available, std::nullopt, std::nullopt};
        EXPECT_EQ(item(MenuBarModule::disk).severity, c.expected) << c.available;
        EXPECT_THAT(item(MenuBarModule::disk).lines, ElementsAre(c.text));
    }
    readings.disk.total = 0;
    EXPECT_EQ(menuBarItem(MenuBarModule::disk, readings, defaults), std::nullopt);
}

TEST_F(MenuBarItemTest, TemperatureHasFixedLimitsAndScale) {
    struct Case {
        double celsius;
        MenuBarSeverity expected;
        const char* text;
        double fraction;
    };
    const Case cases[] = {{79.9, normal, "80°", 79.9 / 110},   {80.0, warning, "80°", 80.0 / 110},
                          {90.0, critical, "90°", 90.0 / 110}, {121.0, critical, "121°", 1.0},
                          {71.5, normal, "72°", 71.5 / 110},   {-5.0, normal, "-5°", 0.0}};
    for (const Case& c : cases) {
        readings.sensors.cpu = c.celsius;
        const MenuBarItem temperature = item(MenuBarModule::temperature);
        EXPECT_EQ(temperature.severity, c.expected) << c.celsius;
        EXPECT_THAT(temperature.lines, ElementsAre(c.text));
        EXPECT_DOUBLE_EQ(temperature.fraction, c.fraction);
    }
    readings.cpuTemperatureHistory = {-10, 55, 220};
    EXPECT_THAT(item(MenuBarModule::temperature).history, ElementsAre(0.0, 0.5, 1.0));
}

TEST_F(MenuBarItemTest, BatteryWarnsOnlyWhileItDrains) {
    struct Case {
        int percent;
        bool charging, pluggedIn;
        MenuBarSeverity expected;
        const char* label;
    };
    const Case cases[] = {{21, false, false, normal, "BAT"},  {20, false, false, warning, "BAT"},
                          {11, false, false, warning, "BAT"}, {10, false, false, critical, "BAT"},
                          {5, false, true, normal, "BAT"},    {5, true, true, normal, "CHG"},
                          {100, false, false, normal, "BAT"}};
    for (const Case& c : cases) {
        readings.battery = BatterySample{.percent = c.percent, .isCharging = c.charging, .isPluggedIn = c.pluggedIn};
        const MenuBarItem battery = item(MenuBarModule::battery);
        EXPECT_EQ(battery.severity, c.expected) << c.percent;
        EXPECT_EQ(battery.label, c.label) << c.percent;
    }
}

TEST_F(MenuBarItemTest, ModulesWithoutDataLeaveNoGap) {
    readings.cpu.total = 0.125;
    const std::vector<MenuBarModule> modules{MenuBarModule::gpu, MenuBarModule::cpu, MenuBarModule::battery,
                                             MenuBarModule::temperature, MenuBarModule::network};
    const auto items = menuBarItems(modules, readings, defaults);
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(accessibilityLabel(items), "CPU 13%, NET ↓0K ↑0K");
    EXPECT_EQ(accessibilityLabel({}), "");
    readings.gpu = 0.9;
    EXPECT_EQ(menuBarItems(modules, readings, defaults).front().severity, critical);
}

} // namespace
} // namespace vantrix

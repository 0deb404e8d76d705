#include "menubar/menu_bar_item.h"

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"
#include "menubar/menu_bar_renderer.h"
#include "monitor/readings.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;

using enum MenuBarSeverity;

struct MenuBarItemTest : ::testing::Test {
    MenuBarItem item(MenuBarModule module) { return menuBarItems({module}, readings, defaults).at(0); }

    fakes::FakeDefaults defaults;
    Readings readings;
};

TEST_F(MenuBarItemTest, SeverityCountsReachingAThresholdAndTakesThemInAnyOrder) {
    const struct {
        double fraction, warning, critical;
        MenuBarSeverity expected;
    } rows[] = {
        {0.90, 0.75, 0.9, critical},  {0.7499, 0.75, 0.9, normal}, {0.75, 0.75, 0.9, warning},
        {0.8999, 0.75, 0.9, warning}, {0.8, 0.9, 0.7, critical},   {0.6, 0.9, 0.7, normal},
    };
    for (const auto& row : rows) {
        defaults.set(preference_key::warningThreshold, row.warning);
        defaults.set(preference_key::criticalThreshold, row.critical);
        EXPECT_EQ(severityOf(row.fraction, defaults), row.expected) << row.fraction << ' ' << row.warning;
    }
}

TEST_F(MenuBarItemTest, EveryModuleHasItsOwnScaleAndLimits) {
    using enum MenuBarModule;
    const auto withMemory = [](auto pressure) { return Readings{.memory = {100, 60, 30, 9, 0, pressure}}; };
    const auto withDisk = [](std::uint64_t free) { return Readings{.disk = {.total = 1000, .available = free}}; };
    const auto withTemperature = [](double celsius) { return Readings{.sensors = {.cpu = celsius}}; };
    const auto withBattery = [](int percent, bool isCharging = false, bool isPluggedIn = false) {
        return Readings{.battery = BatterySample{percent, isCharging, isPluggedIn}};
    };
    const struct {
        MenuBarModule module;
        Readings readings;
        const char* text;
        double fraction;
        MenuBarSeverity severity;
    } rows[] = {
        // Memory follows the pressure, not the thresholds.
        {memory, withMemory(MemorySample::Pressure::normal), "RAM 99%", 0.99, normal},
        {memory, withMemory(MemorySample::Pressure::warning), "RAM 99%", 0.99, warning},
        {memory, withMemory(MemorySample::Pressure::critical), "RAM 99%", 0.99, critical},
        // 0.92 − 0.07 is a little more than 0.85 in double precision, so exactly 85 % does not warn yet.
        {disk, withDisk(150), "DISK 85%", 0.85, normal},
        {disk, withDisk(140), "DISK 86%", 0.86, warning},
        {disk, withDisk(80), "DISK 92%", 0.92, critical},
        {disk, withDisk(2000), "DISK 0%", 0.0, normal},
        {temperature, withTemperature(-5.0), "TEMP -5°", 0.0, normal},
        {temperature, withTemperature(79.9), "TEMP 80°", 79.9 / 110, normal},
        {temperature, withTemperature(80.0), "TEMP 80°", 80.0 / 110, warning},
        {temperature, withTemperature(121.0), "TEMP 121°", 1.0, critical},
        {battery, withBattery(21), "BAT 21%", 0.21, normal},
        {battery, withBattery(20), "BAT 20%", 0.2, warning},
        {battery, withBattery(10), "BAT 10%", 0.1, critical},
        {battery, withBattery(5, false, true), "BAT 5%", 0.05, normal},
        {battery, withBattery(5, true, true), "CHG 5%", 0.05, normal},
    };
    for (const auto& row : rows) {
        readings = row.readings;
        const MenuBarItem shown = item(row.module);
        EXPECT_EQ(accessibilityLabel({shown}), row.text);
        EXPECT_EQ(shown.severity, row.severity) << row.text;
        EXPECT_DOUBLE_EQ(shown.fraction, row.fraction) << row.text;
    }
}

TEST_F(MenuBarItemTest, NetworkScalesItsHistoryByItsPeakButNotBelowTheFloor) {
    readings.network = {1'500'000, 999};
    readings.downloadHistory = {25'000, 50'000};
    EXPECT_THAT(item(MenuBarModule::network).lines, ElementsAre("↓1.5M", "↑0K"));
    EXPECT_THAT(item(MenuBarModule::network).history, ElementsAre(0.25, 0.5));
    readings.downloadHistory = {100'000, 400'000};
    EXPECT_THAT(item(MenuBarModule::network).history, ElementsAre(0.25, 1.0));
}

TEST_F(MenuBarItemTest, UnitsChangeTheTextsAndNothingElse) {
    readings = demoReadings();
    readings.network = {300'000, 15'000};
    readings.sensors.cpu = 79.9;
    defaults.set(preference_key::networkUnit, QStringLiteral("bits"));
    defaults.set(preference_key::temperatureUnit, QStringLiteral("fahrenheit"));
    EXPECT_EQ(itemText(item(MenuBarModule::network)), "NET ↓2.4Mb ↑120kb");
    const MenuBarItem warm = item(MenuBarModule::temperature);
    EXPECT_EQ(itemText(warm), "TEMP 176°");
    EXPECT_EQ(warm.severity, normal);
    EXPECT_DOUBLE_EQ(warm.fraction, 79.9 / 110);
    const auto width = [this](double rate) {
        readings.network = {rate, rate};
        return MenuBarRenderer::layout(item(MenuBarModule::network), MenuBarStyle::stacked).total;
    };
    for (const double rate : {12e3, 1.2e6, 12e6, 124e6, 1.2e9}) // up to 999 Mb/s, and Gb/s
        EXPECT_EQ(width(rate), width(0.0)) << rate;
}

TEST_F(MenuBarItemTest, DiskAndTemperatureShowWhatIsChosen) {
    using enum MenuBarModule;
    readings.disk = {.total = 100, .available = 1, .readRate = 31e6, .writeRate = 9.4e6};
    readings.sensors = {.cpu = 52.0};
    readings.diskReadHistory = {5e5, 2e6};
    defaults.set(preference_key::diskModuleShows, QStringLiteral("rates"));
    defaults.set(preference_key::temperatureModuleShows, QStringLiteral("hottest"));
    EXPECT_EQ(itemText(item(temperature)), "TEMP 52°") << "where only one is known";
    readings.sensors.cpuHottest = 90.0;
    EXPECT_EQ(itemText(item(temperature)), "TEMP 90°");
    EXPECT_EQ(item(temperature).severity, critical);
    const MenuBarItem rates{"DISK", {"R 31M", "W 9.4M"}, normal, {0.25, 1.0}, 0.0, "W 999M", disk};
    EXPECT_EQ(item(disk), rates);
    readings.disk = {};
    EXPECT_EQ(itemText(item(disk)), "DISK R 0K W 0K") << "before the second reading";
    defaults.set(preference_key::diskModuleShows, QStringLiteral("Rates"));
    defaults.set(preference_key::temperatureModuleShows, QStringLiteral("coldest"));
    readings.disk = {.total = 100, .available = 25};
    EXPECT_EQ(accessibilityLabel({item(disk), item(temperature)}), "DISK 75%, TEMP 52°");
}

TEST_F(MenuBarItemTest, ModulesWithoutDataLeaveNoGap) {
    readings.cpu.total = 0.125;
    const std::vector<MenuBarModule> modules{MenuBarModule::gpu,         MenuBarModule::cpu,
                                             MenuBarModule::disk,        MenuBarModule::battery,
                                             MenuBarModule::temperature, MenuBarModule::network};
    EXPECT_EQ(accessibilityLabel(menuBarItems(modules, readings, defaults)), "CPU 13%, NET ↓0K ↑0K");
    readings.network.isThere = false;
    EXPECT_EQ(accessibilityLabel(menuBarItems(modules, readings, defaults)), "CPU 13%") << "a chosen port that is gone";
    readings.gpu = 0.9;
    const auto items = menuBarItems(modules, readings, defaults);
    EXPECT_EQ(items[0].severity, critical);
    EXPECT_EQ(items[0].module, MenuBarModule::gpu);
}

} // namespace
} // namespace vantrix

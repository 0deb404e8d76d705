#include "app/printed_line.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

const std::vector<MenuBarItem> row{
    {"CPU", {"7%"}, MenuBarSeverity::normal, {}, 0.07, "100%"},
    {"NET", {"↓12K", "↑1.5M"}, MenuBarSeverity::normal, {}, 0.0, "↓99M"},
    {"DISK", {"95%"}, MenuBarSeverity::critical, {}, 0.95, "100%"},
};

TEST(TextLine, KeepsItsColumnsWhileNumbersChange) {
    EXPECT_EQ(textLine(row), "CPU   7%  NET ↓12K ↑1.5M  DISK  95%");
    EXPECT_EQ(textLine({}), "");
}

TEST(WaybarLine, GivesTheBarWhatItUnderstands) {
    MenuBarItem odd = row.back();
    odd.label = "<&>"; // the bar reads texts as markup
    EXPECT_EQ(waybarLine({row[0], row[1], odd}),
              R"({"class":"critical","percentage":7,"text":"CPU 7%  NET ↓12K ↑1.5M  &lt;&amp;&gt; 95%",)"
              R"("tooltip":"CPU 7%\nNET ↓12K ↑1.5M\n&lt;&amp;&gt; 95%"})");
    EXPECT_EQ(waybarLine({}), R"({"class":"normal","text":"","tooltip":""})");
}

/// Scripts read the names; the numbers tell the fields apart.
TEST(JsonLine, HoldsEveryRecordUnderItsFieldNames) {
    Readings readings;
    readings.cpu = {0.5, 0.25, 0.125, {0.5}};
    readings.memory = {~std::uint64_t{0}, 2, 3, 4, 5, MemorySample::Pressure::warning};
    readings.network = {6, 7};
    readings.networkInfo = demoReadings().networkInfo;
    readings.networkInfo.ssid = "Hö\"\\\n\x01\xff";
    readings.disk = {8, 9, 1e21, 0.1 + 0.2};
    readings.gpu = 0.75;
    readings.sensors.all = {{"CPU", 12.0}};
    readings.sensors.cpu = 13.0;
    readings.sensors.fans = {{0, 14.0, 15.0, 16.0}, {1, 17.0}};
    readings.sensors.systemPower = 18.0;
    readings.sensors.components = ComponentPower{19.0, 20.0, 21.0, 22.0};
    readings.battery = BatterySample{23, false, true, 24, 25, 26, 27.0, 28.0};
    readings.accessories = {{"Pen", 29, true, "pencil"}};
    readings.cpuHistory = readings.memoryHistory = readings.downloadHistory = {0.0};
    EXPECT_EQ(
        jsonLine(readings, std::nullopt),
        R"({"accessories":[{"isCharging":true,"name":"Pen","percent":29,"symbol":"pencil"}],)"
        R"("battery":{"cycleCount":25,"healthPercent":26,"isCharging":false,"isPluggedIn":true,"minutesRemaining":24,)"
        R"("percent":23,"temperature":27,"watts":28},)"
        R"("cpu":{"perCore":[0.5],"system":0.125,"total":0.5,"user":0.25},)"
        R"("disk":{"available":9,"readRate":1e+21,"total":8,"writeRate":0.30000000000000004},"gpu":0.75,"interval":2,)"
        R"("memory":{"app":2,"compressed":4,"pressure":"warning","swapUsed":5,"total":9223372036854775807,"wired":3},)"
        R"("network":{"download":6,"upload":7},)"
        R"("networkInfo":{"displayName":"Wi-Fi","interface":"en0","kind":"wifi","linkSpeedMbps":866,)"
        R"("localIP":"192.168.1.24","noise":-92,"rssi":-52,"ssid":"Hö\"\\\n\u0001�"},)"
        R"("sensors":{"all":[{"name":"CPU","value":12}],"components":{"ane":21,"cpu":19,"dram":22,"gpu":20},"cpu":13,)"
        R"("fans":[{"id":0,"maxRPM":16,"minRPM":15,"rpm":14},{"id":1,"rpm":17}],"systemPower":18}})");
}

TEST(JsonLine, LeavesOutWhatIsAbsent) {
    Readings readings;
    readings.sensors.components = ComponentPower();
    EXPECT_EQ(jsonLine(readings, std::nullopt),
              R"({"disk":{"available":0,"total":0},"interval":2,"networkInfo":{"kind":"offline"}})");
    EXPECT_EQ(jsonLine(demoReadings(), std::vector{MenuBarModule::gpu}), R"({"gpu":0.21,"interval":2})");
}

TEST(JsonLine, NamesProgramsOnDemandAlone) {
    Readings readings;
    readings.processes = {{{"Web \"x\"", "web", 3, 0.5, 4096}}, {}};
    EXPECT_EQ(jsonLine(readings, std::nullopt).find("processes"), std::string::npos);
    EXPECT_EQ(jsonLine(readings, std::vector<MenuBarModule>(), true),
              R"({"interval":2,"processes":{"busiest":[{"cpu":0.5,"memory":4096,"name":"Web \"x\"","processes":3}],)"
              R"("largest":[]}})");
}

} // namespace
} // namespace vantrix

#include "widget/widget_bridge.h"

#include <limits>

#include <gtest/gtest.h>

#include "fakes/fake_defaults.h"
#include "fakes/fake_widget_center.h"
#include "monitor/readings.h"
#include "widget/shared_stats.h"

namespace vantrix {
namespace {

struct WidgetBridgeTest : ::testing::Test {
    /// What a widget reads after a pass.
    SharedStats stored() {
        bridge.update(readings);
        EXPECT_EQ(center.key, "sharedStats");
        const auto stats = decodeSharedStats(center.json);
        EXPECT_TRUE(stats) << center.json;
        return stats.value_or(SharedStats());
    }

    double now = 785403893.25;
    fakes::FakeDefaults defaults;
    fakes::FakeWidgetCenter center;
    Readings readings;
    WidgetBridge bridge{&center, defaults, [this] { return now; }};
};

TEST_F(WidgetBridgeTest, StoresWhatAWidgetShows) {
    readings.cpu.total = 0.1;
    readings.memory = {.total = 400, .app = 100, .wired = 50, .compressed = 50};
    readings.network = {.download = 1e21, .upload = 1234.5};
    readings.disk = {.total = 1000, .available = 250};
    readings.gpu = 0.0;
    readings.battery = BatterySample{.percent = 80, .isCharging = true};
    readings.sensors.cpu = 1.0 / 3.0;
    readings.accessories = {{"Mouse \"M\"\\\n\x01", 55, false, "computermouse"},
                            {"Клавиатура\xff", 100, true, "keyboard"}};
    defaults.set(preference_key::warningThreshold, 0.55);
    defaults.set(preference_key::criticalThreshold, 0.95);
    const SharedStats expected{.cpu = 0.1,
                               .memory = 0.5,
                               .disk = 0.75,
                               .download = 1e21,
                               .upload = 1234.5,
                               .gpu = 0.0,
                               .batteryPercent = 80,
                               .batteryCharging = true,
                               .cpuTemperature = 1.0 / 3.0,
                               .warning = 0.55,
                               .critical = 0.95,
                               .updated = 785403893.25,
                               .accessories = {{"Mouse \"M\"\\\n\x01", 55, false, "computermouse"},
                                               {"Клавиатура\uFFFD", 100, true, "keyboard"}}};
    EXPECT_EQ(stored(), expected) << center.json;
}

TEST_F(WidgetBridgeTest, LeavesOutWhatIsAbsent) {
    readings.disk = {.total = 10, .available = 20};
    const SharedStats expected{.warning = defaults.number(preference_key::warningThreshold),
                               .critical = defaults.number(preference_key::criticalThreshold),
                               .updated = now};
    EXPECT_EQ(stored(), expected) << center.json;
    EXPECT_EQ(center.json.find("null"), std::string::npos);
}

TEST_F(WidgetBridgeTest, DropsASnapshotThatCannotBeExpressed) {
    bridge.update(readings);
    for (const double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        readings.sensors.cpu = value;
        bridge.update(readings);
    }
    EXPECT_EQ(center.stores, 1);
    readings.sensors.cpu = 50.0;
    EXPECT_EQ(stored().cpuTemperature, 50.0);
}

TEST_F(WidgetBridgeTest, WritesEachTimeAndAnnouncesOnceAMinute) {
    const struct {
        double later;
        int reloads;
    } passes[] = {{0.0, 1}, {30.0, 1}, {29.5, 1}, {0.5, 2}, {59.0, 2}, {-1e6, 2}, {2.0, 2}, {3600.0, 3}};
    int stores = 0;
    for (const auto& [later, reloads] : passes) {
        now += later;
        bridge.update(readings);
        EXPECT_EQ(center.stores, ++stores);
        EXPECT_EQ(center.reloads, reloads) << "pass " << stores;
    }
}

TEST(SharedStats, AreReadOnlyWhereEveryFieldIsOfItsType) {
    const std::string sound =
        R"({"cpu":0.5,"memory":0.25,"disk":0.75,"download":1,"upload":2,"gpu":0.1,"batteryPercent":7,)"
        R"("batteryCharging":true,"cpuTemperature":40,"warning":0.6,"critical":0.8,"updated":3,)"
        R"("accessories":[{"name":"M","percent":5,"isCharging":true,"symbol":"s","kind":1}],"later":{}})";
    const SharedStats expected{0.5, 0.25, 0.75, 1.0, 2.0, 0.1, 7, true, 40.0, 0.6, 0.8, 3.0, {{"M", 5, true, "s"}}};
    EXPECT_EQ(decodeSharedStats(sound), expected) << "whatever else there is";
    const std::pair<std::string, std::string> damages[] = {
        {R"("cpu":0.5,)", ""}, {"0.5", "true"},         {":7", ":7.5"}, {"true", "1"},
        {"[{", "[1,{"},        {R"("percent":5,)", ""}, {"{}}", "{}"},
    };
    for (const auto& [whole, damaged] : damages) {
        std::string text = sound;
        text.replace(text.find(whole), whole.size(), damaged);
        EXPECT_FALSE(decodeSharedStats(text)) << text;
    }
    EXPECT_FALSE(decodeSharedStats(""));
}

} // namespace
} // namespace vantrix

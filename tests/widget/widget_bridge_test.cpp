#include "widget/widget_bridge.h"

#include <limits>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include "fakes/fake_defaults.h"
#include "fakes/fake_widget_center.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

struct WidgetBridgeTest : ::testing::Test {
    QJsonObject stored() {
        bridge.update(readings);
        EXPECT_EQ(center.key, "sharedStats");
        QJsonParseError error{};
        const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(center.json), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << center.json;
        return document.object();
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
    readings.accessories = {{"Mouse \"M\"\\\n", 55, false, "computermouse"}, {"Клавиатура\xff", 100, true, "keyboard"}};
    defaults.set(preference_key::criticalThreshold, 0.95);
    const QJsonObject expected{
        {u"cpu"_s, 0.1},
        {u"memory"_s, 0.5},
        {u"disk"_s, 0.75},
        {u"download"_s, 1e21},
        {u"upload"_s, 1234.5},
        {u"gpu"_s, 0.0},
        {u"batteryPercent"_s, 80},
        {u"batteryCharging"_s, true},
        {u"cpuTemperature"_s, 1.0 / 3.0},
        {u"warning"_s, defaults.number(preference_key::warningThreshold)},
        {u"critical"_s, 0.95},
        {u"updated"_s, 785403893.25},
        {u"accessories"_s, QJsonArray{QJsonObject{{u"name"_s, u"Mouse \"M\"\\\n"_s},
                                                  {u"percent"_s, 55},
                                                  {u"isCharging"_s, false},
                                                  {u"symbol"_s, u"computermouse"_s}},
                                      QJsonObject{{u"name"_s, u"Клавиатура\xfffd"_s},
                                                  {u"percent"_s, 100},
                                                  {u"isCharging"_s, true},
                                                  {u"symbol"_s, u"keyboard"_s}}}},
    };
    EXPECT_EQ(stored(), expected) << center.json;
    EXPECT_TRUE(center.json.starts_with("{\"cpu\":0.1,\"memory\":0.5,")) << "in the fields' order";
}

TEST_F(WidgetBridgeTest, LeavesOutWhatIsAbsent) {
    readings.disk = {.total = 10, .available = 20};
    const QJsonObject object = stored();
    EXPECT_EQ(object.keys(), QStringList({u"accessories"_s, u"cpu"_s, u"critical"_s, u"disk"_s, u"download"_s,
                                          u"memory"_s, u"updated"_s, u"upload"_s, u"warning"_s}));
    EXPECT_EQ(object[u"disk"_s], 0);
    EXPECT_EQ(object[u"memory"_s], 0);
    EXPECT_EQ(object[u"accessories"_s], QJsonArray());
}

TEST_F(WidgetBridgeTest, DropsASnapshotThatCannotBeExpressed) {
    bridge.update(readings);
    for (const double value : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        readings.sensors.cpu = value;
        bridge.update(readings);
    }
    EXPECT_EQ(center.stores, 1);
    readings.sensors.cpu = 50.0;
    EXPECT_EQ(stored()[u"cpuTemperature"_s], 50.0);
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

TEST_F(WidgetBridgeTest, DoesNothingWithoutAGroup) {
    WidgetBridge alone(nullptr, defaults);
    alone.update(readings);
    alone.write({});
}

TEST(WallClock, CountsFrom2001) {
    EXPECT_NEAR(secondsSince2001(), static_cast<double>(std::time(nullptr)) - 978307200.0, 2.0);
}

} // namespace
} // namespace vantrix

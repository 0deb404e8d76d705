#include "alerts/alert_manager.h"

#include <memory>

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"
#include "fakes/fake_notification_center.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;
using Post = fakes::FakeNotificationCenter::Post;
using Pressure = MemorySample::Pressure;

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

class AlertManagerTest : public ::testing::Test {
  protected:
    AlertManagerTest() {
        readings.cpu.total = 0.934;
        defaults.set(preference_key::alertsEnabled, true);
    }

    /// What is posted in so many passes; the clock goes along with them.
    std::size_t postsIn(int passes) {
        const std::size_t before = center.posts.size();
        for (int pass = 0; pass < passes; ++pass) {
            now += readings.interval;
            manager->evaluate(readings);
        }
        return center.posts.size() - before;
    }

    double now = 8e8;
    fakes::FakeDefaults defaults;
    fakes::FakeNotificationCenter center;
    Readings readings; // every 2 seconds
    std::unique_ptr<AlertManager> manager = std::make_unique<AlertManager>(center, defaults, [this] { return now; });
};

TEST_F(AlertManagerTest, KnowsTheConditionsAndTheirTexts) {
    const auto memory = [](Pressure pressure, std::uint64_t used, std::uint64_t total) {
        return Readings{.memory = {.total = total * gibibyte, .app = used * gibibyte, .pressure = pressure}};
    };
    const auto battery = [](BatterySample sample) { return Readings{.battery = sample}; };
    const auto celsius = [](double cpu) { return Readings{.sensors = {.cpu = cpu}}; };
    const auto low = u"15 GB of 16 GB in use and the system is under memory pressure."_s;
    const struct {
        const char* name;
        Readings readings;
        std::optional<Post> post;
    } table[] = {
        {"nothing", {}, {}},
        {"CPU at the threshold",
         {.cpu = {.total = 0.85}},
         {{u"vantrix.cpu"_s, u"High CPU usage"_s, u"The CPU has been at 85% or more for a while."_s}}},
        {"CPU just below", {.cpu = {.total = 0.8499}}, {}},
        {"memory with a warning",
         memory(Pressure::warning, 15, 16),
         {{u"vantrix.memory"_s, u"Memory is running low"_s, low}}},
        {"memory full without pressure", memory(Pressure::normal, 16, 16), {}},
        {"memory under pressure, not full", memory(Pressure::critical, 13, 16), {}},
        {"memory of unknown size", memory(Pressure::critical, 13, 0), {}},
        {"disk at the threshold",
         {.disk = {.total = 1'000'000'000, .available = 80'000'000}},
         {{u"vantrix.disk"_s, u"Disk almost full"_s, u"Only 80 MB free on the startup disk."_s}}},
        {"disk just below", {.disk = {.total = 1'000'000'000, .available = 80'000'001}}, {}},
        {"battery at the bound",
         battery({.percent = 15}),
         {{u"vantrix.battery"_s, u"Battery low"_s, u"15% left. Plug in the charger."_s}}},
        {"battery above", battery({.percent = 16}), {}},
        {"battery low, charging", battery({.percent = 10, .isCharging = true}), {}},
        {"battery low, plugged in", battery({.percent = 10, .isPluggedIn = true}), {}},
        {"hot at the bound",
         celsius(95.0),
         {{u"vantrix.temperature"_s, u"CPU is running hot"_s, u"The CPU temperature is 95°C."_s}}},
        {"warm", celsius(94.9), {}},
    };
    defaults.set(preference_key::criticalThreshold, 0.85);
    defaults.set(preference_key::diskAlertThreshold, 0.92);
    defaults.set(preference_key::alertDuration, 0.0);
    for (const auto& row : table) {
        center.posts.clear();
        AlertManager(center, defaults, [] { return 0.0; }).evaluate(row.readings);
        EXPECT_EQ(center.posts, row.post ? std::vector{*row.post} : std::vector<Post>()) << row.name;
    }
}

TEST_F(AlertManagerTest, EachKindHasItsSwitch) {
    readings.memory = {.total = 100, .app = 100, .pressure = Pressure::critical};
    readings.disk = {.total = 100, .available = 1};
    readings.battery = BatterySample{.percent = 5};
    readings.sensors.cpu = 99.0;
    const QString keys[] = {preference_key::alertCPU, preference_key::alertMemory, preference_key::alertDisk,
                            preference_key::alertBattery, preference_key::alertTemperature};
    defaults.set(preference_key::alertDuration, 0.0);
    for (std::size_t chosen = 0; chosen < std::size(keys); ++chosen) {
        for (std::size_t i = 0; i < std::size(keys); ++i)
            defaults.set(keys[i], i == chosen);
        center.posts.clear();
        AlertManager(center, defaults, [] { return 0.0; }).evaluate(readings);
        ASSERT_EQ(center.posts.size(), 1u) << keys[chosen].toStdString();
        EXPECT_EQ("vantrix." + std::string(AlertManager::kindNames[chosen]), center.posts[0].identifier.toStdString());
    }
}

TEST_F(AlertManagerTest, FiresOnceTheConditionHasLastedAndEvery15MinutesFromThen) {
    EXPECT_EQ(postsIn(14), 0u);
    EXPECT_EQ(postsIn(1), 1u); // 30 seconds
    EXPECT_EQ(postsIn(449), 0u);
    EXPECT_EQ(postsIn(1), 1u); // 900 seconds later to the second
    EXPECT_EQ(postsIn(449), 0u);
}

TEST_F(AlertManagerTest, ABreakStartsTheTimeAnewButNotTheCooldown) {
    const auto breakOff = [this] {
        readings.cpu.total = 0.5;
        EXPECT_EQ(postsIn(1), 0u);
        readings.cpu.total = 1.0;
    };
    EXPECT_EQ(postsIn(14), 0u);
    breakOff();
    EXPECT_EQ(postsIn(14), 0u);
    EXPECT_EQ(postsIn(1), 1u);
    breakOff();
    EXPECT_EQ(postsIn(448), 0u);
    EXPECT_EQ(postsIn(1), 1u);
}

TEST_F(AlertManagerTest, CountsByTheIntervalAndReadsTheSettingsAfresh) {
    EXPECT_EQ(postsIn(10), 0u);
    readings.interval = 0.5;
    defaults.set(preference_key::alertsEnabled, false);
    EXPECT_EQ(postsIn(100), 0u);
    defaults.set(preference_key::alertsEnabled, true); // goes on from 20 seconds
    EXPECT_EQ(postsIn(19), 0u);
    defaults.set(preference_key::alertDuration, 60.0);
    EXPECT_EQ(postsIn(60), 0u);
    EXPECT_EQ(postsIn(1), 1u);
}

TEST_F(AlertManagerTest, KindsDoNotShareTheirCooldown) {
    EXPECT_EQ(postsIn(15), 1u);
    readings.sensors.cpu = 100.0;
    EXPECT_EQ(postsIn(15), 1u);
    EXPECT_EQ(center.posts.back().identifier, u"vantrix.temperature"_s);
}

TEST_F(AlertManagerTest, AClockThatIsSetBackNeitherRepeatsNorSilences) {
    EXPECT_EQ(postsIn(15), 1u);
    now -= 1e8;
    EXPECT_EQ(postsIn(450), 0u);
    EXPECT_EQ(postsIn(1), 1u); // 15 minutes of the new time
}

TEST_F(AlertManagerTest, TheTestAsksFirst) {
    QStringList outcomes;
    const auto note = [&](const QString& outcome) { outcomes << outcome; };
    manager->sendTest(note);
    manager->sendTest(note);
    manager->sendTest(note);
    ASSERT_EQ(center.requests.size(), 3u);
    EXPECT_TRUE(center.posts.empty() && outcomes.empty());
    center.requests[0](true);
    EXPECT_EQ(center.posts, (std::vector<Post>{{u"vantrix.test"_s, u"Vantrix"_s, u"Notifications are working."_s}}));
    center.requests[1](false);
    EXPECT_EQ(outcomes, QStringList({u"Test notification sent."_s,
                                     u"Notifications are turned off for Vantrix. Enable them in System Settings → "
                                     "Notifications."_s}));
    manager.reset();
    center.requests[2](true); // too late
    EXPECT_EQ(center.posts.size(), 1u);
    EXPECT_EQ(outcomes.size(), 2);
}

} // namespace
} // namespace vantrix

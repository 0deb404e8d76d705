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
    const auto memory = [](Pressure pressure, std::uint64_t app, std::uint64_t total) {
        return [=](Readings& r) { r.memory = {.total = total, .app = app, .wired = gibibyte, .pressure = pressure}; };
    };
    const auto disk = [](std::uint64_t total, std::uint64_t available) {
        return [=](Readings& r) { r.disk = {.total = total, .available = available}; };
    };
    const auto battery = [](int percent, bool charging, bool plugged) {
        return [=](Readings& r) { r.battery = {.percent = percent, .isCharging = charging, .isPluggedIn = plugged}; };
    };
    const auto cpu = [](double load) { return [=](Readings& r) { r.cpu.total = load; }; };
    const auto celsius = [](double cpu_) { return [=](Readings& r) { r.sensors.cpu = cpu_; }; };
    const auto only = [](const char* kind, const char* title, const char* body) {
        return std::vector<Post>{{QString::fromUtf8(kind), QString::fromUtf8(title), QString::fromUtf8(body)}};
    };
    const auto cpuPost = [&](const char* body) { return only("vantrix.cpu", "High CPU usage", body); };
    const auto lowBattery = [&](const char* body) { return only("vantrix.battery", "Battery low", body); };
    const auto hot = [&](const char* body) { return only("vantrix.temperature", "CPU is running hot", body); };
    const auto memoryPost = only("vantrix.memory", "Memory is running low",
                                 "15 GB of 16 GB in use and the system is under memory pressure.");
    const struct {
        const char* name;
        std::function<void(Readings&)> arrange;
        std::vector<Post> posts;
    } table[] = {
        {"nothing", [](Readings&) {}, {}},
        {"CPU above", cpu(0.934), cpuPost("The CPU has been at 93% or more for a while.")},
        {"CPU at the threshold", cpu(0.85), cpuPost("The CPU has been at 85% or more for a while.")},
        {"CPU just below", cpu(0.8499), {}},
        {"memory critical", memory(Pressure::critical, 14 * gibibyte, 16 * gibibyte), memoryPost},
        {"memory with a warning", memory(Pressure::warning, 14 * gibibyte, 16 * gibibyte), memoryPost},
        {"memory full without pressure", memory(Pressure::normal, 15 * gibibyte, 16 * gibibyte), {}},
        {"memory under pressure, not full", memory(Pressure::critical, 12 * gibibyte, 16 * gibibyte), {}},
        {"memory of unknown size", memory(Pressure::critical, 12 * gibibyte, 0), {}},
        {"disk at the threshold", disk(1'000'000'000, 80'000'000),
         only("vantrix.disk", "Disk almost full", "Only 80 MB free on the startup disk.")},
        {"disk just below", disk(1'000'000'000, 80'000'001), {}},
        {"disk of unknown size", disk(0, 0), {}},
        {"more available than there is", disk(100, 200), {}},
        {"battery at the bound", battery(15, false, false), lowBattery("15% left. Plug in the charger.")},
        {"battery empty", battery(0, false, false), lowBattery("0% left. Plug in the charger.")},
        {"battery above", battery(16, false, false), {}},
        {"battery low, charging", battery(10, true, false), {}},
        {"battery low, plugged in", battery(10, false, true), {}},
        {"hot at the bound", celsius(95.0), hot("The CPU temperature is 95°C.")},
        {"hotter", celsius(96.6), hot("The CPU temperature is 97°C.")},
        {"warm", celsius(94.9), {}},
    };
    defaults.set(preference_key::criticalThreshold, 0.85);
    defaults.set(preference_key::diskAlertThreshold, 0.92);
    defaults.set(preference_key::alertDuration, 0.0);
    for (const auto& row : table) {
        center.posts.clear();
        Readings arranged;
        row.arrange(arranged);
        AlertManager(center, defaults, [] { return 0.0; }).evaluate(arranged);
        EXPECT_EQ(center.posts, row.posts) << row.name;
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
    EXPECT_EQ(postsIn(14), 0u);
    readings.cpu.total = 0.5;
    postsIn(1);
    readings.cpu.total = 1.0;
    EXPECT_EQ(postsIn(14), 0u);
    EXPECT_EQ(postsIn(1), 1u);
    readings.cpu.total = 0.5;
    postsIn(1);
    readings.cpu.total = 1.0;
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

TEST_F(AlertManagerTest, ShowsItselfWhileTheProgramIsInFront) {
    EXPECT_EQ(center.willPresent(), (NotificationCenter::Presentation{.banner = true, .sound = true}));
}

} // namespace
} // namespace vantrix

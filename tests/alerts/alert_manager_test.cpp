#include "alerts/alert_manager.h"

#include <functional>
#include <memory>

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"
#include "fakes/fake_notification_center.h"
#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;
using Post = fakes::FakeNotificationCenter::Post;
using Pressure = MemorySample::Pressure;

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

struct AlertManagerTest : ::testing::Test {
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
    const auto disk = [](std::uint64_t free) { return Readings{.disk = {.total = 1'000'000, .available = free}}; };
    const struct {
        Readings readings;
        const char* text; // empty: none is posted
    } table[] = {
        {{}, ""},
        {{.cpu = {.total = 0.85}}, "The CPU has been at 85% or more for a while."},
        {{.cpu = {.total = 0.8499}}, ""},
        {memory(Pressure::warning, 15, 16), "15 GB of 16 GB in use and the system is under memory pressure."},
        {memory(Pressure::normal, 16, 16), ""},
        {memory(Pressure::critical, 13, 16), ""},
        {disk(80'000), "Only 80 KB free on the startup disk."},
        {disk(80'001), ""},
        {battery({.percent = 15}), "15% left. Plug in the charger."},
        {battery({.percent = 16}), ""},
        {battery({.percent = 10, .isCharging = true}), ""},
        {battery({.percent = 10, .isPluggedIn = true}), ""},
        {celsius(95.0), "The CPU temperature is 95°C."},
        {celsius(94.9), ""},
        // from here on in other units and with other limits
        {celsius(80.0), "The CPU temperature is 176°F."},
        {celsius(79.9), ""},
        {disk(80'000), "Only 80 KB free on /home."},
        {battery({.percent = 30}), "30% left. Plug in the charger."},
        {battery({.percent = 31}), ""},
        {memory(Pressure::warning, 15, 16), "15 GiB of 16 GiB in use and the system is under memory pressure."},
    };
    constexpr std::size_t inOtherUnits = std::size(table) - 6;
    defaults.set(preference_key::criticalThreshold, 0.85);
    defaults.set(preference_key::diskAlertThreshold, 0.92);
    defaults.set(preference_key::alertDuration, 0.0);
    for (std::size_t row = 0; row < std::size(table); ++row) {
        center.posts.clear();
        if (row == inOtherUnits) {
            defaults.set(preference_key::temperatureUnit, u"fahrenheit"_s);
            defaults.set(preference_key::memoryUnit, u"gib"_s);
            defaults.set(preference_key::temperatureAlertCelsius, 80.0);
            defaults.set(preference_key::batteryAlertPercent, 30.0);
            defaults.set(preference_key::diskVolume, u"/home"_s);
        }
        AlertManager(center, defaults, [] { return 0.0; }).evaluate(table[row].readings);
        EXPECT_EQ(center.posts.empty() ? QString() : center.posts[0].body, QString::fromUtf8(table[row].text)) << row;
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

TEST_F(AlertManagerTest, TellsOfWhatHasLastedAndAgainEvery15Minutes) {
    const struct {
        const char* name;
        std::function<void()> change;
        int passes;
        std::size_t posts; // with the last of them
    } steps[] = {
        {"after 30 seconds", [&] { readings.sensors.cpu = 100.0; }, 15, 2}, // two kinds, each with its cooldown
        {"900 seconds later to the second", [&] { readings.sensors.cpu.reset(); }, 450, 1},
        {"a break", [&] { readings.cpu.total = 0.5; }, 1, 0},
        {"starts the time anew but not the cooldown", [&] { readings.cpu.total = 1.0; }, 449, 1},
        {"a clock that is set back neither repeats nor silences", [&] { now -= 1e8; }, 451, 1},
        {"a break again", [&] { readings.cpu.total = 0.5; }, 1000, 0},
        {"not yet", [&] { readings.cpu.total = 1.0; }, 10, 0},
        {"switched off", [&] { defaults.set(preference_key::alertsEnabled, false); }, 100, 0},
        {"goes on from 20 seconds, by another interval and duration",
         [&] {
             defaults.set(preference_key::alertsEnabled, true);
             defaults.set(preference_key::alertDuration, 60.0);
             readings.interval = 0.5;
         },
         80, 1},
    };
    for (const auto& step : steps) {
        step.change();
        EXPECT_EQ(postsIn(step.passes - 1), 0u) << step.name;
        EXPECT_EQ(postsIn(1), step.posts) << step.name;
    }
}

/// Looked at twice for each notification, from two passes before it, and never otherwise.
TEST_F(AlertManagerTest, NamesTheProgramsBehindALoad) {
    fakes::FakeProcesses processes;
    fakes::FakeClock clock;
    manager->makeProcessSampler = [&] { return std::make_shared<ProcessSampler>(processes, clock); };
    const auto bodyAfter = [&](int passes) {
        for (int pass = 0; pass < passes; ++pass) {
            clock.now += readings.interval;
            processes.processes[0].cpuTime += 4'640'000'000; // 58% of four processors
            processes.processes[1].cpuTime += 792'000'000;
            postsIn(1);
        }
        return center.posts.empty() ? QString() : center.posts.back().body;
    };
    processes.processes[0].memory = 999;
    EXPECT_EQ(bodyAfter(12), u""_s);
    EXPECT_EQ(processes.reads, 0);
    processes.names[0].name = "<b>";
    processes.processes[0].cpuTime += 1'000'000'000'000; // what was before the last two passes counts for nothing
    EXPECT_EQ(bodyAfter(3), u"The CPU has been at 93% or more for a while.\n<b> 58%"_s);
    EXPECT_EQ(processes.reads, 2);
    readings.cpu.total = 0.1;
    readings.memory = {.total = 1000, .app = 1000, .pressure = Pressure::critical};
    processes.processes[1].memory = 120;
    EXPECT_TRUE(bodyAfter(15).endsWith(u"pressure.\n<b> 100%, B 12%"_s));
    EXPECT_EQ(processes.reads, 4);
    processes.processes[0].memory = processes.processes[1].memory = 99; // none has much of a part in it
    EXPECT_TRUE(bodyAfter(450).endsWith(u"pressure."_s));
    EXPECT_EQ(processes.reads, 6);
    defaults.set(preference_key::alertNamesProcesses, false);
    bodyAfter(450);
    EXPECT_EQ(center.posts.size(), 4u);
    EXPECT_EQ(processes.reads, 6);
}

TEST_F(AlertManagerTest, TheTestAsksFirst) {
    QStringList outcomes;
    const auto note = [&](const QString& outcome) { outcomes << outcome; };
    for (int request = 0; request < 4; ++request)
        manager->sendTest(note);
    EXPECT_TRUE(center.posts.empty() && outcomes.empty());
    center.requests[0](true);
    center.requests[1](false);
    EXPECT_EQ(center.posts, (std::vector<Post>{{u"vantrix.test"_s, u"Vantrix"_s, u"Notifications are working."_s}}));
    EXPECT_EQ(outcomes.size(), 2);
    EXPECT_TRUE(outcomes.back().startsWith(u"Notifications are turned off"));
    center.isSigned = false;
    center.requests[2](false);
    EXPECT_TRUE(outcomes.back().startsWith(u"This copy of Vantrix is signed without"));
    manager.reset();
    center.requests[3](true); // too late
    EXPECT_EQ(center.posts.size(), 1u);
    EXPECT_EQ(outcomes.size(), 3);
}

} // namespace
} // namespace vantrix

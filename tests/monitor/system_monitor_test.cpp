#include "monitor/system_monitor.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include "fakes/fake_bluetooth.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "fakes/optional_sources.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ManualTimer : public RepeatingTimer {
  public:
    struct Schedule {
        double period;
        double tolerance;
        bool operator==(const Schedule&) const = default;
    };
    std::vector<Schedule> schedules;
    std::function<void()> fire;

    void schedule(double period, double tolerance, std::function<void()> callback) override {
        schedules.push_back({period, tolerance});
        fire = std::move(callback);
    }
};

/// Holds tasks back until the test finishes them.
class ManualRunner : public TaskRunner {
  public:
    struct Task {
        std::function<void()> work;
        std::function<void()> done;
    };
    std::vector<Task>& tasks;
    explicit ManualRunner(std::vector<Task>& list) : tasks(list) {}

    void run(std::function<void()> work, std::function<void()> done) override {
        tasks.push_back({std::move(work), std::move(done)});
    }
};

class SystemMonitorTest : public ::testing::Test {
  protected:
    SystemMonitorTest() {
        auto manualTimer = std::make_unique<ManualTimer>();
        timer = manualTimer.get();
        monitor = std::make_unique<SystemMonitor>(machine.makeSources(), defaults, std::move(manualTimer),
                                                  std::make_unique<ManualRunner>(tasks));
        QObject::connect(monitor.get(), &SystemMonitor::changed,
                         [this](Reading reading) { changes.push_back(reading); });
    }

    void pass(double seconds = 2.0) {
        machine.clock->now += seconds;
        machine.cpu->advance(25, 100);
        changes.clear();
        monitor->sample();
    }

    void finishTask() {
        const auto task = tasks.front();
        tasks.erase(tasks.begin());
        task.work();
        task.done();
    }

    long count(Reading reading) const { return std::count(changes.begin(), changes.end(), reading); }
    const Readings& readings() const { return monitor->readings(); }

    fakes::FakeMachine machine;
    fakes::FakeDefaults defaults;
    std::vector<ManualRunner::Task> tasks;
    std::vector<Reading> changes;
    ManualTimer* timer = nullptr;
    std::unique_ptr<SystemMonitor> monitor;
};

TEST_F(SystemMonitorTest, FirstPassStoresNoLoadButEverythingElse) {
    monitor->start();
    EXPECT_EQ(readings().cpu, CPUSample());
    EXPECT_THAT(readings().cpuHistory, IsEmpty());
    EXPECT_THAT(readings().memoryHistory, ElementsAre(0.5));
    EXPECT_THAT(readings().downloadHistory, ElementsAre(0.0));
    EXPECT_THAT(readings().diskReadHistory, ElementsAre(0.0));
    EXPECT_THAT(readings().diskWriteHistory, ElementsAre(0.0));
    EXPECT_EQ(readings().disk.readRate, std::nullopt);

    pass();
    EXPECT_DOUBLE_EQ(readings().cpu.total, 0.25);
    EXPECT_THAT(readings().cpuHistory, ElementsAre(0.25));
    EXPECT_EQ(readings().disk.readRate, 0.0);
}

TEST_F(SystemMonitorTest, ACoreThatGoesOfflineDoesNotShowAnIdleMachine) {
    monitor->start();
    pass();
    machine.cpu->cores->pop_back();
    pass();
    EXPECT_DOUBLE_EQ(readings().cpu.total, 0.25);
    EXPECT_THAT(readings().cpuHistory, ElementsAre(0.25));
    pass();
    EXPECT_EQ(readings().cpu.perCore.size(), 1u);
    EXPECT_THAT(readings().cpuHistory, ElementsAre(0.25, 0.25));
}

TEST_F(SystemMonitorTest, FailedReadsKeepWhatWasKnown) {
    monitor->start();
    pass();
    const Readings before = readings();
    machine.cpu->cores.reset();
    machine.memory->statistics.reset();
    machine.network->links.reset();
    machine.disks->disks.reset();
    machine.clock->now += 2;
    monitor->sample();
    EXPECT_EQ(readings().cpu, before.cpu);
    EXPECT_EQ(readings().memory, before.memory);
    EXPECT_EQ(readings().network, before.network);
    EXPECT_EQ(readings().cpuHistory, before.cpuHistory);
    EXPECT_EQ(readings().memoryHistory, before.memoryHistory);
    EXPECT_EQ(readings().downloadHistory, before.downloadHistory);
    EXPECT_EQ(readings().disk.readRate, std::nullopt);
    EXPECT_THAT(readings().diskReadHistory, ElementsAre(0.0, 0.0, 0.0)); // a missing rate counts as none
}

TEST_F(SystemMonitorTest, MemoryHistoryCopesWithOddTotals) {
    machine.memory->statistics->physicalMemory = 0;
    pass();
    machine.memory->statistics->physicalMemory = 10 * 1024;
    pass();
    EXPECT_THAT(readings().memoryHistory, ElementsAre(0.0, 1.0));
}

TEST_F(SystemMonitorTest, HistoriesKeepTheNewestSixty) {
    for (int i = 0; i < 61; ++i) {
        machine.memory->statistics->wireCount = static_cast<std::uint64_t>(i);
        pass();
    }
    ASSERT_EQ(readings().memoryHistory.size(), 60u);
    EXPECT_DOUBLE_EQ(readings().memoryHistory.front(), 0.41);
    EXPECT_DOUBLE_EQ(readings().memoryHistory.back(), 1.0);
    EXPECT_EQ(readings().cpuHistory.size(), 60u); // 61 passes, the first only set the baseline
}

TEST_F(SystemMonitorTest, RecordsAndHistoriesNotifyOnEveryPassEvenWhenEqual) {
    monitor->start();
    pass();
    pass();
    for (Reading reading : {Reading::cpu, Reading::cpuHistory, Reading::memory, Reading::memoryHistory,
                            Reading::network, Reading::downloadHistory, Reading::uploadHistory, Reading::disk,
                            Reading::diskReadHistory, Reading::diskWriteHistory, Reading::sensors})
        EXPECT_EQ(count(reading), 1) << static_cast<int>(reading);
    EXPECT_EQ(changes.size(), 11u);
}

TEST_F(SystemMonitorTest, OneListenerCallPerPassAfterEverythingIsStored) {
    int calls = 0;
    monitor->onUpdate = [&] {
        ++calls;
        EXPECT_EQ(changes.back(), Reading::sensors);
    };
    monitor->start();
    pass();
    EXPECT_EQ(calls, 2);
}

TEST_F(SystemMonitorTest, ReadingsThatNotEveryMachineHasJoinThePassInItsOrder) {
    fakes::OptionalSources extras;
    auto sources = machine.makeSources();
    extras.addTo(sources);
    SystemMonitor full(std::move(sources), defaults, std::make_unique<ManualTimer>(),
                       std::make_unique<ManualRunner>(tasks));
    std::vector<Reading> told;
    QObject::connect(&full, &SystemMonitor::changed, [&](Reading reading) { told.push_back(reading); });
    full.sample();
    EXPECT_THAT(extras.asked, ElementsAre("connection", "gpu", "sensors", "battery"));
    EXPECT_EQ(full.readings().networkInfo.kind, NetworkInfo::Kind::ethernet);
    EXPECT_EQ(full.readings().gpu, 0.4);
    EXPECT_EQ(full.readings().battery->percent, 50);

    // Absent values keep the histories as they are, an unchanged load is no news.
    extras.temperature = std::nullopt;
    extras.route = std::nullopt;
    told.clear();
    full.sample();
    EXPECT_EQ(full.readings().networkInfo, NetworkInfo());
    EXPECT_EQ(full.readings().sensors.cpu, std::nullopt);
    EXPECT_THAT(full.readings().cpuTemperatureHistory, ElementsAre(52.0));
    EXPECT_THAT(full.readings().systemPowerHistory, ElementsAre(9.5, 9.5));
    EXPECT_THAT(full.readings().gpuHistory, ElementsAre(0.4, 0.4));
    EXPECT_EQ(std::ranges::count(told, Reading::gpu), 0);
    EXPECT_EQ(std::ranges::count(told, Reading::battery), 1);
    extras.gpu.clear();
    full.sample();
    EXPECT_EQ(full.readings().gpu, std::nullopt);
    EXPECT_EQ(full.readings().gpuHistory.size(), 2u);
}

TEST_F(SystemMonitorTest, StartTakesTheStoredIntervalWithItsFloor) {
    struct Case {
        QVariant stored;
        double expected;
    };
    for (const Case& c : {Case{0.2, 0.5}, Case{5.0, 5.0}, Case{{}, 2.0}, Case{0.5, 0.5}}) {
        SCOPED_TRACE(c.expected);
        if (c.stored.isValid())
            defaults.set(preference_key::updateInterval, c.stored);
        else
            defaults.remove(preference_key::updateInterval);
        auto manualTimer = std::make_unique<ManualTimer>();
        ManualTimer* schedule = manualTimer.get();
        fakes::FakeMachine other;
        SystemMonitor fresh(other.makeSources(), defaults, std::move(manualTimer),
                            std::make_unique<ManualRunner>(tasks));
        fresh.start();
        fresh.start(); // a second start schedules nothing
        EXPECT_THAT(schedule->schedules, ElementsAre(ManualTimer::Schedule{c.expected, c.expected * 0.1}));
    }
}

TEST_F(SystemMonitorTest, AMissingUnregisteredIntervalBecomesTheFloor) {
    UserDefaults bare(std::make_unique<MemoryDefaultsStore>());
    auto manualTimer = std::make_unique<ManualTimer>();
    ManualTimer* schedule = manualTimer.get();
    SystemMonitor fresh(fakes::FakeMachine().makeSources(), bare, std::move(manualTimer),
                        std::make_unique<ManualRunner>(tasks));
    fresh.start();
    EXPECT_EQ(schedule->schedules.front().period, 0.5);
}

TEST_F(SystemMonitorTest, ChangingTheIntervalReplacesARunningTimerOnly) {
    monitor->setInterval(3.0);
    EXPECT_THAT(timer->schedules, IsEmpty());
    EXPECT_THAT(changes, ElementsAre(Reading::interval));
    monitor->start(); // back to the stored 2 s
    changes.clear();
    monitor->setInterval(2.0);
    EXPECT_THAT(changes, IsEmpty());
    monitor->setInterval(1.0);
    EXPECT_THAT(timer->schedules, ElementsAre(ManualTimer::Schedule{2.0, 0.2}, ManualTimer::Schedule{1.0, 0.1}));
    timer->fire();
    EXPECT_EQ(readings().memoryHistory.size(), 2u);
}

TEST_F(SystemMonitorTest, AFireAfterTheMonitorIsGoneDoesNothing) {
    monitor->start();
    const auto fire = timer->fire;
    monitor.reset();
    fire();
}

TEST_F(SystemMonitorTest, ScansEveryThirtySecondsAndNeverTwiceAtOnce) {
    monitor->start();
    EXPECT_EQ(tasks.size(), 1u);
    finishTask();
    pass(29.9);
    EXPECT_EQ(tasks.size(), 0u);
    pass(0.1); // exactly 30 s after the start of the last one
    EXPECT_EQ(tasks.size(), 1u);
    pass(60.0); // still running
    EXPECT_EQ(tasks.size(), 1u);
    finishTask();
    pass();
    EXPECT_EQ(tasks.size(), 1u);
    EXPECT_EQ(machine.accessories->scans, 2);
}

TEST_F(SystemMonitorTest, TheSameAccessoriesAreNoChangeButTheDiagnosticsAlwaysAre) {
    machine.accessories->result = {{{"Mouse", 64, false, "computermouse"}}, "1 device"};
    for (int scan = 0; scan < 2; ++scan) {
        pass(30.0);
        changes.clear();
        finishTask();
        EXPECT_EQ(count(Reading::accessories), scan == 0 ? 1 : 0);
        EXPECT_EQ(count(Reading::accessoriesDiagnostics), 1);
    }
    ASSERT_EQ(readings().accessories.size(), 1u);
    EXPECT_EQ(readings().accessories.front().percent, 64);
    EXPECT_EQ(readings().accessoriesDiagnostics, "1 device | ble: ");
}

/// A monitor with Bluetooth, one mouse of which the scan finds as well.
class BluetoothMonitorTest : public SystemMonitorTest {
  protected:
    BluetoothMonitorTest() {
        monitor = std::make_unique<SystemMonitor>(machine.makeSources(), defaults, std::make_unique<ManualTimer>(),
                                                  std::make_unique<ManualRunner>(tasks), bluetooth.make());
        QObject::connect(monitor.get(), &SystemMonitor::changed,
                         [this](Reading reading) { changes.push_back(reading); });
        machine.accessories->result = {{{"hid-mouse", 40, false, "", "AA:1"}, {"Pen", 30, false, ""}}, "scan"};
        bluetooth.central->peripherals = {mouse};
        mouse->value = {64};
    }

    std::shared_ptr<fakes::FakePeripheral> mouse = std::make_shared<fakes::FakePeripheral>("1", "Mouse");
    fakes::FakeBluetooth bluetooth;
};

TEST_F(BluetoothMonitorTest, LiveLevelsReplaceScannedOnesOfTheSameDevice) {
    bluetooth.classic->devices = {{"Headset", "AA:2", true, 4, {.single = 70}}};
    pass();
    finishTask();
    EXPECT_EQ(readings().accessoriesDiagnostics, "scan | ble: starting, 0 with battery service | classic: ");
    EXPECT_EQ(readings().accessories.size(), 2u);
    bluetooth.central->become(BluetoothState::poweredOn);
    QCoreApplication::sendPostedEvents(monitor.get());
    EXPECT_THAT(readings().accessories, ElementsAre(AccessoryBattery{"Mouse", 64, false, "computermouse"},
                                                    AccessoryBattery{"Pen", 30, false, ""},
                                                    AccessoryBattery{"Headset", 70, false, "headphones"}));
    EXPECT_EQ(readings().accessoriesDiagnostics,
              "scan | ble: on, 1 with battery service: Mouse 64% | classic: Headset 70%");
    changes.clear();
    mouse->tell({64});
    QCoreApplication::sendPostedEvents(monitor.get());
    EXPECT_EQ(changes, std::vector{Reading::accessoriesDiagnostics});
    mouse->tell({63});
    QCoreApplication::sendPostedEvents(monitor.get());
    EXPECT_EQ(readings().accessories[0].percent, 63);
}

TEST_F(BluetoothMonitorTest, DemoReadingsStayFixedAndAMonitorThatGoesIsNotCalled) {
    monitor->loadDemo();
    changes.clear();
    bluetooth.central->become(BluetoothState::poweredOn);
    QCoreApplication::sendPostedEvents(monitor.get());
    EXPECT_THAT(changes, IsEmpty());
    mouse->tell({5});
    monitor.reset();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(mouse->delegate, nullptr);
}

TEST_F(SystemMonitorTest, AScanThatOutlivesTheMonitorIsDiscarded) {
    monitor->start();
    monitor.reset();
    finishTask();
}

TEST_F(SystemMonitorTest, DemoReadingsStayFixedWhileAScanEnds) {
    machine.accessories->result = {{{"Mouse", 64, false, "computermouse"}}, ""};
    monitor->start();
    changes.clear();
    monitor->loadDemo();
    finishTask();
    EXPECT_EQ(readings().accessories.size(), 3u);
    EXPECT_EQ(changes.size(), static_cast<std::size_t>(readingCount) - 1); // all but the interval
}

} // namespace
} // namespace vantrix

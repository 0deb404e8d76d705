#include "monitor/system_monitor.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include "app/printed_line.h"
#include "fakes/fake_bluetooth.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "monitor/active_components.h"

namespace vantrix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct ManualTimer : RepeatingTimer {
    using Schedule = std::pair<double, double>; ///< period and tolerance
    std::vector<Schedule> schedules;
    std::function<void()> fire;

    void schedule(double period, double tolerance, std::function<void()> callback) override {
        schedules.emplace_back(period, tolerance);
        fire = std::move(callback);
    }
};

/// Holds tasks back until the test finishes them.
struct ManualRunner : TaskRunner {
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

struct SystemMonitorTest : ::testing::Test {
    SystemMonitorTest() { make(machine.makeSources()); }

    void make(SamplingSources sources, Bluetooth bluetooth = {}) {
        auto manualTimer = std::make_unique<ManualTimer>();
        timer = manualTimer.get();
        monitor = std::make_unique<SystemMonitor>(std::move(sources), defaults, std::move(manualTimer),
                                                  std::make_unique<ManualRunner>(tasks), std::move(bluetooth));
        QObject::connect(monitor.get(), &SystemMonitor::changed,
                         [this](Reading reading) { changes.push_back(reading); });
    }

    void pass(double seconds = 2.0) {
        machine.clock->now += seconds;
        if (machine.cpu->cores)
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
    EXPECT_EQ(readings().disk.readRate, std::nullopt);
    machine.disks->disks = {{{4'000'000, 2'000'000}}};
    machine.network->links->front().counters = NetworkSampler::Counters{6000, 1000};
    pass();
    EXPECT_THAT(readings().cpuHistory, ElementsAre(0.25));
    EXPECT_THAT(readings().downloadHistory, ElementsAre(0.0, 3000.0));
    EXPECT_THAT(readings().uploadHistory, ElementsAre(0.0, 500.0));
    EXPECT_THAT(readings().diskReadHistory, ElementsAre(0.0, 2e6));
    EXPECT_THAT(readings().diskWriteHistory, ElementsAre(0.0, 1e6));
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
    pass();
    EXPECT_EQ(readings().cpu, before.cpu);
    EXPECT_EQ(readings().memory, before.memory);
    EXPECT_EQ(readings().network, before.network);
    EXPECT_EQ(readings().cpuHistory, before.cpuHistory);
    EXPECT_EQ(readings().downloadHistory, before.downloadHistory);
    EXPECT_EQ(readings().disk.readRate, std::nullopt);
    EXPECT_THAT(readings().diskReadHistory, ElementsAre(0.0, 0.0, 0.0)); // a missing rate counts as none
}

TEST_F(SystemMonitorTest, FollowsTheChosenPortAndVolume) {
    monitor->start();
    EXPECT_THAT(monitor->networkPorts(), ElementsAre("en0"));
    EXPECT_THAT(monitor->volumes(), ElementsAre("/", "/home"));
    defaults.set(preference_key::diskVolume, QStringLiteral("/home"));
    EXPECT_EQ(machine.volume->mountPoint, "/home");
    EXPECT_THAT(readings().downloadHistory, ElementsAre(0.0));
    defaults.set(preference_key::networkInterface, QStringLiteral("en5"));
    EXPECT_THAT(readings().downloadHistory, IsEmpty()) << "another port's";
    pass();
    EXPECT_FALSE(readings().network.isThere);
    EXPECT_FALSE(QString::fromStdString(jsonLine(readings(), std::nullopt)).contains(QStringLiteral("network\"")));
}

TEST_F(SystemMonitorTest, TellsOfEachReadingOnceAPassAndThenOfItsEnd) {
    monitor->start();
    pass();
    std::size_t ends = 0;
    monitor->onUpdate = [&] { EXPECT_EQ(changes.size(), 11 * ++ends); };
    pass(); // equal values count as well
    for (Reading reading : {Reading::cpu, Reading::cpuHistory, Reading::memory, Reading::memoryHistory,
                            Reading::network, Reading::downloadHistory, Reading::uploadHistory, Reading::disk,
                            Reading::diskReadHistory, Reading::diskWriteHistory, Reading::sensors})
        EXPECT_EQ(count(reading), 1) << static_cast<int>(reading);
    EXPECT_EQ(ends, 1u);
}

TEST_F(SystemMonitorTest, ALoadThatIsAbsentLeavesItsHistoryAsItIs) {
    struct FakeGPU : GPUSampler::Source {
        Properties told{{"Device Utilization %", std::int64_t{40}}};
        std::optional<std::span<const Properties>> read() override { return std::span(&told, 1); }
    };
    auto sources = machine.makeSources();
    auto* const gpu = new FakeGPU;
    sources.gpu.reset(gpu);
    make(std::move(sources));
    pass();
    pass();
    EXPECT_EQ(count(Reading::gpu), 0) << "an unchanged load is no news";
    gpu->told.clear();
    pass();
    EXPECT_EQ(readings().gpu, std::nullopt);
    EXPECT_THAT(readings().gpuHistory, ElementsAre(0.4, 0.4));
    for (std::size_t i = 0; i < historyLength; ++i)
        pass();
    EXPECT_EQ(readings().memoryHistory.size(), historyLength) << "what lies further back is forgotten";
}

TEST(ActiveComponents, AreKnownUntilTheyDrewNoPowerForAWholeHistory) {
    ActiveComponents active;
    const auto gpuAfter = [&](double watts, std::size_t passes) {
        while (--passes > 0)
            active.among({.gpu = watts});
        return active.among({.gpu = watts}).gpu;
    };
    EXPECT_EQ(gpuAfter(0.0, 3), std::nullopt);
    EXPECT_EQ(gpuAfter(0.15, 1), 0.15);
    EXPECT_EQ(gpuAfter(0.05, historyLength - 1), 0.05) << "as good as nothing, but only for 59 passes";
    EXPECT_EQ(gpuAfter(0.05, 1), std::nullopt);
}

TEST_F(SystemMonitorTest, ChangingTheIntervalReplacesARunningTimerOnly) {
    defaults.set(preference_key::updateInterval, 0.2);
    monitor->setInterval(3.0);
    EXPECT_THAT(timer->schedules, IsEmpty());
    monitor->start(); // back to what is stored, but no faster than twice a second
    monitor->start(); // a second start schedules nothing
    monitor->setInterval(0.5);
    monitor->setInterval(1.0);
    EXPECT_THAT(timer->schedules, ElementsAre(ManualTimer::Schedule{0.5, 0.05}, ManualTimer::Schedule{1.0, 0.1}));
}

TEST_F(SystemMonitorTest, FiresAndScansThatOutliveTheMonitorDoNothing) {
    monitor->start();
    const auto fire = timer->fire;
    monitor.reset();
    fire();
    finishTask();
}

TEST_F(SystemMonitorTest, ScansEveryThirtySecondsAndNeverTwiceAtOnce) {
    monitor->start();
    finishTask();
    pass(29.9);
    EXPECT_EQ(tasks.size(), 0u);
    pass(0.1); // exactly 30 s after the start of the last one
    EXPECT_EQ(tasks.size(), 1u);
    pass(60.0); // still running
    EXPECT_EQ(tasks.size(), 1u);
    finishTask();
    EXPECT_EQ(machine.accessories->scans, 2);
}

TEST_F(SystemMonitorTest, AScanThatFindsNoThreadLeavesTheListAndIsTriedAgain) {
    machine.accessories->result = {{{{"Pen", 30, false, ""}}}, "scan"};
    monitor->start();
    finishTask();
    pass(30.0);
    tasks.front().done(); // without the work
    EXPECT_EQ(readings().accessories.size(), 1u);
    EXPECT_EQ(readings().accessoriesDiagnostics, "scan | ble: ");
    tasks.clear();
    pass(30.0);
    EXPECT_EQ(tasks.size(), 1u);
}

/// A monitor with Bluetooth, one mouse of which the scan finds as well.
struct BluetoothMonitorTest : SystemMonitorTest {
    BluetoothMonitorTest() {
        make(machine.makeSources(), bluetooth.make());
        machine.accessories->result = {{{{"hid-mouse", 40, false, "computermouse"}, "AA:1"}, {{"Pen", 30, false, ""}}},
                                       "scan"};
        bluetooth.central->peripherals = {mouse};
        mouse->value = {64};
    }

    void becomeOn() {
        bluetooth.central->become(BluetoothState::poweredOn);
        QCoreApplication::sendPostedEvents(monitor.get());
    }

    std::shared_ptr<fakes::FakePeripheral> mouse = std::make_shared<fakes::FakePeripheral>("1", "Mouse");
    fakes::FakeBluetooth bluetooth;
};

TEST_F(BluetoothMonitorTest, LiveLevelsReplaceScannedOnesOfTheSameDevice) {
    pass();
    finishTask();
    EXPECT_EQ(readings().accessories.size(), 2u);
    becomeOn();
    EXPECT_THAT(readings().accessories, ElementsAre(AccessoryBattery{"Mouse", 64, false, "computermouse"},
                                                    AccessoryBattery{"Pen", 30, false, ""}));
    changes.clear();
    mouse->tell({63});
    QCoreApplication::sendPostedEvents(monitor.get());
    EXPECT_EQ(readings().accessories[0].percent, 63);
    EXPECT_THAT(changes, ElementsAre(Reading::accessories, Reading::accessoriesDiagnostics));
}

TEST_F(BluetoothMonitorTest, DemoReadingsStayFixedAndAMonitorThatGoesIsNotCalled) {
    pass();
    monitor->loadDemo();
    changes.clear();
    finishTask();
    becomeOn();
    EXPECT_EQ(readings().accessories, demoReadings().accessories);
    EXPECT_THAT(changes, IsEmpty());
    mouse->tell({5});
    monitor.reset();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(mouse->delegate, nullptr);
}

TEST_F(SystemMonitorTest, LooksAtProcessesOnlyWhileSomebodyWatches) {
    pass();
    EXPECT_EQ(machine.processes->reads, 0);
    auto watch = monitor->watchPrograms();
    auto second = monitor->watchPrograms();
    EXPECT_EQ(readings().processes.largest.at(0).name, "B"); // at once
    machine.processes->processes[0].cpuTime = 4'000'000'000;
    pass();
    EXPECT_EQ(readings().processes.busiest.at(0).cpu, 0.5);
    EXPECT_EQ(count(Reading::processes), 1);
    watch.reset();
    pass();
    EXPECT_EQ(machine.processes->reads, 3);
    second.reset();
    EXPECT_EQ(readings().processes, ProcessSample());
    EXPECT_EQ(machine.processes->forgotten, 1);
    pass();
    EXPECT_EQ(machine.processes->reads, 3);
    machine.processes->onRead = [this] { machine.clock->now += 0.1; }; // so many that they are looked at more rarely
    watch = monitor->watchPrograms();                                  // and knows nothing of before
    EXPECT_TRUE(readings().processes.busiest.empty());
    pass();
    EXPECT_EQ(machine.processes->reads, 4);
    pass();
    EXPECT_EQ(machine.processes->reads, 5);
    monitor.reset();
}

} // namespace
} // namespace vantrix

// Weeks of passes in seconds: nothing may grow.

#include <algorithm>
#include <set>

#include <QImage>

#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "linux/power_supply/linux_battery_source.h"
#include "linux/program/changing_machine.h"
#include "linux/program/soak.h"
#include "linux/sensors/linux_sensor_keys.h"
#include "linux/sensors/linux_temperatures.h"
#include "linux/sensors/powercap_energy.h"
#include "menubar/menu_bar_renderer.h"
#include "monitor/system_monitor.h"

namespace vantrix {
namespace {

class NoTimer : public RepeatingTimer {
  public:
    void schedule(double, double, std::function<void()>) override {}
};

class ImmediateRunner : public TaskRunner {
  public:
    void run(std::function<void()> work, std::function<void()> done) override {
        work();
        done();
    }
};

class Soak : public testing::Test {
  protected:
    void start(SamplingSources sources) {
        auto ownClock = std::make_unique<fakes::FakeClock>();
        clock = ownClock.get();
        sources.clock = std::move(ownClock);
        monitor.emplace(std::move(sources), defaults, std::make_unique<NoTimer>(), std::make_unique<ImmediateRunner>());
    }

    /// The sensors' clock stands still within a pass: however busy this machine is, no read seems so slow that it is
    /// left to a thread, whose answers come a pass or more late.
    SamplingSources sourcesWithoutHurry(const KernelRoots& roots) const {
        SamplingSources sources = makeSamplingSources(roots);
        sources.sensorKeys = std::make_unique<LinuxSensorKeys>(roots.sys, sensorClock);
        sources.temperatures = std::make_unique<LinuxTemperatures>(roots.sys, sensorClock);
        sources.energy = std::make_unique<PowercapEnergy>(roots.sys, sensorClock);
        sources.battery = std::make_unique<LinuxBatterySource>(roots.sys, sensorClock);
        return sources;
    }

    void pass() {
        clock->now += 2.0;
        sensorClock->now = clock->now;
        monitor->sample();
    }

    /// From here on nothing may grow.
    void mark() {
        bytes = soak::allocatedBytes();
        files = openFiles();
    }

    /// What the process has open, by name, so that a leak names itself.
    static std::multiset<std::string> openFiles() {
        std::multiset<std::string> names;
        std::error_code gone; // the folder's own descriptor closes while it is listed
        for (const auto& entry : fs::directory_iterator("/proc/self/fd"))
            names.insert(fs::read_symlink(entry.path(), gone).string());
        return names;
    }

    fakes::FakeDefaults defaults;
    fakes::FakeClock* clock = nullptr;
    std::shared_ptr<fakes::FakeClock> sensorClock = std::make_shared<fakes::FakeClock>();
    std::optional<SystemMonitor> monitor;
    std::size_t bytes = 0;
    std::multiset<std::string> files;
};

TEST_F(Soak, ADayOfPassesOverTheRealKernelGrowsNothing) {
    constexpr int passes = 100'000;
    constexpr int warmUp = 2'000;
    constexpr int drawingPeriod = 50; // passes; drawing is slower than sampling by far
    start(makeSamplingSources({}));
    QImage image;
    const auto modules = moduleOrder(defaults);
    int updates = 0;
    monitor->onUpdate = [&] {
        const auto items = menuBarItems(modules, monitor->readings(), defaults);
        if (++updates % drawingPeriod == 0)
            MenuBarRenderer::render(image, items, MenuBarStyle::graph, true, MenuBarPalette::onDark(), 2.0);
    };
    for (int count = 0; count < passes; ++count) {
        if (count == warmUp)
            mark();
        pass();
    }
    EXPECT_EQ(updates, passes);
    EXPECT_EQ(openFiles(), files);
    EXPECT_LT(soak::allocatedBytes(), bytes + 128 * 1024); // the cache of shaped texts is bounded, but may still fill
}

/// That of a calm machine; its histories and rates aside, every number is known.
void expectEverything(const Readings& readings) {
    EXPECT_EQ(readings.cpu.perCore.size(), 16u);
    EXPECT_NEAR(readings.cpu.total, 1.0 / 3.0, 1e-9);
    EXPECT_GT(readings.memory.total, 0u);
    EXPECT_EQ(readings.networkInfo.kind, NetworkInfo::Kind::wifi);
    EXPECT_TRUE(readings.disk.readRate.has_value());
    EXPECT_GT(readings.gpu.value_or(0.0), 0.0);
    EXPECT_EQ(readings.sensors.cpu, 60.0);
    EXPECT_EQ(readings.sensors.all.size(), 35u);
    EXPECT_EQ(readings.sensors.fans.size(), 2u);
    EXPECT_TRUE(readings.sensors.systemPower && readings.sensors.ssd && readings.sensors.gpu &&
                readings.sensors.battery);
    const ComponentPower power = readings.sensors.components.value_or(ComponentPower());
    EXPECT_NEAR(power.cpu.value_or(0.0), 3.0, 1e-6); // 40 times 0.2 - 0.05 J in 2 s
    EXPECT_TRUE(power.gpu && power.dram);
    EXPECT_GT(readings.battery ? readings.battery->percent : 0, 0);
    EXPECT_EQ(readings.accessories.size(), 4u);
}

void expectPlausible(const Readings& readings) {
    const auto isFraction = [](double value) { return value >= 0.0 && value <= 1.0; };
    EXPECT_TRUE(isFraction(readings.cpu.total)) << readings.cpu.total;
    EXPECT_TRUE(std::ranges::all_of(readings.cpu.perCore, isFraction));
    EXPECT_TRUE(isFraction(readings.gpu.value_or(0.0))) << *readings.gpu;
    EXPECT_GE(readings.network.download, 0.0);
    const auto isTemperature = [](const TemperatureReading& r) { return r.value > 0.0 && r.value < 150.0; };
    EXPECT_TRUE(std::ranges::all_of(readings.sensors.all, isTemperature));
    const ComponentPower power = readings.sensors.components.value_or(ComponentPower());
    EXPECT_LT(power.cpu.value_or(0.0), 1000.0); // two channels of less than 500 W
    const int percent = readings.battery ? readings.battery->percent : 0;
    EXPECT_TRUE(percent >= 0 && percent <= 100) << percent;
}

TEST_F(Soak, EveryReadingOfAChangingMachineReturnsAndNothingGrows) {
    constexpr int rounds = 100;
    constexpr int wildPasses = 390;
    constexpr int calmPasses = 605; // devices are looked for every 600 passes, whatever happens
    constexpr int lastPasses = 5;   // after them, all that differs from pass to pass is known
    ChangingMachine machine;
    start(sourcesWithoutHurry(machine.roots()));
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        for (int i = 0; i < wildPasses; ++i) {
            machine.change();
            pass();
            expectPlausible(monitor->readings());
        }
        machine.restore();
        for (int i = 0; i < calmPasses; ++i)
            pass();
        for (int i = 0; i < lastPasses; ++i) {
            machine.advance();
            pass();
        }
        expectEverything(monitor->readings());
        if (round == 9)
            mark();
    }
    EXPECT_LE(openFiles().size(), files.size());
    EXPECT_LT(soak::allocatedBytes(), bytes + 64 * 1024);
}

} // namespace
} // namespace vantrix

// A laptop that has everything, on which everything comes, goes, breaks and wraps, for a hundred thousand passes.

#include <algorithm>
#include <cstdint>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "fakes/fake_defaults.h"
#include "fakes/fake_sources.h"
#include "fakes/fixture_machine.h"
#include "linux/program/soak.h"
#include "monitor/system_monitor.h"

namespace vantrix {
namespace {

namespace fs = std::filesystem;

constexpr int rounds = 100;
constexpr int wildPasses = 390;
constexpr int calmPasses = 605; // devices are looked for every 600 passes, whatever happens
constexpr int lastPasses = 5;   // after them, all that differs from pass to pass is known
// From here on both the ticks of a processor and the energy of a package wrap around within the last passes.
constexpr std::uint64_t calmCounter = 1'310'600;
constexpr std::uint64_t wrappingTicks = (std::uint64_t{1} << 32) - 1'310'700;

class ChangingMachine {
  public:
    ChangingMachine() {
        for (const std::string& name : laptop_.files())
            files_.push_back({laptop_.path(name), laptop_.read(name)});
        for (const char* folder : {"hwmon", "power_supply", "drm", "powercap", "net"}) {
            for (const auto& device : fs::directory_iterator(laptop_.path("sys/class/") + folder))
                devices_.push_back({device.path()});
        }
    }

    KernelRoots roots() const { return laptop_.roots(); }

    /// Time goes on, and something happens, or several things.
    void change() {
        for (std::size_t count = below(4); count > 0; --count)
            changeOnce();
        if (below(8) == 0)
            counter_ = below(2) == 0 ? 0 : random_() >> below(40); // counters start over, or leap
        advance();
    }

    /// Every device and file as at first, but for the counters, which go on.
    void restore() {
        for (Device& device : devices_)
            bringBack(device);
        for (const File& file : files_)
            write(file.path, file.content);
        counter_ = calmCounter;
    }

    void advance() {
        counter_ += 40;
        std::ostringstream cores;
        for (int core = -1; core < 16; ++core)
            cores << "cpu" << (core < 0 ? " " : std::to_string(core)) << ' ' << counter_ + wrappingTicks << " 0 "
                  << counter_ / 2 << " 0 " << counter_ * 3 << " 0 0 0 0 0\n";
        write(laptop_.path("proc/stat"), cores.str());
        writeEnergy("intel-rapl:0", counter_ * 200'000);
        writeEnergy("intel-rapl:0:1", counter_ * 50'000); // of the package, graphics
        writeEnergy("intel-rapl:0:2", counter_ * 30'000);
    }

  private:
    struct File {
        fs::path path;
        std::string content;
    };
    struct Device {
        fs::path path;
        bool isGone = false;
    };

    std::size_t below(std::size_t limit) { return random_() % limit; }

    /// In place, as the kernel's files change; nothing where the device is gone.
    static void write(const fs::path& path, std::string_view content) {
        if (fs::exists(path))
            std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
    }

    void writeEnergy(const char* zone, std::uint64_t microjoules) const {
        constexpr std::uint64_t range = 262'143'328'850;
        write(laptop_.path("sys/class/powercap/") + zone + "/energy_uj", std::to_string(microjoules % range) + '\n');
    }

    void changeOnce() {
        Device& device = devices_[below(devices_.size())];
        const File& file = files_[below(files_.size())];
        switch (below(4)) {
        case 0:
            if (!device.isGone)
                fs::rename(device.path, away(device));
            device.isGone = true;
            break;
        case 1:
            bringBack(device);
            break;
        case 2:
            write(file.path, std::string_view(file.content).substr(0, below(file.content.size() + 1)));
            break;
        default:
            write(file.path, file.content);
        }
    }

    fs::path away(const Device& device) const {
        return laptop_.path(device.path.parent_path().filename().string() + ' ' + device.path.filename().string());
    }

    void bringBack(Device& device) {
        if (device.isGone)
            fs::rename(away(device), device.path);
        device.isGone = false;
    }

    fakes::FixtureMachine laptop_{"laptop-with-everything"};
    std::mt19937_64 random_{20};
    std::vector<File> files_;
    std::vector<Device> devices_;
    std::uint64_t counter_ = calmCounter;
};

/// That of a calm machine; its histories and rates aside, every number is known.
void expectEverything(const Readings& readings, int round) {
    SCOPED_TRACE(round);
    EXPECT_EQ(readings.cpu.perCore.size(), 16u);
    EXPECT_NEAR(readings.cpu.total, 1.0 / 3.0, 1e-9);
    EXPECT_GT(readings.memory.total, 0u);
    EXPECT_EQ(readings.networkInfo.kind, NetworkInfo::Kind::wifi);
    EXPECT_TRUE(readings.disk.readRate.has_value());
    EXPECT_GT(readings.gpu.value_or(0.0), 0.0);
    EXPECT_DOUBLE_EQ(readings.sensors.cpu.value_or(0.0), (60.0 + 8 * 52.0 + 8 * 48.0) / 17);
    EXPECT_EQ(readings.sensors.all.size(), 35u);
    EXPECT_EQ(readings.sensors.fans.size(), 2u);
    EXPECT_TRUE(readings.sensors.systemPower.has_value());
    EXPECT_TRUE(readings.sensors.ssd && readings.sensors.gpu && readings.sensors.battery);
    const ComponentPower power = readings.sensors.components.value_or(ComponentPower());
    EXPECT_NEAR(power.cpu.value_or(0.0), 3.0, 1e-6); // 40 times 0.2 - 0.05 J in 2 s
    EXPECT_TRUE(power.gpu && power.dram);
    ASSERT_TRUE(readings.battery.has_value());
    EXPECT_GT(readings.battery->percent, 0);
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

TEST(ChangingMachine, EveryReadingReturnsAndNothingGrows) {
    ChangingMachine machine;
    fakes::FakeDefaults defaults;
    auto sources = makeSamplingSources(machine.roots());
    auto fakeClock = std::make_unique<fakes::FakeClock>();
    fakes::FakeClock& clock = *fakeClock;
    sources.clock = std::move(fakeClock);
    SystemMonitor monitor(std::move(sources), defaults, std::make_unique<soak::NoTimer>(),
                          std::make_unique<soak::ImmediateRunner>());
    const auto pass = [&] {
        clock.now += 2.0;
        monitor.sample();
    };
    std::size_t bytes = 0;
    std::size_t files = 0;
    for (int round = 0; round < rounds && !::testing::Test::HasFailure(); ++round) {
        for (int i = 0; i < wildPasses; ++i) {
            machine.change();
            pass();
            expectPlausible(monitor.readings());
        }
        machine.restore();
        for (int i = 0; i < calmPasses; ++i)
            pass();
        for (int i = 0; i < lastPasses; ++i) {
            machine.advance();
            pass();
        }
        expectEverything(monitor.readings(), round);
        if (round == 9) {
            bytes = soak::allocatedBytes();
            files = soak::openFiles().size();
        }
    }
    EXPECT_LE(soak::openFiles().size(), files);
    EXPECT_LT(soak::allocatedBytes(), bytes + 64 * 1024);
}

} // namespace
} // namespace vantrix

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <new>
#include <thread>

#include <gtest/gtest.h>

#include "fakes/fixture_machine.h"
#include "linux/all_samplers.h"
#include "linux/graphics/linux_gpu_source.h"
#include "linux/network/linux_network_info.h"
#include "linux/sensors/linux_sensor_keys.h"
#include "linux/sensors/linux_temperatures.h"
#include "samplers/fake_clock.h"

namespace {

// Counted on the test's own thread alone, and only while asked for.
thread_local bool isCounting = false;
thread_local int allocations = 0;

void* allocate(std::size_t size) {
    if (isCounting)
        ++allocations;
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
// The library's own of these would be freed by the wrong counterpart.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace vantrix {
namespace {

template<typename Work>
int allocationsDuring(Work work) {
    allocations = 0;
    isCounting = true;
    work();
    isCounting = false;
    return allocations;
}

int allocationsAfterSecondPass(const KernelRoots& roots) {
    AllSamplers samplers(roots);
    const auto passes = [&](int count) {
        for (; count > 0; --count) {
            samplers.networkInfo.sample(true, 3);
            samplers.cpu.sample();
            samplers.memory.sample();
            samplers.network.sample();
            samplers.disk.sample();
            samplers.gpu.sample();
            samplers.sensors.sample();
            samplers.battery.sample();
        }
    };
    EXPECT_GT(allocationsDuring([&] { passes(2); }), 0); // else nothing is counted at all
    // On a busy machine a sensor may seem slow, which gets it a thread, once. What allocates on every pass shows
    // anyway.
    int least = allocationsDuring([&] { passes(100); });
    for (int i = 0; i < 40 && least > 0; ++i)
        least = std::min(least, allocationsDuring([&] { passes(100); }));
    return least;
}

TEST(SamplingPass, AllocatesNothingAfterTheSecond) {
    EXPECT_EQ(allocationsAfterSecondPass({}), 0);
    for (const char* machine :
         {"laptop-with-everything", "many-interfaces", "zram-in-use", "no-psi", "two-packs-and-accessories",
          "gpu-asleep-beside-another", "desktop-resting-disk-sleeping-gpu", "board-with-thermal-zones-alone"})
        EXPECT_EQ(allocationsAfterSecondPass(fakes::FixtureMachine(machine).roots()), 0) << machine;
}

struct BusyNvidia : NvidiaLibrary {
    bool start() override { return true; }
    void stop() override {}
    std::optional<Device> find(const std::string&) override { return this; }
    int utilization(Device, unsigned& percent) override {
        percent = 50;
        return success;
    }
    std::optional<double> temperature(Device) override { return 60.0; }
};

struct AtOnce : Background {
    bool run(const std::shared_ptr<Job>& job) override {
        job->perform();
        return true;
    }
};

/// Every pass meets a line of the grid, so that all power settings are read.
TEST(SamplingPass, AllocatesNothingForGPUsThatMayFallAsleep) {
    const TemporaryFolder folder;
    for (const std::string place :
         {"class/drm/card1/device/", "class/hwmon/hwmon0/device/", "bus/pci/drivers/nvidia/0000:01:00.0/"}) {
        folder.writeLines(place, {{"power/runtime_status", "active"},
                                  {"power/control", "auto"},
                                  {"power/autosuspend_delay_ms", "5000"},
                                  {"boot_vga", "1"},
                                  {"drm/card1/card1-a-connector-of-a-long-name/dpms", "Off"}});
    }
    folder.write("class/drm/card1/device/gpu_busy_percent", "0\n");
    folder.writeLines("class/hwmon/hwmon0", {{"name", "amdgpu"}, {"temp1_input", "50000"}, {"fan1_input", "900"}});
    const auto clock = std::make_shared<FakeClock>();
    auto ownClock = std::make_unique<FakeClock>();
    FakeClock& ofGPUs = *ownClock;
    LinuxGPUSource gpus(folder.path(""), std::move(ownClock), std::make_unique<BusyNvidia>(), 5,
                        std::make_shared<AtOnce>());
    LinuxTemperatures temperatures(folder.path(""), clock, gpus.nvidiaTemperature());
    LinuxSensorKeys keys(folder.path(""), clock);
    std::vector<HIDTemperatureSampler::Service> services;
    const auto passes = [&] {
        for (int i = 0; i < 20; ++i) {
            clock->now = ofGPUs.now += 12.0;
            gpus.read();
            temperatures.read(services);
            keys.value("FNum");
            keys.value("F0Ac");
        }
    };
    ofGPUs.now = 120.0;
    passes();
    EXPECT_EQ(allocationsDuring(passes), 0);
    EXPECT_EQ(services.at(0).temperature, 50.0);
    EXPECT_EQ(services.back().product, "GPU NVIDIA");
}

struct RouteOverWiFi : DefaultRoutes {
    DefaultRoute route{3, "wlan0", "192.168.100.200"};

    bool refresh() override { return true; }
    std::uint64_t generation() const override { return 1; }
    const DefaultRoute* primary(Family) const override { return &route; }
};

struct LongNamed : WiFiReader {
    const char* problem;
    std::shared_ptr<std::atomic<int>> reads; // the thread may outlive its source

    LongNamed(const char* text, std::shared_ptr<std::atomic<int>> count) : problem(text), reads(std::move(count)) {}
    void read(int, WiFiReading& reading) override {
        reading.signal = -52;
        reading.ssid = "a name of all the 32 letters....";
        reading.problem = problem;
        ++*reads;
    }
};

TEST(SamplingPass, AllocatesNothingOnWiFi) {
    const TemporaryFolder folder;
    folder.write("class/net/wlan0/phy80211/index", "0\n");
    for (const char* problem : {"", "a problem too long for a short string"}) {
        const auto reads = std::make_shared<std::atomic<int>>(0);
        LinuxNetworkInfo source(folder.path(""), std::make_unique<RouteOverWiFi>(), nullptr,
                                std::make_unique<LongNamed>(problem, reads));
        NetworkInfoSampler sampler(source);
        int counted = 0;
        for (int pass = 0; pass < 100; ++pass) {
            const int before = *reads;
            const int fresh = allocationsDuring([&] { sampler.sample(true, 3); });
            counted += pass < 5 ? 0 : fresh;
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
            while (*reads == before && std::chrono::steady_clock::now() < deadline)
                std::this_thread::yield(); // passes are far apart
        }
        EXPECT_EQ(counted, 0) << problem;
        const NetworkInfo& info = sampler.sample(true, 3);
        EXPECT_EQ(info.ssid.has_value(), *problem == '\0');
        EXPECT_EQ(info.debug.has_value(), *problem != 0);
    }
}

} // namespace
} // namespace vantrix

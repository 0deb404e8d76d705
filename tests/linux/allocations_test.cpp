#include <algorithm>
#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

#include "fakes/fixture_machine.h"
#include "linux/graphics/linux_gpu_source.h"
#include "linux/sensors/linux_sensor_keys.h"
#include "linux/sensors/linux_temperatures.h"
#include "monitor/samplers.h"
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
// The library's own of this would be freed by the wrong counterpart; its operators for arrays call those here.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
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

/// On a busy machine a device may seem to hang, which gets it a thread. What allocates on every pass shows anyway.
template<typename Passes>
int leastAllocationsDuring(const Passes& passes) {
    int least = allocationsDuring(passes);
    for (int i = 0; i < 40 && least > 0; ++i)
        least = std::min(least, allocationsDuring(passes));
    return least;
}

int allocationsAfterSecondPass(const KernelRoots& roots) {
    Samplers samplers(makeSamplingSources(roots));
    const auto passes = [&](int count) {
        for (; count > 0; --count) {
            const PassScope pass = samplers.beginPass();
            samplers.networkInfo->sample(true, 3);
            samplers.cpu.sample();
            samplers.memory.sample();
            samplers.network.sample();
            samplers.disk.sample();
            samplers.gpu->sample();
            samplers.sensors.sample();
            samplers.battery->sample();
            if (roots != KernelRoots()) // where new programs come and go
                samplers.processes->sample();
        }
    };
    EXPECT_GT(allocationsDuring([&] { passes(2); }), 0); // else nothing is counted at all
    return leastAllocationsDuring([&] { passes(100); });
}

TEST(SamplingPass, AllocatesNothingAfterTheSecond) {
    EXPECT_EQ(allocationsAfterSecondPass({}), 0);
    for (const char* machine :
         {"laptop-with-everything", "many-interfaces", "zram-in-use", "zfs-host", "no-psi", "two-packs-and-accessories",
          "gpu-asleep-beside-another", "desktop-resting-disk-sleeping-gpu", "board-with-thermal-zones-alone",
          "programs-at-work"})
        EXPECT_EQ(allocationsAfterSecondPass(fakes::FixtureMachine(machine).roots()), 0) << machine;
}

/// Every pass meets a line of the grid, so that all power settings are read.
TEST(SamplingPass, AllocatesNothingForGPUsThatMayFallAsleep) {
    const fakes::FixtureMachine machine("idle-card");
    machine.writeLines("sys/class/drm/card1/device",
                       {{"boot_vga", "1"}, {"drm/card1/card1-a-connector-of-a-long-name/dpms", "Off"}});
    const auto clock = std::make_shared<FakeClock>();
    auto ownClock = std::make_unique<FakeClock>();
    FakeClock& ofGPUs = *ownClock;
    LinuxGPUSource gpus(machine.roots().sys, std::move(ownClock), nullptr);
    LinuxTemperatures temperatures(machine.roots().sys, clock);
    LinuxSensorKeys keys(machine.roots().sys, clock);
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
    EXPECT_EQ(leastAllocationsDuring(passes), 0);
    for (int i = 0; i < 40 && !services.at(0).temperature; ++i)
        passes(); // on a busy machine
    EXPECT_EQ(services.at(0).temperature, 40.0);
}

} // namespace
} // namespace vantrix

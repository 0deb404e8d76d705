#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

#include "platform/sampling_sources.h"

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
    const auto sources = makeSamplingSources(roots);
    CPUSampler cpu(*sources.cpu);
    MemorySampler memory(*sources.memory);
    NetworkSampler network(*sources.network, *sources.clock);
    DiskSampler disk(*sources.disks, *sources.volume, *sources.clock);
    const auto pass = [&] {
        cpu.sample();
        memory.sample();
        network.sample();
        disk.sample();
    };
    EXPECT_GT(allocationsDuring(pass), 0); // else nothing is counted at all
    pass();
    return allocationsDuring([&] {
        for (int i = 0; i < 100; ++i)
            pass();
    });
}

TEST(SamplingPass, AllocatesNothingAfterTheSecond) {
    EXPECT_EQ(allocationsAfterSecondPass({}), 0);
    for (const char* machine : {"many-interfaces", "zram-in-use", "laptop-hybrid-cores", "no-psi"}) {
        const std::string folder = std::string(FIXTURES) + '/' + machine;
        EXPECT_EQ(allocationsAfterSecondPass({folder + "/proc", folder + "/sys"}), 0) << machine;
    }
}

} // namespace
} // namespace vantrix

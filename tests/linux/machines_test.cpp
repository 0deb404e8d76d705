#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"
#include "samplers/processor_description.h"

namespace vantrix {
namespace {

/// What a recorded machine must read as: a folder of tests/fixtures, named after what is odd about it.
struct Machine {
    const char* name;
    std::size_t cores;
    const char* description;
    const char* brand;
    MemorySample memory; // KiB
    std::vector<std::string> activePorts;
    std::uint64_t received; // by the active ports
    std::uint64_t sectorsRead;
    std::uint64_t sectorsWritten;
};

using Pressure = MemorySample::Pressure;

constexpr const char* someBrand = "Intel(R) Core(TM) i5 CPU @ 2.40GHz";
constexpr MemorySample someMemory{16'000'000, 5'000'000, 300'000, 0, 0, Pressure::normal};

MemorySample withMemory(std::uint64_t wired, std::uint64_t compressed, std::uint64_t swapUsed, Pressure pressure) {
    return {16'000'000, 5'000'000, wired, compressed, swapUsed, pressure};
}

const Machine machines[] = {
    // 60,000 KiB of the unevictable memory are anonymous and counted as that.
    {"laptop-hybrid-cores",
     4,
     "4 cores (2P + 2E)",
     someBrand,
     {16'000'000, 5'060'000, 360'000, 0, 0, Pressure::normal},
     {"enwlp0s20f3"},
     7000,
     1000,
     2000},
    {"arm-big-little", 6, "6 cores (2P + 4E)", "Small Board 5", someMemory, {"end0"}, 10, 5, 6},
    {"offlined-core", 3, "3 cores", someBrand, someMemory, {"eneth0"}, 1000, 100, 200},
    {"no-swap", 1, "1 cores", someBrand, someMemory, {"eneth0"}, 1000, 100, 200},
    {"zram-in-use",
     1,
     "1 cores",
     someBrand,
     withMemory(300'000, 513'000, 2'000'000, Pressure::normal),
     {"eneth0"},
     1000,
     100,
     200},
    {"no-psi", 1, "1 cores", someBrand, withMemory(300'000, 0, 0, Pressure::warning), {"eneth0"}, 1000, 100, 200},
    {"starved", 1, "1 cores", someBrand, withMemory(300'000, 0, 0, Pressure::critical), {"eneth0"}, 1000, 100, 200},
    {"old-kernel", 1, "1 cores", someBrand, withMemory(330'000, 0, 0, Pressure::normal), {"eneth0"}, 1000, 100, 200},
    {"disks-behind-device-mapper", 1, "1 cores", someBrand, someMemory, {"eneth0"}, 1000, 111, 222},
    {"disk-over-several-paths", 1, "1 cores", someBrand, someMemory, {"eneth0"}, 1000, 300, 400},
    {"container", 1, "1 cores", someBrand, someMemory, {"eno1"}, 100, 100, 200},
    {"many-interfaces", 1, "1 cores", someBrand, someMemory, {"eneth0"}, 31, 100, 200},
};

class MachinesTest : public ::testing::TestWithParam<Machine> {
  protected:
    const fakes::FixtureMachine machine{GetParam().name};
    const SamplingSources sources = makeSamplingSources(machine.roots());
};

TEST_P(MachinesTest, Processor) {
    std::vector<CPUSampler::Ticks> cores;
    ASSERT_TRUE(sources.cpu->read(cores));
    EXPECT_EQ(cores.size(), GetParam().cores);
    EXPECT_EQ(cores[0], (CPUSampler::Ticks{1000, 518, 90100, 10}));
    const ProcessorDescription description(*sources.information);
    EXPECT_EQ(description.cores(), GetParam().description);
    EXPECT_EQ(description.brand(), GetParam().brand);
}

TEST_P(MachinesTest, Memory) {
    const MemorySample& expected = GetParam().memory;
    EXPECT_EQ(MemorySampler(*sources.memory).sample(),
              (MemorySample{expected.total * 1024, expected.app * 1024, expected.wired * 1024,
                            expected.compressed * 1024, expected.swapUsed * 1024, expected.pressure}));
}

TEST_P(MachinesTest, Network) {
    std::vector<NetworkSampler::Link> links;
    ASSERT_TRUE(sources.network->read(links));
    std::vector<std::string> active;
    std::uint64_t received = 0;
    for (const auto& link : links) {
        if (!link.name.starts_with("en") || (link.flags & 0x41) != 0x41)
            continue;
        active.push_back(link.name);
        received += link.counters->received;
    }
    EXPECT_EQ(active, GetParam().activePorts);
    EXPECT_EQ(received, GetParam().received);
}

TEST_P(MachinesTest, Disks) {
    std::vector<DiskSampler::Counters> disks;
    ASSERT_TRUE(sources.disks->read(disks));
    std::uint64_t read = 0;
    std::uint64_t written = 0;
    for (const auto& disk : disks) {
        read += disk.bytesRead.value();
        written += disk.bytesWritten.value();
    }
    EXPECT_EQ(read, GetParam().sectorsRead * 512);
    EXPECT_EQ(written, GetParam().sectorsWritten * 512);
}

std::string testName(const ::testing::TestParamInfo<Machine>& info) {
    std::string name = info.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Recorded, MachinesTest, ::testing::ValuesIn(machines), testName);

TEST(Machines, TwoPacksAreOneBattery) {
    const fakes::FixtureMachine machine("two-packs-and-accessories");
    const auto sources = makeSamplingSources(machine.roots());
    // 20 Wh of 20, and 2 Ah of 5 at 11.1 V; 11.4 W flow.
    EXPECT_EQ(BatterySampler(*sources.battery).sample(), (BatterySample{56, false, false, 222, 312, 83, 31.2, 11.4}));
}

TEST(Machines, SleepingGPUCountsAsIdle) {
    const fakes::FixtureMachine machine("gpu-asleep-beside-another");
    const auto sources = makeSamplingSources(machine.roots());
    GPUSampler gpu(*sources.gpu);
    EXPECT_EQ(gpu.sample(), 0.35);
}

TEST(ThisMachine, AnswersEveryReading) {
    const auto sources = makeSamplingSources({});
    CPUSampler cpu(*sources.cpu);
    NetworkSampler network(*sources.network, *sources.clock);
    DiskSampler disk(*sources.disks, *sources.volume, *sources.clock);
    ASSERT_NE(cpu.sample(), nullptr);
    EXPECT_GE(cpu.sample()->perCore.size(), 1u);
    EXPECT_TRUE(network.sample().has_value());
    EXPECT_GT(disk.sample().total, 0u);
    const auto memory = MemorySampler(*sources.memory).sample();
    ASSERT_TRUE(memory);
    EXPECT_GT(usedFraction(*memory), 0.0);
    EXPECT_GE(sources.information->integer("hw.logicalcpu").value_or(0), 1);
    EXPECT_GE(sources.information->processorCount(), 1);
    EXPECT_EQ(sources.information->integer("hw.unheard"), std::nullopt);
    EXPECT_EQ(sources.information->text("hw.logicalcpu"), std::nullopt);
    EXPECT_TRUE(sources.accessories->scan().diagnostics.starts_with("power_supply: "));
    GPUSampler(*sources.gpu).sample(); // a machine for tests need not have these
    BatterySampler(*sources.battery).sample();
    const double begin = sources.clock->uptime();
    EXPECT_GE(sources.clock->uptime(), begin);
}

TEST(MissingMachine, IsAbsentThroughout) {
    const auto sources = makeSamplingSources({"/nonexistent/proc", "/nonexistent/sys"});
    std::vector<CPUSampler::Ticks> cores;
    std::vector<NetworkSampler::Link> links;
    std::vector<DiskSampler::Counters> disks;
    EXPECT_FALSE(sources.cpu->read(cores));
    EXPECT_FALSE(sources.memory->read());
    EXPECT_FALSE(sources.network->read(links));
    EXPECT_FALSE(sources.disks->read(disks));
    EXPECT_TRUE(sources.volume->read()); // "/" is always there
    EXPECT_FALSE(GPUSampler(*sources.gpu).sample());
    EXPECT_FALSE(BatterySampler(*sources.battery).sample());
    EXPECT_TRUE(sources.accessories->scan().accessories.empty());
    EXPECT_EQ(sources.information->integer("hw.logicalcpu"), std::nullopt);
    EXPECT_EQ(sources.information->text("machdep.cpu.brand_string"), std::nullopt);
}

} // namespace
} // namespace vantrix

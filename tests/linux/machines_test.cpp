#include <gmock/gmock.h>

#include "fakes/fixture_machine.h"
#include "linux/read_in_place.h"
#include "monitor/samplers.h"
#include "samplers/processor_description.h"

namespace vantrix {
namespace {

using Pressure = MemorySample::Pressure;

/// What a recorded machine must read as; where nothing is said, as the ordinary desktop does.
struct Machine {
    const char* name;
    std::size_t cores = 1;
    std::string description = "1 cores";
    std::string brand = "Intel(R) Core(TM) i5 CPU @ 2.40GHz";
    std::uint64_t memory = 16'000'000; // KiB
    std::uint64_t app = 5'000'000;
    std::uint64_t wired = 300'000;
    std::uint64_t compressed = 0;
    std::uint64_t swapUsed = 0;
    Pressure pressure = Pressure::normal;
    std::string activePort = "eneth0";
    std::uint64_t received = 1000; // by the active port
    std::uint64_t sectorsRead = 100;
    std::uint64_t sectorsWritten = 200;
};

const Machine machines[] = {
    {.name = "ordinary-desktop"},
    // 60,000 KiB of the unevictable memory are anonymous and counted as that.
    {.name = "laptop-hybrid-cores",
     .cores = 4,
     .description = "4 cores (2P + 2E)",
     .app = 5'060'000,
     .wired = 360'000,
     .activePort = "enwlp0s20f3",
     .received = 7000,
     .sectorsRead = 1000,
     .sectorsWritten = 2000},
    {.name = "arm-big-little",
     .cores = 6,
     .description = "6 cores (2P + 4E)",
     .brand = "Small Board 5",
     .activePort = "end0",
     .received = 10,
     .sectorsRead = 5,
     .sectorsWritten = 6},
    {.name = "offlined-core", .cores = 3, .description = "3 cores"},
    {.name = "no-swap"},
    {.name = "zram-in-use", .compressed = 513'000, .swapUsed = 2'000'000},
    {.name = "no-psi", .pressure = Pressure::warning},
    {.name = "starved", .pressure = Pressure::critical},
    {.name = "old-kernel", .wired = 350'000},
    // 134,801 KiB of graphics memory that no counter tells; 12,000 were read back from swap before any program asked.
    {.name = "laptop-graphics-memory", .memory = 3'921'674, .app = 2'852'000, .wired = 409'071, .swapUsed = 400'000},
    // ZFS gives back all of its cache but 1,000,000 KiB.
    {.name = "zfs-host", .app = 4'000'000, .wired = 1'480'000},
    {.name = "disks-behind-device-mapper", .sectorsRead = 111, .sectorsWritten = 222},
    {.name = "disk-over-several-paths", .sectorsRead = 300, .sectorsWritten = 400},
    {.name = "container", .activePort = "eno1", .received = 100},
    {.name = "many-interfaces", .received = 31},
    {.name = "virtual-machine-with-accelerated-port", .received = 9000},
    {.name = "router-with-switch", .received = 5400},
};

void expectProcessor(const SamplingSources& sources, const Machine& expected) {
    std::vector<CPUSampler::Ticks> cores;
    ASSERT_TRUE(sources.cpu->read(cores));
    EXPECT_EQ(cores.size(), expected.cores);
    EXPECT_EQ(cores[0], (CPUSampler::Ticks{1000, 518, 90100, 10}));
    const ProcessorDescription description(*sources.information);
    EXPECT_EQ(description.cores(), expected.description);
    EXPECT_EQ(description.brand(), expected.brand);
}

void expectMemory(const SamplingSources& sources, const Machine& expected) {
    EXPECT_EQ(MemorySampler(*sources.memory).sample(),
              (MemorySample{expected.memory * 1024, expected.app * 1024, expected.wired * 1024,
                            expected.compressed * 1024, expected.swapUsed * 1024, expected.pressure}));
}

void expectNetwork(const SamplingSources& sources, const Machine& expected) {
    std::vector<NetworkSampler::Link> links;
    ASSERT_TRUE(sources.network->read(links));
    std::vector<std::pair<std::string, std::uint64_t>> active;
    for (const auto& link : links) {
        if (link.name.starts_with("en") && (link.flags & 0x41) == 0x41)
            active.emplace_back(link.name, link.counters->received);
    }
    EXPECT_THAT(active, ::testing::ElementsAre(std::pair(expected.activePort, expected.received)));
}

void expectDisks(const SamplingSources& sources, const Machine& expected) {
    std::vector<DiskSampler::Counters> disks;
    ASSERT_TRUE(sources.disks->read(disks));
    std::uint64_t read = 0;
    std::uint64_t written = 0;
    for (const auto& disk : disks) {
        read += disk.bytesRead.value();
        written += disk.bytesWritten.value();
    }
    EXPECT_EQ(read, expected.sectorsRead * 512);
    EXPECT_EQ(written, expected.sectorsWritten * 512);
}

TEST(Machines, ReadAsTheyAre) {
    const ReadInPlace inPlace;
    for (const Machine& expected : machines) {
        SCOPED_TRACE(expected.name);
        const fakes::FixtureMachine machine(expected.name);
        const auto sources = makeSamplingSources(machine.roots());
        expectProcessor(sources, expected);
        expectMemory(sources, expected);
        expectNetwork(sources, expected);
        expectDisks(sources, expected);
    }
}

TEST(Machines, TellOfTheirBatteriesWhateverTheDriver) {
    const ReadInPlace inPlace;
    const std::pair<const char*, BatterySample> rows[] = {
        // 20 Wh of 20, and 2 Ah of 5 at 11.1 V; 11.4 W flow.
        {"two-packs-and-accessories", {56, false, false, 222, 312, 83, 31.2, 11.4}},
        // 12 Wh of 24 at 12 V, and 1 Ah of 3 at a voltage that its driver keeps to itself; 1 A flows.
        {"laptop-with-two-packs", {40, true, true, 180, 87, 83, {}, {}}},
        {"batteries/energy-discharging", {49, false, false, 150, 211, 90, 31.5, 10.0}},
        {"batteries/charge-and-negative-current", {50, true, true, 110, {}, 80, {}, 12.0}},
        {"batteries/charge-without-a-voltage", {50, false, false, 120, {}, 80}},
        {"batteries/percentage-and-mean-time", {40, true, true, 30, {}, 90}},
        {"batteries/both-times", {9, {}, {}, 10}},
        {"batteries/energy-beside-charge", {50, false, false, {}, {}, {}, {}, 10.0}},
        {"batteries/capacity-alone", {77}},
        {"batteries/held-at-a-limit", {80, false, true}},
        {"batteries/full-without-mains", {100, false, true}},
        {"batteries/full-unplugged", {100}},
        {"batteries/charging-over-a-silent-port", {5, true, true}},
        {"batteries/no-power-yet", {50}},
        {"batteries/empty-bay", {60, false, true}},
        {"batteries/nonsense", {60, false, true}},
    };
    for (const auto& [name, sample] : rows) {
        const fakes::FixtureMachine machine(name);
        EXPECT_EQ(Samplers(makeSamplingSources(machine.roots())).battery->sample(), sample) << name;
    }
}

TEST(MissingMachine, IsAbsentThroughout) {
    Samplers samplers(makeSamplingSources({"/nonexistent/proc", "/nonexistent/sys"}));
    EXPECT_EQ(samplers.cpu.sample(), nullptr);
    EXPECT_FALSE(samplers.memory.sample());
    EXPECT_FALSE(samplers.network.sample());
    EXPECT_TRUE(samplers.sources.volume->read()); // "/" is always there
    std::vector<DiskSampler::Counters> disks;
    EXPECT_FALSE(samplers.sources.disks->read(disks));
    EXPECT_FALSE(samplers.gpu->sample());
    EXPECT_FALSE(samplers.battery->sample());
    EXPECT_TRUE(samplers.sensors.sample().all.empty());
    EXPECT_TRUE(samplers.sources.accessories->scan().accessories.empty());
    EXPECT_EQ(samplers.sources.information->integer("hw.logicalcpu"), std::nullopt);
    EXPECT_EQ(samplers.sources.information->text("machdep.cpu.brand_string"), std::nullopt);
}

} // namespace
} // namespace vantrix

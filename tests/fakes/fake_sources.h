#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/sampling_sources.h"
#include "samplers/fake_clock.h"

namespace vantrix::fakes {

using vantrix::FakeClock;

struct FakeInformation : SystemInformation {
    std::optional<std::int64_t> integer(std::string_view) const override { return std::nullopt; }
    std::optional<std::string> text(std::string_view) const override { return "Test processor"; }
    int processorCount() const override { return 2; }
};

/// Absent records make a source fail, and leave behind what must not matter.
template<typename Record>
bool answer(const std::optional<std::vector<Record>>& records, std::vector<Record>& into) {
    if (records)
        into = *records;
    else
        into.assign(7, Record());
    return records.has_value();
}

struct FakeCPU : CPUSampler::Source {
    std::optional<std::vector<CPUSampler::Ticks>> cores = std::vector<CPUSampler::Ticks>(2);
    bool read(std::vector<CPUSampler::Ticks>& into) override { return answer(cores, into); }
    /// Lets every core spend `busy` of the next `all` ticks in user code.
    void advance(std::uint32_t busy, std::uint32_t all) {
        for (auto& core : *cores) {
            core.user += busy;
            core.idle += all - busy;
        }
    }
};

struct FakeMemory : MemorySampler::Source {
    std::optional<MemorySampler::Statistics> statistics = MemorySampler::Statistics{
        .wireCount = 10, .internalPageCount = 40, .pageSize = 1024, .physicalMemory = 100 * 1024};
    std::optional<MemorySampler::Statistics> read() override { return statistics; }
};

struct FakeNetwork : NetworkSampler::Source {
    std::optional<std::vector<NetworkSampler::Link>> links = {{{"en0", 0x41, NetworkSampler::Counters{}}}};
    NetworkSampler::CounterWidth width = NetworkSampler::CounterWidth::bits32;
    bool read(std::vector<NetworkSampler::Link>& into) override { return answer(links, into); }
    NetworkSampler::CounterWidth counterWidth() const override { return width; }
};

struct FakeDisks : DiskSampler::CounterSource {
    std::optional<std::vector<DiskSampler::Counters>> disks = {{{0, 0}}};
    bool read(std::vector<DiskSampler::Counters>& into) override { return answer(disks, into); }
};

struct FakeVolume : DiskSampler::VolumeSource {
    std::optional<DiskSampler::Volume> volume = DiskSampler::Volume{1000, 400};
    std::string mountPoint;
    std::optional<DiskSampler::Volume> read() override { return volume; }
    void choose(const std::string& chosen) override { mountPoint = chosen; }
    std::vector<std::string> mounted() const override { return {"/", "/home"}; }
};

struct FakeAccessories : AccessoriesSampler {
    Scan result;
    int scans = 0;
    Scan scan() override {
        ++scans;
        return result;
    }
};

/// Of a machine with four processors.
struct FakeProcesses : ProcessSampler::Source {
    std::vector<ProcessSampler::Process> processes{{1, 1, 0, 10, 0}, {2, 1, 0, 20, 1}};
    std::vector<ProcessSampler::Application> names{{"A", ""}, {"B", ""}, {"C", ""}, {"D", ""}, {"E", ""}, {"F", ""}};
    int reads = 0;
    int forgotten = 0;
    std::function<void()> onRead = [] {};
    bool read(std::vector<ProcessSampler::Process>& into) override {
        ++reads;
        onRead();
        into = processes;
        return !processes.empty();
    }
    const std::vector<ProcessSampler::Application>& applications() const override { return names; }
    int processors() const override { return 4; }
    void forget() override { ++forgotten; }
};

/// A machine in the test's hands; the pointers stay valid as long as whatever took the sources.
struct FakeMachine {
    FakeClock* clock = nullptr;
    FakeCPU* cpu = nullptr;
    FakeMemory* memory = nullptr;
    FakeNetwork* network = nullptr;
    FakeDisks* disks = nullptr;
    FakeVolume* volume = nullptr;
    FakeAccessories* accessories = nullptr;
    FakeProcesses* processes = nullptr;

    SamplingSources makeSources() {
        SamplingSources sources;
        sources.information = std::make_unique<FakeInformation>();
        sources.clock.reset(clock = new FakeClock);
        sources.cpu.reset(cpu = new FakeCPU);
        sources.memory.reset(memory = new FakeMemory);
        sources.network.reset(network = new FakeNetwork);
        sources.disks.reset(disks = new FakeDisks);
        sources.volume.reset(volume = new FakeVolume);
        sources.accessories.reset(accessories = new FakeAccessories);
        sources.processes.reset(processes = new FakeProcesses);
        return sources;
    }
};

} // namespace vantrix::fakes

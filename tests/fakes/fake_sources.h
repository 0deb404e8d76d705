#pragma once

#include <memory>

#include "platform/sampling_sources.h"

namespace vantrix::fakes {

class FakeClock : public Clock {
  public:
    double now = 1000.0;
    double uptime() const override { return now; }
};

class FakeInformation : public SystemInformation {
  public:
    std::optional<std::int64_t> integer(std::string_view) const override { return std::nullopt; }
    std::optional<std::string> text(std::string_view) const override { return "Test processor"; }
    int processorCount() const override { return 2; }
};

/// Absent members make the source fail.
class FakeCPU : public CPUSampler::Source {
  public:
    std::optional<std::vector<CPUSampler::Ticks>> cores = std::vector<CPUSampler::Ticks>(2);
    bool read(std::vector<CPUSampler::Ticks>& into) override {
        if (cores)
            into = *cores;
        return cores.has_value();
    }
    /// Lets every core spend `busy` of the next `all` ticks in user code.
    void advance(std::uint32_t busy, std::uint32_t all) {
        for (auto& core : *cores) {
            core.user += busy;
            core.idle += all - busy;
        }
    }
};

class FakeMemory : public MemorySampler::Source {
  public:
    std::optional<MemorySampler::Statistics> statistics = MemorySampler::Statistics{
        .wireCount = 10, .internalPageCount = 40, .pageSize = 1024, .physicalMemory = 100 * 1024};
    std::optional<MemorySampler::Statistics> read() override { return statistics; }
};

class FakeNetwork : public NetworkSampler::Source {
  public:
    std::optional<std::vector<NetworkSampler::Link>> links = {{{"en0", 0x41, NetworkSampler::Counters{}}}};
    bool read(std::vector<NetworkSampler::Link>& into) override {
        if (links)
            into = *links;
        return links.has_value();
    }
};

class FakeDisks : public DiskSampler::CounterSource {
  public:
    std::optional<std::vector<DiskSampler::Counters>> disks = {{{0, 0}}};
    bool read(std::vector<DiskSampler::Counters>& into) override {
        if (disks)
            into = *disks;
        return disks.has_value();
    }
};

class FakeVolume : public DiskSampler::VolumeSource {
  public:
    std::optional<DiskSampler::Volume> volume = DiskSampler::Volume{1000, 400};
    std::optional<DiskSampler::Volume> read() override { return volume; }
};

class FakeAccessories : public AccessoriesSampler {
  public:
    Scan result;
    int scans = 0;
    Scan scan() override {
        ++scans;
        return result;
    }
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

    SamplingSources makeSources() {
        SamplingSources sources;
        sources.information = std::make_unique<FakeInformation>();
        keep(sources.clock, clock);
        keep(sources.cpu, cpu);
        keep(sources.memory, memory);
        keep(sources.network, network);
        keep(sources.disks, disks);
        keep(sources.volume, volume);
        keep(sources.accessories, accessories);
        return sources;
    }

  private:
    template<typename Interface, typename Fake>
    static void keep(std::unique_ptr<Interface>& place, Fake*& pointer) {
        auto fake = std::make_unique<Fake>();
        pointer = fake.get();
        place = std::move(fake);
    }
};

} // namespace vantrix::fakes

// The sources on the Mac that runs the tests, which may be a virtual one: only what each of them has is asked for.

#include <algorithm>
#include <unistd.h>

#include <gtest/gtest.h>
#include <mach/mach.h>

#include "platform/diagnosis.h"
#include "platform/sampling_sources.h"

namespace vantrix {
namespace {

class SourcesSmokeTest : public ::testing::Test {
  protected:
    void pass() {
        sources.cpu->read(cores_);
        sources.memory->read();
        sources.network->read(links_);
        sources.disks->read(disks_);
        sources.volume->read();
        sources.gpu->read();
        sources.battery->powerSources();
        sources.battery->smartBattery();
        if (sources.temperatures)
            sources.temperatures->read(services_);
        if (sources.sensorKeys)
            sources.sensorKeys->value("PSTR");
        if (sources.energy && sources.energy->takeSnapshot())
            sources.energy->readDifference(channels_);
        passConnection();
    }

    SamplingSources sources = makeSamplingSources({});

  private:
    void passConnection() {
        if (!sources.networkInfo->refresh())
            return;
        const auto primary = sources.networkInfo->primaryInterface(NetworkInfoSampler::AddressFamily::ipv4);
        if (!primary)
            return;
        const std::string name(*primary); // the answer holds until the next question
        sources.networkInfo->ipv4Address(name);
        sources.networkInfo->describe(name);
        sources.networkInfo->wifi(name);
    }

    std::vector<CPUSampler::Ticks> cores_;
    std::vector<NetworkSampler::Link> links_;
    std::vector<DiskSampler::Counters> disks_;
    std::vector<HIDTemperatureSampler::Service> services_;
    std::vector<IOReportSampler::Channel> channels_;
};

/// What this process holds of Mach ports: a name for each, and the references behind all names.
struct MachPorts {
    std::uint64_t names = 0;
    std::uint64_t references = 0;

    static MachPorts count() {
        mach_port_name_array_t names = nullptr;
        mach_port_type_array_t types = nullptr;
        mach_msg_type_number_t nameCount = 0;
        mach_msg_type_number_t typeCount = 0;
        EXPECT_EQ(mach_port_names(mach_task_self(), &names, &nameCount, &types, &typeCount), KERN_SUCCESS);
        MachPorts ports{.names = nameCount};
        for (mach_msg_type_number_t i = 0; i < nameCount; ++i) {
            mach_port_urefs_t references = 0;
            if (mach_port_get_refs(mach_task_self(), names[i], MACH_PORT_RIGHT_SEND, &references) == KERN_SUCCESS)
                ports.references += references;
        }
        vm_deallocate(mach_task_self(), reinterpret_cast<vm_address_t>(names), nameCount * sizeof *names);
        vm_deallocate(mach_task_self(), reinterpret_cast<vm_address_t>(types), typeCount * sizeof *types);
        return ports;
    }
};

TEST_F(SourcesSmokeTest, EveryMacHasAProcessorMemoryLinksAndAVolume) {
    std::vector<CPUSampler::Ticks> cores;
    ASSERT_TRUE(sources.cpu->read(cores));
    EXPECT_EQ(cores.size(), static_cast<std::size_t>(sources.information->processorCount()));
    const auto hasRun = [](const CPUSampler::Ticks& core) { return core.user + core.system + core.idle > 0; };
    EXPECT_TRUE(std::any_of(cores.begin(), cores.end(), hasRun));

    const auto memory = sources.memory->read();
    ASSERT_TRUE(memory.has_value());
    EXPECT_GT(memory->wireCount, 0u);
    EXPECT_EQ(memory->pageSize, static_cast<std::uint64_t>(::getpagesize()));
    EXPECT_GE(memory->physicalMemory, std::uint64_t{1} << 30);
    EXPECT_TRUE(memory->swapUsed.has_value());
    EXPECT_TRUE(memory->pressureLevel.has_value());

    std::vector<NetworkSampler::Link> links;
    ASSERT_TRUE(sources.network->read(links));
    EXPECT_TRUE(std::any_of(links.begin(), links.end(),
                            [](const NetworkSampler::Link& link) { return link.name == "lo0" && link.counters; }));

    const auto volume = sources.volume->read();
    ASSERT_TRUE(volume.has_value());
    EXPECT_GT(volume->total, 0u);
    EXPECT_LE(volume->available, volume->total);
}

TEST_F(SourcesSmokeTest, EveryMacTellsItsTimeAndItsProcessor) {
    const double before = sources.clock->uptime();
    EXPECT_GT(before, 0.0);
    EXPECT_GE(sources.clock->uptime(), before);
    EXPECT_LT(sources.clock->uptime(), before + 60.0); // seconds

    EXPECT_GE(sources.information->integer("hw.logicalcpu").value_or(0), 1);
    EXPECT_NE(sources.information->text("machdep.cpu.brand_string").value_or(""), "");
    EXPECT_EQ(sources.information->integer("hw.nothing_of_that_name"), std::nullopt);
}

TEST_F(SourcesSmokeTest, AThousandPassesLeaveNothingBehind) {
    constexpr int passes = 1000;
    constexpr std::uint64_t stray = 100; // ports and references that the system's own threads may take meanwhile
    for (int i = 0; i < passes / 10; ++i)
        pass(); // caches fill
    const MachPorts before = MachPorts::count();
    const auto memoryBefore = processStatistics(::getpid());
    for (int i = 0; i < passes; ++i)
        pass();
    const MachPorts after = MachPorts::count();
    const auto memoryAfter = processStatistics(::getpid());
    EXPECT_LT(after.names, before.names + stray);
    EXPECT_LT(after.references, before.references + stray);
    ASSERT_TRUE(memoryBefore && memoryAfter);
    EXPECT_LT(memoryAfter->ownBytes.value_or(0), memoryBefore->ownBytes.value_or(0) + (4u << 20)); // 4 KiB a pass
}

} // namespace
} // namespace vantrix

#include "platform/diagnosis.h"

#include <unistd.h>

#include "macos/accelerators.h"
#include "macos/disks/block_storage.h"
#include "macos/disks/volume_capacity.h"
#include "macos/kernel/mach_clock.h"
#include "macos/kernel/registry.h"
#include "macos/mac_accessories.h"
#include "macos/mach_memory.h"
#include "macos/network/link_records.h"
#include "macos/network/mac_network_info.h"
#include "macos/power_sources.h"
#include "macos/processes/process_records.h"
#include "macos/processor/mach_processor_ticks.h"
#include "macos/sensors/energy_channels.h"
#include "macos/sensors/hid_temperatures.h"
#include "macos/sensors/smc_connection.h"
#include "sensors/sensors_sampler.h"

namespace vantrix {
namespace {

namespace name = reading_name;

/// Collects rows, each with the state that asking its source gives.
class Rows {
  public:
    void add(std::string_view name, std::string_view source, bool answers, std::string_view reason,
             SourceState otherwise = SourceState::absent) {
        rows_.push_back({std::string(name),
                         std::string(source),
                         answers ? SourceState::ok : otherwise,
                         {},
                         answers ? "" : std::string(reason)});
    }

    std::vector<SourceDiagnosis> take() { return std::move(rows_); }

  private:
    std::vector<SourceDiagnosis> rows_;
};

void addCounters(Rows& rows) {
    std::vector<CPUSampler::Ticks> cores;
    rows.add(name::processor, "host_processor_info", MachProcessorTicks().read(cores),
             "The kernel refuses its counters.", SourceState::denied);
    const auto memory = MachMemory().read();
    rows.add(name::memory, "host_statistics64", memory.has_value(), "The kernel refuses its page counts.",
             SourceState::denied);
    rows.add(name::pressure, "kern.memorystatus_vm_pressure_level", memory && memory->pressureLevel,
             "This kernel does not tell; the level is always normal.");
    std::vector<ProcessSampler::Process> processes;
    rows.add(name::programs, "proc_listallpids, proc_pid_rusage", ProcessRecords().read(processes),
             "The kernel tells of no process: look for a sandbox.", SourceState::denied);
}

void addNetwork(Rows& rows) {
    std::vector<NetworkSampler::Link> links;
    rows.add(name::network, "getifaddrs", LinkRecords().read(links), "The list of interfaces is empty.");
    rows.add(name::connection, "SystemConfiguration dynamic store", MacNetworkInfo().refresh(),
             "The store of the system's configuration does not answer.", SourceState::silent);
    rows.add(name::wifi, "CoreWLAN", hasWiFiInterface(), "This machine has no Wi-Fi interface.");
}

void addDisks(Rows& rows) {
    rows.add(name::diskSpace, "resource values of file:///", VolumeCapacity().read().has_value(),
             "The start-up volume tells no capacity.", SourceState::silent);
    std::vector<DiskSampler::Counters> disks;
    rows.add(name::diskRates, "IOBlockStorageDriver", BlockStorage().read(disks) && !disks.empty(),
             "No driver of block storage publishes statistics.");
}

void addController(bool isOpen, const SensorsSample& sample, Rows& rows) {
    const bool isRefused = !isOpen && firstService("AppleSMC");
    const auto otherwise = isRefused ? SourceState::denied : SourceState::absent;
    const auto reason = isRefused ? "The controller refuses the connection: look for a sandbox."
                                  : "This machine has no controller of that kind; a virtual machine has none.";
    rows.add(name::fans, "AppleSMC", !sample.fans.empty(), isOpen ? "This machine has no fans." : reason, otherwise);
    rows.add(name::systemPower, "AppleSMC", isOpen, reason, otherwise);
}

void addSensors(Rows& rows) {
    Accelerators accelerators;
    rows.add(name::gpu, "IOAccelerator", GPUSampler(accelerators).sample().has_value(),
             "There is no graphics accelerator that tells its load.");
    const auto keys = makeSensorKeys();
    const auto temperatures = makeHIDTemperatures();
    const MachClock clock;
    SensorsSampler sampler(keys.get(), temperatures.get(), nullptr, clock);
    const SensorsSample& sample = sampler.sample();
    const bool hasSensors = !sample.all.empty();
    rows.add(name::temperatures, hasSensors ? "HID event system" : "AppleSMC", hasSensors || sample.cpu || sample.gpu,
             "Neither the HID event system nor the controller tells of temperatures.");
    addController(keys != nullptr, sample, rows);
    rows.add(name::chipPower, "/usr/lib/libIOReport.dylib", makeEnergyChannels() != nullptr,
             "The library, or its energy counters, are not on this machine.");
}

void addSupplies(Rows& rows) {
    PowerSources sources;
    rows.add(name::battery, "power sources, AppleSmartBattery", BatterySampler(sources).sample().has_value(),
             "This machine has no battery.");
    rows.add(name::accessories, "system_profiler, AppleDeviceManagementHIDEventService",
             access(MacAccessories::systemProfiler, X_OK) == 0,
             "The system profiler is not on this machine; input devices alone are looked up.");
}

} // namespace

/// Makes sources of its own, and no location manager: this may run on any thread, and that belongs to the main one.
std::vector<SourceDiagnosis> diagnoseSources(const KernelRoots&) {
    Rows rows;
    for (const auto add : {addCounters, addNetwork, addDisks, addSensors, addSupplies})
        add(rows);
    return rows.take();
}

} // namespace vantrix

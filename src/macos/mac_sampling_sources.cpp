#include "platform/sampling_sources.h"

#include "macos/accelerators.h"
#include "macos/disks/block_storage.h"
#include "macos/disks/volume_capacity.h"
#include "macos/kernel/mach_clock.h"
#include "macos/mac_accessories.h"
#include "macos/mach_memory.h"
#include "macos/network/link_records.h"
#include "macos/network/location_manager.h"
#include "macos/network/mac_network_info.h"
#include "macos/power_sources.h"
#include "macos/processes/process_records.h"
#include "macos/processor/mach_processor_ticks.h"
#include "macos/processor/sysctl_information.h"
#include "macos/sensors/energy_channels.h"
#include "macos/sensors/hid_temperatures.h"
#include "macos/sensors/smc_connection.h"

namespace vantrix {

std::optional<std::string> unreadableRoot(const KernelRoots& /*roots*/) {
    return std::nullopt; // this kernel shows itself in no folders
}

SamplingSources makeSamplingSources(const KernelRoots&) {
    SamplingSources sources;
    sources.clock = std::make_unique<MachClock>();
    sources.information = std::make_unique<SysctlInformation>();
    sources.cpu = std::make_unique<MachProcessorTicks>();
    sources.memory = std::make_unique<MachMemory>();
    sources.network = std::make_unique<LinkRecords>();
    sources.networkInfo = std::make_unique<MacNetworkInfo>();
    sources.location = makeLocationManager();
    sources.disks = std::make_unique<BlockStorage>();
    sources.volume = std::make_unique<VolumeCapacity>();
    sources.gpu = std::make_unique<Accelerators>();
    sources.sensorKeys = makeSensorKeys();
    sources.temperatures = makeHIDTemperatures();
    sources.energy = makeEnergyChannels();
    sources.battery = std::make_unique<PowerSources>();
    sources.accessories = std::make_unique<MacAccessories>();
    sources.processes = std::make_unique<ProcessRecords>();
    return sources;
}

} // namespace vantrix

#include "platform/sampling_sources.h"

#include "platform/macos/sources/accelerators.h"
#include "platform/macos/sources/block_storage.h"
#include "platform/macos/sources/energy_channels.h"
#include "platform/macos/sources/hid_temperatures.h"
#include "platform/macos/sources/link_records.h"
#include "platform/macos/sources/location_manager.h"
#include "platform/macos/sources/mac_accessories.h"
#include "platform/macos/sources/mac_network_info.h"
#include "platform/macos/sources/mach_clock.h"
#include "platform/macos/sources/mach_memory.h"
#include "platform/macos/sources/mach_processor_ticks.h"
#include "platform/macos/sources/power_sources.h"
#include "platform/macos/sources/smc_connection.h"
#include "platform/macos/sources/sysctl_information.h"
#include "platform/macos/sources/volume_capacity.h"

namespace vantrix {
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
    return sources;
}

} // namespace vantrix

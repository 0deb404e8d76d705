#include <linux/netlink.h>

#include "linux/disks/proc_diskstats.h"
#include "linux/disks/volume.h"
#include "linux/graphics/linux_gpu_source.h"
#include "linux/graphics/nvidia_library.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/linux_clock.h"
#include "linux/memory/linux_memory_source.h"
#include "linux/network/linux_network_info.h"
#include "linux/network/nl80211_reader.h"
#include "linux/network/proc_net_dev.h"
#include "linux/network/proc_net_route.h"
#include "linux/network/rtnetlink_links.h"
#include "linux/network/rtnetlink_routes.h"
#include "linux/network/sysfs_links.h"
#include "linux/power_supply/linux_battery_source.h"
#include "linux/power_supply/power_supply_accessories.h"
#include "linux/processes/process_list.h"
#include "linux/processor/linux_system_information.h"
#include "linux/processor/proc_stat.h"
#include "linux/sampling_parts.h"
#include "linux/sensors/linux_sensor_keys.h"
#include "linux/sensors/linux_temperatures.h"
#include "linux/sensors/powercap_energy.h"

namespace vantrix {
namespace {

std::unique_ptr<NetworkSampler::Source> makeNetworkSource(const KernelRoots& roots,
                                                          const std::shared_ptr<RtnetlinkSubscriber>& news) {
    auto sysfs = std::make_unique<SysfsLinks>(roots.sys);
    if (roots != KernelRoots())
        return std::make_unique<NetDevSource>(netFolder(roots) + "/dev", std::move(sysfs), nullptr);
    return std::make_unique<NetDevSource>(roots.proc + "/net/dev", std::make_unique<RtnetlinkLinks>(news, roots.sys),
                                          std::move(sysfs));
}

std::unique_ptr<NetworkInfoSampler::Source> makeNetworkInfoSource(const KernelRoots& roots,
                                                                  const std::shared_ptr<RtnetlinkSubscriber>& news) {
    if (roots != KernelRoots())
        return std::make_unique<LinuxNetworkInfo>(roots.sys, std::make_unique<ProcNetRoutes>(netFolder(roots)), nullptr,
                                                  nullptr);
    auto wifi = std::make_unique<Nl80211Reader>(std::make_unique<NetlinkSocket>(NETLINK_GENERIC));
    return std::make_unique<LinuxNetworkInfo>(roots.sys, std::make_unique<RtnetlinkRoutes>(news),
                                              std::make_unique<ProcNetRoutes>(roots.proc + "/net"), std::move(wifi));
}

/// The entries here are those of this machine's applications.
ApplicationEntries applicationEntries(const KernelRoots& roots) {
    return {roots == KernelRoots() ? applicationFolders() : std::vector<std::string>(), wantedLanguages()};
}

} // namespace

SamplingSources makeSamplingSources(const KernelRoots& roots) {
    const auto news = std::make_shared<RtnetlinkSubscriber>(); // opens nothing until it is asked
    return makeSamplingSources(
        roots, {.makeClock = [] { return std::make_unique<LinuxClock>(); },
                .information = std::make_unique<LinuxSystemInformation>(roots.proc, roots.sys),
                .network = makeNetworkSource(roots, news),
                .networkInfo = makeNetworkInfoSource(roots, news),
                .volume = std::make_unique<VolumeStatistics>(volumeFolders(roots.proc), askVolume, roots.proc),
                .nvidia = makeNvidiaLibrary(),
                .processes = std::make_unique<ProcessList>(roots.proc, roots.sys, applicationEntries(roots))});
}

SamplingSources makeSamplingSources(const KernelRoots& roots, SamplingParts parts) {
    SamplingSources sources;
    sources.clock = parts.makeClock();
    sources.information = std::move(parts.information);
    sources.cpu = std::make_unique<ProcStatSource>(roots.proc);
    sources.memory = std::make_unique<LinuxMemorySource>(roots.proc, roots.sys);
    sources.network = std::move(parts.network);
    sources.networkInfo = std::move(parts.networkInfo);
    sources.disks = std::make_unique<DiskStatsSource>(roots.proc, roots.sys);
    sources.volume = std::move(parts.volume);
    auto gpu = std::make_unique<LinuxGPUSource>(roots.sys, parts.makeClock(), std::move(parts.nvidia));
    const std::shared_ptr<const Clock> sensorClock = parts.makeClock();
    const auto threads = std::make_shared<DeviceThreads>();
    sources.sensorKeys = std::make_unique<LinuxSensorKeys>(roots.sys, sensorClock, threads);
    sources.temperatures =
        std::make_unique<LinuxTemperatures>(roots.sys, sensorClock, gpu->nvidiaTemperatures(), threads);
    sources.gpu = std::move(gpu);
    sources.energy = std::make_unique<PowercapEnergy>(roots.sys, sensorClock, threads);
    sources.battery = std::make_unique<LinuxBatterySource>(roots.sys, sensorClock, threads);
    sources.accessories = std::make_unique<PowerSupplyAccessories>(roots.sys);
    sources.processes = std::move(parts.processes);
    sources.bracket = threads;
    return sources;
}

} // namespace vantrix

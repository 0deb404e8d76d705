#include "platform/sampling_sources.h"

#include "platform/linux/sources/empty_accessories.h"
#include "platform/linux/sources/kernel_tree.h"
#include "platform/linux/sources/linux_clock.h"
#include "platform/linux/sources/linux_memory_source.h"
#include "platform/linux/sources/linux_system_information.h"
#include "platform/linux/sources/proc_diskstats.h"
#include "platform/linux/sources/proc_net_dev.h"
#include "platform/linux/sources/proc_stat.h"
#include "platform/linux/sources/rtnetlink_links.h"
#include "platform/linux/sources/sysfs_links.h"
#include "platform/linux/sources/volume.h"

namespace vantrix {
namespace {

std::string withoutTrailingSlashes(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

/// "net" in a tree of processes means the reader's own network namespace, "1/net" that of the tree's machine.
std::string foreignNetDev(const std::string& proc) {
    std::string path = proc + "/1/net/dev";
    return pathExists(path) ? path : proc + "/net/dev";
}

std::unique_ptr<NetworkSampler::Source> makeNetworkSource(const KernelRoots& roots) {
    auto sysfs = std::make_unique<SysfsLinks>(roots.sys);
    if (roots != KernelRoots())
        return std::make_unique<NetDevSource>(foreignNetDev(roots.proc), std::move(sysfs), nullptr);
    return std::make_unique<NetDevSource>(roots.proc + "/net/dev", std::make_unique<RtnetlinkLinks>(roots.sys),
                                          std::move(sysfs));
}

} // namespace

SamplingSources makeSamplingSources(const KernelRoots& given) {
    const KernelRoots roots{withoutTrailingSlashes(given.proc), withoutTrailingSlashes(given.sys)};
    SamplingSources sources;
    sources.clock = std::make_unique<LinuxClock>();
    sources.information = std::make_unique<LinuxSystemInformation>(roots.proc, roots.sys);
    sources.cpu = std::make_unique<ProcStatSource>(roots.proc);
    sources.memory = std::make_unique<LinuxMemorySource>(roots.proc, roots.sys);
    sources.network = makeNetworkSource(roots);
    sources.disks = std::make_unique<DiskStatsSource>(roots.proc, roots.sys);
    sources.volume = std::make_unique<VolumeStatistics>(rootVolume(roots.proc));
    sources.accessories = std::make_unique<EmptyAccessories>();
    return sources;
}

} // namespace vantrix

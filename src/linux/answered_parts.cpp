#include "linux/answered_parts.h"

#include <linux/netlink.h>

#include "linux/disks/volume.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/network/linux_network_info.h"
#include "linux/network/nl80211_reader.h"
#include "linux/network/proc_net_dev.h"
#include "linux/network/proc_net_route.h"
#include "linux/network/rtnetlink_routes.h"
#include "linux/network/sysfs_links.h"
#include "linux/processor/linux_system_information.h"

namespace vantrix {
namespace {

std::unique_ptr<NetworkInfoSampler::Source>
makeNetworkInfo(const KernelRoots& roots, const std::shared_ptr<Answers>& answers, Redaction* redaction) {
    std::unique_ptr<DefaultRoutes> routes;
    std::unique_ptr<WiFiReader> wifi;
    if (redaction != nullptr && roots == KernelRoots()) { // other trees are those of another machine
        routes = std::make_unique<RtnetlinkRoutes>(std::make_shared<RtnetlinkSubscriber>());
        wifi = std::make_unique<Nl80211Reader>(std::make_unique<NetlinkSocket>(NETLINK_GENERIC));
    }
    return std::make_unique<LinuxNetworkInfo>(roots.sys,
                                              std::make_unique<AnsweredRoutes>(answers, std::move(routes), redaction),
                                              std::make_unique<ProcNetRoutes>(netFolder(roots)),
                                              std::make_unique<AnsweredWiFi>(answers, std::move(wifi), redaction));
}

} // namespace

SamplingParts makeAnsweredParts(const KernelRoots& roots, const std::shared_ptr<Answers>& answers,
                                const PassClock& clock, Redaction* redaction) {
    const bool isLive = redaction != nullptr;
    std::unique_ptr<DiskSampler::VolumeSource> volume;
    if (isLive)
        volume = std::make_unique<VolumeStatistics>(volumeFolders(roots.proc));
    return {.makeClock = [clock] { return std::make_unique<PassClock>(clock); },
            .information = std::make_unique<AnsweredInformation>(
                answers, std::make_unique<LinuxSystemInformation>(roots.proc, roots.sys), isLive),
            // the links of both from files, since netlink tells only of this machine's
            .network = std::make_unique<NetDevSource>(netFolder(roots) + "/dev",
                                                      std::make_unique<SysfsLinks>(roots.sys), nullptr),
            .networkInfo = makeNetworkInfo(roots, answers, redaction),
            .volume = std::make_unique<AnsweredVolume>(answers, std::move(volume)),
            .nvidia = std::make_unique<AnsweredNvidia>(answers, isLive ? makeNvidiaLibrary() : nullptr)};
}

} // namespace vantrix

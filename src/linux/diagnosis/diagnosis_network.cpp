#include <algorithm>

#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/network/sysfs_links.h"

namespace vantrix {
namespace {

std::vector<std::string> interfaces(const std::string& sys) {
    auto names = entriesStartingWith(sys + "/class/net", "");
    std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
    return names;
}

SourceDiagnosis rates(const DiagnosisTools& tools) {
    const bool isOwn = tools.roots == KernelRoots();
    auto row = diagnosisOfFile(tools, reading_name::network, netFolder(tools.roots) + "/dev",
                               "Without this file there is no such reading: is /proc mounted?");
    const auto names = interfaces(tools.roots.sys);
    const bool hasPort = std::any_of(names.begin(), names.end(),
                                     [&](const auto& name) { return isHardwareLink(tools.roots.sys, name); });
    if (row.state == SourceState::ok && !hasPort) {
        row.state = SourceState::absent;
        row.reason = "There is no hardware port here, and virtual ones are not counted. In a container, give the "
                     "host's trees: --proc-root /host/proc --sys-root /host/sys.";
    }
    row.source += isOwn ? ", rtnetlink" : ", " + tools.roots.sys + "/class/net";
    return row;
}

SourceDiagnosis wifi(const DiagnosisTools& tools) {
    SourceDiagnosis row{std::string(reading_name::wifi), "nl80211 (generic netlink)"};
    const auto names = interfaces(tools.roots.sys);
    const bool hasRadio = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
        const std::string folder = tools.roots.sys + "/class/net/" + name;
        return pathExists(folder + "/phy80211") || pathExists(folder + "/wireless");
    });
    if (hasRadio && tools.roots == KernelRoots())
        return row;
    row.state = SourceState::absent;
    row.reason = hasRadio ? "Details of Wi-Fi are only asked for on the machine itself, not through another root."
                          : "There is no Wi-Fi device, or its driver is not loaded.";
    return row;
}

} // namespace

void diagnoseNetwork(const DiagnosisTools& tools, SourceDiagnoses& rows) {
    rows.push_back(rates(tools));
    const bool isOwn = tools.roots == KernelRoots();
    rows.push_back({std::string(reading_name::connection), isOwn ? "rtnetlink" : netFolder(tools.roots) + "/route"});
    rows.push_back(wifi(tools));
}

} // namespace vantrix

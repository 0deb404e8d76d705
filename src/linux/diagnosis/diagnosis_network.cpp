#include <algorithm>

#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/network/port_role.h"
#include "linux/network/sysfs_links.h"
#include "support/text_format.h"

namespace vantrix {
namespace {

std::vector<std::string> interfaces(const std::string& sys) {
    auto names = entriesStartingWith(sys + "/class/net", "");
    std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
    return names;
}

/// How many ports are counted, and how many are not, by the reason. Their names would tell of people's machines.
struct Ports {
    std::ptrdiff_t counted = 0;
    std::ptrdiff_t enslaved = 0;
    std::ptrdiff_t stacked = 0;
};

Ports portsOf(const std::string& sys) {
    std::vector<LinkState> links;
    for (const std::string& name : interfaces(sys))
        links.push_back(readLink(sys, name));
    const auto count = [&](PortRole role) {
        return std::count_if(links.begin(), links.end(),
                             [&](const LinkState& link) { return roleOf(link, links) == role; });
    };
    return {count(PortRole::counted), count(PortRole::enslaved), count(PortRole::stacked)};
}

std::string reasonForLeavingOut(const Ports& ports) {
    std::string list;
    if (ports.enslaved > 0)
        list = std::to_string(ports.enslaved) + " enslaved to it (as a virtual machine's accelerated port is)";
    if (ports.stacked > 0)
        appendToList(list, std::to_string(ports.stacked) + " stacked on it (as the ports of a switch are)");
    return list.empty() ? list : "Left out, because another port counts the same bytes: " + list + '.';
}

SourceDiagnosis rates(const DiagnosisTools& tools) {
    const bool isOwn = tools.roots == KernelRoots();
    auto row = diagnosisOfFile(tools, reading_name::network, netFolder(tools.roots) + "/dev",
                               "Without this file there is no such reading: is /proc mounted?");
    row.source += isOwn ? ", rtnetlink" : ", " + tools.roots.sys + "/class/net";
    if (row.state != SourceState::ok)
        return row;
    const Ports ports = portsOf(tools.roots.sys);
    if (ports.counted > 0) {
        row.source += " (" + std::to_string(ports.counted) + (ports.counted == 1 ? " port)" : " ports)");
        row.reason = reasonForLeavingOut(ports);
    } else {
        row.state = SourceState::absent;
        row.reason = "There is no hardware port here, and virtual ones are not counted. In a container, give the "
                     "host's trees: --proc-root /host/proc --sys-root /host/sys.";
    }
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

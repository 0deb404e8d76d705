#include <algorithm>

#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/sensors/hwmon_chips.h"
#include "linux/sensors/supply_kind.h"

namespace vantrix {
namespace {

/// The counters of energy whose name begins with `prefix`, sorted.
std::vector<std::string> countersNamed(const std::string& sys, std::string_view prefix) {
    const std::string root = sys + "/class/powercap/";
    std::vector<std::string> files;
    for (const std::string& zone : entriesStartingWith(root, "intel-rapl:"))
        if (readName(root + zone + "/name").starts_with(prefix))
            files.push_back(root + zone + "/energy_uj");
    std::sort(files.begin(), files.end());
    return files;
}

/// How a user gets at the counters. The kernel guards them because they give away what is being computed.
std::string grant(const std::string& sys) {
    return "Only the administrator may read it. To let a group read it, put this line into "
           "/etc/tmpfiles.d/energy.conf: z " +
           sys +
           "/class/powercap/intel-rapl:*/energy_uj 0440 root GROUP - and run: systemd-tmpfiles --create energy.conf. "
           "The price: whoever is in the group can draw conclusions from the counter about secrets that other "
           "programs compute with.";
}

SourceDiagnosis chipPower(const DiagnosisTools& tools) {
    const std::string name(reading_name::chipPower);
    const auto packages = countersNamed(tools.roots.sys, "package");
    if (packages.empty())
        return {name,
                tools.roots.sys + "/class/powercap",
                SourceState::absent,
                {},
                "The processor counts no energy, or hides it: usual in virtual machines and on most ARM boards."};
    const bool isDenied = std::any_of(packages.begin(), packages.end(),
                                      [&](const auto& file) { return tools.reach(file) == Reach::denied; });
    if (isDenied)
        return {name, packages.front(), SourceState::denied, {}, grant(tools.roots.sys)};
    return {name, packages.front(), SourceState::ok, {}, {}};
}

/// The name of a chip that measures what the whole machine draws; empty when there is none.
std::string powerMeter(const std::string& sys) {
    for (const HwmonChip& chip : findHwmonChips(sys)) {
        const auto numbers = sensorNumbers(chip.folder, "power", "_label");
        const bool isLabelled = std::any_of(numbers.begin(), numbers.end(), [&](int number) {
            return readName(chip.folder + "/power" + std::to_string(number) + "_label") == "Total System Power";
        });
        if (chip.name == "power_meter" || isLabelled)
            return chip.name;
    }
    return {};
}

std::string joinedNames(const std::string& folder, const std::vector<std::string>& names) {
    std::string text = folder + '/' + names.front();
    for (std::size_t i = 1; i < names.size(); ++i)
        text += ", " + names[i];
    return text;
}

SourceDiagnosis systemPower(const DiagnosisTools& tools) {
    const std::string name(reading_name::systemPower);
    const std::string& sys = tools.roots.sys;
    const auto platform = countersNamed(sys, "psys");
    const std::string meter = powerMeter(sys);
    const auto packs = suppliesOf(sys, SupplyKind::battery);
    if (!platform.empty() && tools.reach(platform.front()) == Reach::readable)
        return {name, platform.front()};
    if (!meter.empty())
        return {name, sys + "/class/hwmon (" + meter + ")"};
    if (!packs.empty())
        return {name,
                joinedNames(sys + "/class/power_supply", packs),
                SourceState::ok,
                {},
                "Told only while the battery is drained."};
    if (!platform.empty())
        return {name, platform.front(), SourceState::denied, {}, "Like the power of the chip, below."};
    return {name,
            sys + "/class/hwmon",
            SourceState::absent,
            {},
            "No battery, no power meter of the board and no counter for the platform."};
}

} // namespace

void diagnosePower(const DiagnosisTools& tools, SourceDiagnoses& rows) {
    rows.push_back(systemPower(tools));
    rows.push_back(chipPower(tools));
}

void diagnoseSupplies(const DiagnosisTools& tools, SourceDiagnoses& rows) {
    const std::string folder = tools.roots.sys + "/class/power_supply";
    const auto packs = suppliesOf(tools.roots.sys, SupplyKind::battery);
    SourceDiagnosis battery{
        std::string(reading_name::battery), folder, SourceState::absent, {}, "This machine has no battery."};
    if (!packs.empty()) {
        // The one file with all values may be missing; they are then read one by one.
        const bool isDenied = tools.reach(folder + '/' + packs.front() + "/uevent") == Reach::denied;
        battery.source = joinedNames(folder, packs);
        battery.state = isDenied ? SourceState::denied : SourceState::ok;
        battery.reason = isDenied ? "This user may not read its files: look for a sandbox." : "";
    }
    rows.push_back(std::move(battery));
    // Not by their names, which tell of their owner.
    rows.push_back({std::string(reading_name::accessories), folder});
    if (suppliesOf(tools.roots.sys, SupplyKind::accessory).empty()) {
        rows.back().state = SourceState::absent;
        rows.back().reason = "No keyboard, mouse, pen or gamepad tells the kernel of its battery.";
    }
}

} // namespace vantrix

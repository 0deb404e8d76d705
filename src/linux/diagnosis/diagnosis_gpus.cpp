#include <algorithm>

#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/graphics/gpu_meter.h"
#include "linux/graphics/gpu_power.h"
#include "linux/graphics/nvidia_library.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/sensors/sensor_files.h"

namespace vantrix {
namespace {

const std::string name(reading_name::gpu);

/// The driver's name; empty when none is bound. Follows a link, and opens nothing.
std::string driverOf(const std::string& device) {
    const std::string driver = linkTarget(device + "/driver");
    return driver.substr(driver.rfind('/') + 1);
}

SourceDiagnosis asleep(const std::string& device) {
    return {name, device, SourceState::asleep, {}, "It sleeps and is left asleep; it counts as 0%."};
}

SourceDiagnosis withoutMeter(const std::string& device) {
    const std::string driver = driverOf(device);
    const std::string who = driver.empty() ? "No driver is bound to it" : "Its driver, " + driver + ", tells no load";
    const std::string advice = driver == "nouveau" ? "; NVIDIA's own driver would." : ".";
    return {name, device, SourceState::absent, {}, who + advice};
}

SourceDiagnosis diagnoseKernelGPU(const DiagnosisTools& tools, const std::string& card, const std::string& device) {
    if (GPUPowerFile(device).read() == GPUPower::asleep)
        return offeredMeterFiles(card, device).paths.empty() ? withoutMeter(device) : asleep(device);
    const auto files = findMeterFiles(card, device).paths;
    if (files.empty())
        return withoutMeter(device);
    const std::string more = files.size() > 1 ? " and " + std::to_string(files.size() - 1) + " more" : "";
    auto row = diagnosisOfFile(tools, name, files.front(), {});
    row.source += more;
    return row;
}

/// The addresses of the GPUs that NVIDIA's own driver runs, sorted.
std::vector<std::string> nvidiaAddresses(const std::string& folder) {
    auto addresses = entriesStartingWith(folder, "");
    std::erase_if(addresses, [](const std::string& entry) { return !isPCIAddress(entry); });
    std::sort(addresses.begin(), addresses.end());
    return addresses;
}

void diagnoseNvidia(const DiagnosisTools& tools, const std::string& folder, const std::vector<std::string>& addresses,
                    SourceDiagnoses& rows) {
    const auto isAsleep = [&](const std::string& address) {
        return GPUPowerFile(pathBelow(folder, address)).read() == GPUPower::asleep;
    };
    const bool areAllAwake = std::none_of(addresses.begin(), addresses.end(), isAsleep);
    for (const std::string& address : addresses) {
        SourceDiagnosis row{name, std::string(nvidiaLibraryName) + ", " + address};
        if (!tools.hasNvidiaLibrary()) {
            row.state = SourceState::absent;
            row.reason = "The driver's management library is not installed (on Debian the package libnvidia-ml1).";
        } else if (isAsleep(address)) {
            row = asleep(pathBelow(folder, address));
        } else if (!areAllAwake) {
            row.state = SourceState::asleep;
            row.reason = "Starting the library could wake the GPU beside it that sleeps; it waits for that.";
        }
        rows.push_back(std::move(row));
    }
}

std::vector<std::string> sorted(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

void diagnoseGPUs(const DiagnosisTools& tools, SourceDiagnoses& rows) {
    const std::string cards = tools.roots.sys + "/class/drm";
    const std::string frequencies = tools.roots.sys + "/class/devfreq";
    const std::string nvidia = tools.roots.sys + "/bus/pci/drivers/nvidia";
    const auto addresses = nvidiaAddresses(nvidia);
    const auto before = rows.size();
    for (const std::string& card : sorted(entriesStartingWith(cards, "card"))) {
        const std::string path = pathBelow(cards, card);
        const std::string device = resolvedPath(path + "/device");
        const std::string address = device.substr(device.rfind('/') + 1);
        // NVIDIA's driver shows its GPUs a second time, without a load.
        if (isGPUCard(card) && !std::binary_search(addresses.begin(), addresses.end(), address))
            rows.push_back(diagnoseKernelGPU(tools, path, path + "/device"));
    }
    for (const std::string& entry : sorted(entriesStartingWith(frequencies, ""))) {
        if (isGPUFrequency(entry))
            rows.push_back(diagnoseKernelGPU(tools, "", pathBelow(frequencies, entry) + "/device"));
    }
    diagnoseNvidia(tools, nvidia, addresses, rows);
    if (rows.size() == before)
        rows.push_back({name, cards, SourceState::absent, {}, "The kernel shows no GPU; usual in a virtual machine."});
}

} // namespace vantrix

#include "linux/graphics/gpu_meter.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"
#include "support/integer.h"

namespace vantrix {
namespace {

/// A GPU that may not sleep by pieces never counts idle time; it would look busy for ever.
bool mayIdle(const std::string& idleFile) {
    return readStart(idleFile.substr(0, idleFile.rfind('/')) + "/rc6_enable", 8) != "0\n";
}

std::vector<std::string> idleFilesOfI915(const std::string& card) {
    std::vector<std::string> files;
    const std::string parts = card + "/gt";
    for (const std::string& gt : entriesStartingWith(parts, "gt")) {
        std::string file = pathBelow(parts, gt) + "/rc6_residency_ms";
        if (pathExists(file))
            files.push_back(std::move(file));
    }
    const std::string old = card + "/power/rc6_residency_ms";
    if (files.empty() && pathExists(old))
        files.push_back(old);
    return files;
}

std::vector<std::string> idleFilesOfXe(const std::string& device) {
    std::vector<std::string> files;
    for (const std::string& tile : entriesStartingWith(device, "tile")) {
        const std::string parts = pathBelow(device, tile);
        for (const std::string& gt : entriesStartingWith(parts, "gt")) {
            std::string file = pathBelow(parts, gt) + "/gtidle/idle_residency_ms";
            if (pathExists(file))
                files.push_back(std::move(file));
        }
    }
    return files;
}

} // namespace

bool isGPUCard(std::string_view name) {
    return name.size() > 4 && name.starts_with("card") &&
           name.find_first_not_of("0123456789", 4) == std::string_view::npos;
}

bool isGPUFrequency(std::string_view name) {
    return name.find("gpu") != std::string_view::npos || name.find("mali") != std::string_view::npos;
}

bool isPCIAddress(std::string_view name) {
    return std::count(name.begin(), name.end(), ':') == 2;
}

std::optional<double> parseLoad(std::string_view text) {
    const auto percent = takeInteger(text);
    if (!percent || !(text.empty() || text.front() == '\n' || text.front() == '@'))
        return std::nullopt;
    return static_cast<double>(*percent);
}

std::optional<double> LoadFile::percent(double) {
    const auto text = file_.read();
    return text ? parseLoad(*text) : std::nullopt;
}

IdleResidency::IdleResidency(const std::vector<std::string>& paths) {
    for (const std::string& path : paths)
        parts_.push_back({KernelFile(path), std::nullopt});
}

std::optional<double> IdleResidency::percent(double now) {
    const double elapsed = (now - lastTime_) * 1000.0;
    if (elapsed <= 0.0)
        return std::nullopt;
    lastTime_ = now;
    std::optional<double> busiest;
    for (Part& part : parts_) {
        const auto text = part.file.read();
        const auto idle = text ? parseIntegerLine(*text) : std::nullopt;
        if (idle && part.idle && *idle >= *part.idle) {
            const double share = (static_cast<double>(*idle) - static_cast<double>(*part.idle)) / elapsed;
            busiest = std::max(busiest.value_or(0.0), 100.0 * (1.0 - share));
        }
        part.idle = idle;
    }
    return busiest;
}

void IdleResidency::forget() {
    for (Part& part : parts_)
        part.idle.reset();
}

MeterFiles offeredMeterFiles(const std::string& card, const std::string& device) {
    if (pathExists(device + "/gpu_busy_percent"))
        return {{device + "/gpu_busy_percent"}, false};
    auto idleFiles = card.empty() ? std::vector<std::string>() : idleFilesOfI915(card);
    if (idleFiles.empty())
        idleFiles = idleFilesOfXe(device);
    if (!idleFiles.empty())
        return {std::move(idleFiles), true};
    const std::string frequencies = device + "/devfreq";
    for (const std::string& name : entriesStartingWith(frequencies, "")) {
        std::string load = pathBelow(frequencies, name) + "/load";
        if (!name.starts_with('.') && pathExists(load))
            return {{std::move(load)}, false};
    }
    return {};
}

MeterFiles findMeterFiles(const std::string& card, const std::string& device) {
    MeterFiles files = offeredMeterFiles(card, device);
    if (files.tellIdleTime)
        std::erase_if(files.paths, [](const std::string& path) { return !mayIdle(path); });
    return files;
}

std::unique_ptr<GPUMeter> findMeter(const std::string& card, const std::string& device) {
    const MeterFiles files = findMeterFiles(card, device);
    if (files.paths.empty())
        return nullptr;
    if (files.tellIdleTime)
        return std::make_unique<IdleResidency>(files.paths);
    return std::make_unique<LoadFile>(files.paths.front());
}

} // namespace vantrix

#include "linux/processor/cpu_topology.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/text_scan.h"
#include "support/integer.h"

namespace vantrix {
namespace {

constexpr int coreLimit = 65536;

std::optional<int> parseCore(std::string_view text) {
    const auto core = parseInteger<int>(text);
    return core && *core >= 0 && *core < coreLimit ? core : std::nullopt;
}

bool addRange(std::string_view text, std::vector<int>& cores) {
    const auto dash = text.find('-');
    const auto first = parseCore(text.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : parseCore(text.substr(dash + 1));
    if (!first || !last || *last < *first || (!cores.empty() && *first <= cores.back()))
        return false;
    for (int core = *first; core <= *last; ++core)
        cores.push_back(core);
    return true;
}

std::optional<std::vector<int>> readCPUList(const std::string& path) {
    const auto text = readStart(path);
    return text ? parseCPUList(*text) : std::nullopt;
}

int countCores(const std::string& path) {
    const auto cores = readCPUList(path);
    return cores ? static_cast<int>(cores->size()) : 0;
}

std::optional<PerformanceLevels> namedLevels(const std::string& devices) {
    const PerformanceLevels levels{countCores(devices + "/cpu_core/cpus"),
                                   countCores(devices + "/cpu_atom/cpus") + countCores(devices + "/cpu_lowpower/cpus")};
    if (levels.performance == 0 || levels.efficiency == 0)
        return std::nullopt;
    return levels;
}

std::optional<std::uint64_t> readCapacity(const std::string& folder, int core) {
    const auto text = readStart(folder + "/cpu" + std::to_string(core) + "/cpu_capacity");
    if (!text)
        return std::nullopt;
    std::string_view rest = *text;
    const auto line = takeLine(rest);
    return line ? Fields(*line).number() : std::nullopt;
}

std::optional<PerformanceLevels> levelsByCapacity(const std::string& folder) {
    const auto cores = readCPUList(folder + "/online");
    if (!cores || cores->empty())
        return std::nullopt;
    std::vector<std::uint64_t> capacities;
    for (const int core : *cores) {
        const auto capacity = readCapacity(folder, core);
        if (!capacity)
            return std::nullopt;
        capacities.push_back(*capacity);
    }
    const auto least = *std::min_element(capacities.begin(), capacities.end());
    const auto efficient = std::count(capacities.begin(), capacities.end(), least);
    const auto all = static_cast<std::ptrdiff_t>(capacities.size());
    if (efficient == all)
        return std::nullopt;
    return PerformanceLevels{static_cast<int>(all - efficient), static_cast<int>(efficient)};
}

} // namespace

std::optional<std::vector<int>> parseCPUList(std::string_view text) {
    const auto line = takeLine(text);
    if (!line || !text.empty())
        return std::nullopt;
    std::vector<int> cores;
    for (std::string_view rest = *line; !rest.empty();) {
        const auto comma = rest.find(',');
        if (!addRange(rest.substr(0, comma), cores))
            return std::nullopt;
        rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
    }
    return cores;
}

std::optional<int> onlineCores(const std::string& sys) {
    const int count = countCores(sys + "/devices/system/cpu/online");
    return count > 0 ? std::optional(count) : std::nullopt;
}

std::optional<PerformanceLevels> performanceLevels(const std::string& sys) {
    const auto named = namedLevels(sys + "/devices");
    return named ? named : levelsByCapacity(sys + "/devices/system/cpu");
}

} // namespace vantrix

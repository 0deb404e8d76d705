#include "linux/memory/proc_meminfo.h"

#include <array>
#include <iterator>

#include "linux/kernel/text_scan.h"

namespace vantrix {
namespace {

struct Line {
    std::string_view name;
    MemInfo::Value MemInfo::*value;
};

// By length of the name, so that few have to be compared with any line.
constexpr Line lines[] = {
    {"Zswap", &MemInfo::zswap},
    {"Shmem", &MemInfo::shmem},
    {"Cached", &MemInfo::cached},
    {"Percpu", &MemInfo::percpu},
    {"MemFree", &MemInfo::memFree},
    {"Buffers", &MemInfo::buffers},
    {"Mlocked", &MemInfo::mlocked},
    {"Hugetlb", &MemInfo::hugetlb},
    {"MemTotal", &MemInfo::memTotal},
    {"SwapFree", &MemInfo::swapFree},
    {"SwapTotal", &MemInfo::swapTotal},
    {"AnonPages", &MemInfo::anonPages},
    {"SUnreclaim", &MemInfo::sUnreclaim},
    {"PageTables", &MemInfo::pageTables},
    {"Unevictable", &MemInfo::unevictable},
    {"KernelStack", &MemInfo::kernelStack},
    {"MemAvailable", &MemInfo::memAvailable},
    {"Active(anon)", &MemInfo::activeAnon},
    {"SReclaimable", &MemInfo::sReclaimable},
    {"SecPageTables", &MemInfo::secPageTables},
    {"Inactive(anon)", &MemInfo::inactiveAnon},
};
constexpr std::size_t longestName = std::rbegin(lines)->name.size();

/// Where the names of each length begin; the last entry ends the list.
constexpr auto placesByLength = [] {
    std::array<std::uint8_t, longestName + 2> places{};
    for (const Line& line : lines) {
        for (std::size_t length = line.name.size() + 1; length < places.size(); ++length)
            ++places[length];
    }
    return places;
}();

const Line* findLine(std::string_view name) {
    if (name.size() > longestName)
        return nullptr;
    for (auto i = placesByLength[name.size()]; i < placesByLength[name.size() + 1]; ++i) {
        if (lines[i].name == name)
            return &lines[i];
    }
    return nullptr;
}

} // namespace

std::optional<MemInfo> parseMemInfo(std::string_view text) {
    MemInfo info;
    while (const auto line = takeLine(text)) {
        const auto colon = line->find(':');
        if (colon == std::string_view::npos)
            continue;
        const Line* const known = findLine(line->substr(0, colon));
        if (known == nullptr)
            continue;
        const auto value = Fields(line->substr(colon + 1)).number();
        if (value && *value <= largestMemory)
            info.*known->value = value;
    }
    if (!text.empty() || info.memTotal.value_or(0) == 0)
        return std::nullopt;
    return info;
}

} // namespace vantrix
